// Whoever works without a mouse sees where the keyboard stands, and everybody sees what cannot be used.
#include "platform/forms/bench_form.h"
#include "platform/forms/flex_grid.h"
#include "platform/forms/look_style.h"
#include "platform/forms/text_box.h"

#include <QApplication>
#include <QSpinBox>
#include <QToolButton>

namespace zv::forms {
namespace {

class States : public Bench {
  protected:
    States() {
        LookStyle::install(scale);
        form->add<Button>(u"Elsewhere"_s, {240, 240, 1170, 420})->setFocus();
    }
    // The look reads the scale of the bench.
    ~States() override { QApplication::setStyle(u"fusion"_s); }

    static QImage shot(QWidget& widget) { return widget.grab().toImage(); }

    void tellsItsStates(QWidget& widget, const char* what) {
        widget.show();
        QCoreApplication::processEvents();
        form->findChild<Button*>(u"Elsewhere"_s)->setFocus();
        const QImage normal = shot(widget);
        widget.setFocus(Qt::TabFocusReason);
        ASSERT_TRUE(widget.hasFocus()) << what;
        const QImage focused = shot(widget);
        EXPECT_NE(focused, normal) << what;
        widget.setEnabled(false);
        EXPECT_NE(shot(widget), normal) << what;
        EXPECT_NE(shot(widget), focused) << what;
    }
    template <class C>
    C& control(const TwipsRect& rect) {
        return *form->add<C>(u"Control"_s, rect);
    }
};

TEST_F(States, AreSeenOnControlsOfEachKind) {
    const TwipsRect line{4740, 240, 3000, 315}, area{4740, 1000, 3000, 1500};
    auto& button = control<Button>({4740, 240, 1170, 420});
    button.setText(u"Save"_s);
    tellsItsStates(button, "button");
    auto& box = control<TextBox>(line);
    box.setText(u"Text"_s);
    tellsItsStates(box, "box");
    auto& memo = control<Memo>(area);
    memo.setText(u"Text"_s);
    tellsItsStates(memo, "memo");
    auto& combo = control<Combo>(line);
    combo.AddItem(u"One"_s);
    combo.setListIndex(0);
    tellsItsStates(combo, "combo");
    auto& list = control<ListBox>(area);
    list.AddItem(u"One"_s);
    tellsItsStates(list, "list");
    auto& ticks = control<CheckList>(area);
    ticks.AddItem(u"One"_s);
    tellsItsStates(ticks, "ticks");
    auto& grid = control<FlexGrid>(area);
    grid.setCols(1);
    grid.setRows(1);
    grid.setText(u"One"_s);
    tellsItsStates(grid, "grid");
    auto& bar = control<ScrollBar>(line);
    bar.setDirection(Qt::Horizontal);
    tellsItsStates(bar, "bar");
    auto& still = control<ScrollBar>(line);
    still.setMin(1);
    still.setMax(1);
    tellsItsStates(still, "bar of one record");
    auto& tabs = control<TabControl>({4740, 240, 3000, 405});
    tabs.setTabs({{u"One"_s, 1500}, {u"Two"_s, 1500}}, 0);
    tellsItsStates(tabs, "tabs");
    // A click gives them the focus without its mark, which comes with the first key.
    tabs.setEnabled(true);
    form->findChild<Button*>(u"Elsewhere"_s)->setFocus();
    const QImage without = shot(tabs);
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(0).center());
    EXPECT_TRUE(tabs.hasFocus());
    EXPECT_EQ(shot(tabs), without);
    QTest::keyClick(&tabs, Qt::Key_Left);
    EXPECT_NE(shot(tabs), without);
    auto& enter = control<Label>({4740, 240, 2100, 480});
    enter.dress(Role::Button, u"Enter"_s, type::L, true, Qt::AlignCenter);
    tellsItsStates(enter, "label that is a button");
    // Those of the dialogs.
    QSpinBox spin(form);
    spin.setGeometry(scale.rect(line));
    tellsItsStates(spin, "spin box");
    QToolButton tool(form);
    tool.setFocusPolicy(Qt::StrongFocus);
    tool.setAutoRaise(true);
    tool.setArrowType(Qt::LeftArrow);
    tool.setGeometry(scale.rect({4740, 240, 600, 450}));
    tellsItsStates(tool, "tool button");
}

} // namespace
} // namespace zv::forms
