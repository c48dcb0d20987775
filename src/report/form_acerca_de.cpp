#include "report/form_acerca_de.h"

#include "platform/forms/decoration.h"
#include "report/credits.h"

namespace zv::report {

using namespace forms;

FormAcercaDe::FormAcercaDe(shell::Context& context, QWidget* parent, const QString& name)
    : Screen(context, parent, name) {
    constexpr int Left = 5310, Width = 4410;
    addCredits(*this, {{600, 1680, 4200, 2310},
                       {Left, 1440, Width, 960},
                       {Left, 3300, Width, 0},
                       {{Edition, {Left, 2475, Width, 330}, type::L},
                        {Version, {Left, 2835, Width, 285}, type::G},
                        {Maker, {Left, 3450, Width, 300}, type::M},
                        {WebAddress, {Left, 3780, Width, 285}, type::G},
                        {MailAddress, {Left, 4080, Width, 285}, type::G},
                        {Year, {Left, 4380, Width, 285}, type::G}},
                       ToLeft});
}

void FormAcercaDe::paintBehind(QPainter& painter) {
    paintSpine(painter, scale());
    paintStaff(painter, {600, 9120, 6000, 150}, colour::Motif, scale());
}

} // namespace zv::report
