#include "report/help_page.h"

#include "platform/forms/controls.h"
#include "platform/forms/decoration.h"

namespace zv::report {

using namespace Qt::StringLiterals;
using namespace forms;

HelpScreen::HelpScreen(shell::Context& context, QWidget* parent, const QString& name, const HelpPage& page)
    : Screen(context, parent, name), page_(page) {
    constexpr int MockUpWidth = 4200, MockUpHeight = 3156;
    int top = 240;
    for (const Picturing* picturing : {&page.upper, &page.lower}) {
        if (picturing->shapes)
            add<MockUp>({}, {240, top, MockUpWidth, MockUpHeight})->set(picturing->shapes(), picturing->badges);
        top = 3555;
    }
    add<HelpText>(page.textControl.toString(), {4740, 240, 5130, 6810})->read(page.words);
    if (!page.caption.isEmpty())
        addLabel({}, Role::Heading, page.caption.toString(), {4740, 7275, 1500, 270}, type::S, true, ToLeft)
            ->setToolTipText(u"Página"_s);
    addTurn(u"BtnAnterior"_s, u"Previous"_s, 7380, page.previous);
    addTurn(u"BtnSiguiente"_s, u"Next"_s, 8700, page.next);
}

void HelpScreen::addTurn(const QString& name, const QString& caption, int left, int number) {
    if (!number) return;
    addButton(name, caption, {}, {left, 7200, 1170, 420}, [this, number] { turnTo(number); });
}

void HelpScreen::Form_Load() {
    if (page_.remembered) context().navigator->*page_.remembered = page_.number;
}

void HelpScreen::turnTo(int number) {
    shell::Navigator& navigator = *context().navigator;
    navigator.OcultarFormulario();
    navigator.MostrarFormulario(number);
}

void HelpScreen::paintBehind(QPainter& painter) { paintSpine(painter, scale()); }

} // namespace zv::report
