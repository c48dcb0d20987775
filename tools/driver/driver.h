// A pair of hands: works the real screens through real events, by the names of forms and controls.
#pragma once

#include "app/program.h"
#include "driver/scripted.h"
#include "platform/forms/controls.h"
#include "platform/forms/flex_grid.h"
#include "platform/forms/picture.h"
#include "platform/forms/text_box.h"

namespace zv::driver {

class Driver {
  public:
    Driver(app::Program& program, Failure failure) : program_(program), failure_(std::move(failure)) {}

    /// Clicks "Enter" on the presentation.
    void enter();
    /// Clicks its way through the tabs to a screen by its number, 1 to 68.
    void go(int number);
    /// The screen on display; fails if its name is another.
    forms::Form* screen(const QString& name = {});

    /// A control of the screen on display (or of the tab strip); fails and gives a dummy if there is none.
    template <class C>
    C& get(const QString& name);
    bool isEnabled(const QString& name) { return get<QWidget>(name).isEnabled(); }
    /// Text of a box or label, as a person sees it.
    QString text(const QString& name);

    void click(const QString& name);
    void doubleClick(const QString& name);
    /// Clicks into a box and types; what stood there is replaced, because gaining the focus selects it.
    void type(const QString& name, const QString& text);
    /// Pastes into a box over what is selected there.
    void paste(const QString& name, const QString& text);
    void clickTab(forms::TabControl& tabs, int tab);
    /// Picks a row of a list of choices by its words, as the arrow keys would.
    void choose(const QString& combo, const QString& row);
    /// Turns ticks of the list of fields by a click on each row named; all rows are unticked first.
    void tick(const QStringList& rows);
    void tickAll();

    /// The controls of the screen with their names, texts and states, one a line.
    QString dump();
    /// The cells of the grid of a List screen, columns joined by "|", one row a line.
    QString page();

    app::Program& program() { return program_; }

  private:
    QWidget* find(const QString& name);
    app::Program& program_;
    Failure failure_;
};

template <class C>
C& Driver::get(const QString& name) {
    auto* found = dynamic_cast<C*>(find(name));
    if (!found) {
        failure_(QStringLiteral("No control ") + name);
        throw std::runtime_error("No control " + name.toStdString());
    }
    return *found;
}

} // namespace zv::driver
