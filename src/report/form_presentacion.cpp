#include "report/form_presentacion.h"

#include "platform/forms/controls.h"
#include "platform/forms/decoration.h"
#include "report/credits.h"

namespace zv::report {

using namespace Qt::StringLiterals;
using namespace forms;

namespace {

/// First working screen: Show-Edit of composers.
constexpr int FirstScreen = 15;

} // namespace

FormPresentacion::FormPresentacion(shell::Context& context, QWidget* parent, const QString& name)
    : Screen(context, parent, name, 9000, 6300) {
    addCredits(*this, {{2700, 480, 3600, 1980},
                       {600, 2505, 7800, 960},
                       {2700, 4365, 3600, 0},
                       {{Edition, {600, 3525, 7800, 330}, type::L},
                        {Version, {600, 3885, 7800, 285}, type::G},
                        {Maker, {600, 4515, 7800, 300}, type::M},
                        {WebAddress, {600, 4815, 7800, 285}, type::G},
                        {Year, {600, 5100, 7800, 285}, type::G}},
                       Qt::AlignCenter});
    auto* enter = dress(add<Label>(u"LabContinuar"_s, {3450, 5535, 2100, 480}), Role::Button, u"Enter"_s, type::L, true,
                        Qt::AlignCenter);
    enter->setToolTipText(u"     Enter     "_s);
    enter->setCursor(Qt::PointingHandCursor);
    enter->Click = [this] { LabContinuar_Click(); };
    enter->setFocus();
}

void FormPresentacion::LabContinuar_Click() {
    shell::Navigator& navigator = *context().navigator;
    navigator.OcultarFormulario();
    navigator.MostrarFormulario(FirstScreen);
    navigator.CargaFormulario();
}

void FormPresentacion::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, rect(), scale());
}

} // namespace zv::report
