#include "report/form_presentacion.h"

#include "platform/forms/controls.h"
#include "platform/forms/decoration.h"
#include "platform/forms/picture.h"

namespace zv::report {

using namespace Qt::StringLiterals;
using namespace forms;

namespace {

/// First working screen: Show-Edit of composers.
constexpr int FirstScreen = 15;

} // namespace

FormPresentacion::FormPresentacion(shell::Context& context, QWidget* parent, const QString& name)
    : Screen(context, parent, name, 9000, 6300) {
    auto* logo = add<Picture>(u"ImagenLogoOrquesta"_s, {2700, 480, 3600, 1980});
    setRole(logo, Role::PageImage);
    logo->setPicture({{}, u"logo"_s, {3600, 1980}});
    const auto line = [this](const QString& text, TwipsRect rect, Role role, int height, bool bold) {
        return dress(add<Label>({}, rect), role, text, height, bold, Qt::AlignCenter);
    };
    line(u"Zarvelia"_s, {600, 2505, 7800, 960}, Role::Heading, type::XXL, true);
    line(u"English Version"_s, {600, 3525, 7800, 330}, Role::None, type::L, false);
    line(u"Version 1.0"_s, {600, 3885, 7800, 285}, Role::None, type::G, false);
    add<Rule>({}, {2700, 4365, 3600, 0});
    line(u"Brumatec"_s, {600, 4515, 7800, 300}, Role::None, type::M, false);
    line(u"www.brumatec.example"_s, {600, 4815, 7800, 285}, Role::None, type::G, false);
    line(u"2026"_s, {600, 5100, 7800, 285}, Role::None, type::G, false);
    auto* enter = line(u"Enter"_s, {3450, 5535, 2100, 480}, Role::Button, type::L, true);
    enter->setObjectName(u"LabContinuar"_s);
    enter->setToolTipText(u"     Enter     "_s);
    enter->setCursor(Qt::PointingHandCursor);
    enter->Click = [this] { LabContinuar_Click(); };
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
