#include "app/every_screen.h"

namespace zv::test {

using namespace Qt::StringLiterals;

void EveryScreen::SetUp() {
    for (const store::KindInfo& kind : store::kinds()) {
        const auto& field = kind.fields[kind.kind == store::Kind::Orquesta ? 2 : 1];
        put({kind.table.toString(), field.column.toString(), {u"1"_s, u"2"_s}});
    }
    start();
}

void EveryScreen::onEach(const std::function<void(int, forms::Form&)>& work) {
    for (int number = 0; number < shell::ScreenCount; ++number) {
        strip().OcultarFormulario();
        strip().MostrarFormulario(number);
        strip().CargaFormulario();
        forms::Form* screen = strip().loadedScreen(number);
        ASSERT_TRUE(screen) << number;
        SCOPED_TRACE(screen->objectName().toStdString());
        work(number, *screen);
    }
}

std::vector<forms::Placed*> EveryScreen::controlsOf(QWidget& form) {
    std::vector<forms::Placed*> controls;
    for (QWidget* widget : form.findChildren<QWidget*>())
        if (auto* placed = dynamic_cast<forms::Placed*>(widget)) controls.push_back(placed);
    return controls;
}

} // namespace zv::test
