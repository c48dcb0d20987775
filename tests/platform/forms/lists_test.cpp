// Lists, ticks, bars and tabs: rows are chosen only by choosing them, and every change is told once.
#include "bench_form.h"

namespace zv::forms {
namespace {

class Lists : public Bench {
  protected:
    template <class C>
    C* shown(const QString& name, const TwipsRect& rect) {
        C* control = form->add<C>(name, rect);
        control->show();
        return control;
    }
    /// Text of the chosen row behind its number.
    template <class C>
    static QString chosen(const C& list) {
        return QString::number(list.ListIndex()) + u' ' + list.Text();
    }
};

template <class C>
class BothLists : public Lists {
  protected:
    C* rows = shown<C>(u"Lista"_s, {240, 240, 3000, 1200});
};
using ListKinds = ::testing::Types<Combo, ListBox>;
TYPED_TEST_SUITE(BothLists, ListKinds);

TYPED_TEST(BothLists, ChooseARowOnlyWhenAsked) {
    auto* list = this->rows;
    list->Click = this->counted();
    EXPECT_EQ(this->firedBy([&] {
        for (const QString& row : {u"a"_s, u"b"_s, u"c"_s}) list->AddItem(row);
        list->setFocus(Qt::TabFocusReason);
        list->clearFocus();
    }),
              0);
    EXPECT_EQ(this->chosen(*list), u"-1 "_s);
    EXPECT_EQ(this->firedBy([&] { list->setListIndex(1); }), 1);
    EXPECT_EQ(this->firedBy([&] { list->setListIndex(1); }), 0);
    EXPECT_EQ(this->firedBy([&] { list->AddItem(u"d"_s); }), 0);
    EXPECT_EQ(this->chosen(*list), u"1 b"_s);
    EXPECT_EQ(this->firedBy([&] { QTest::keyClick(list, Qt::Key_Down); }), 1);
    EXPECT_EQ(this->chosen(*list), u"2 c"_s);
    for (const int bad : {-2, 4}) EXPECT_EQ(errorOf([&] { list->setListIndex(bad); }), 380);
    EXPECT_EQ(this->firedBy([&] { list->setListIndex(-1); }), 1);
    EXPECT_EQ(this->chosen(*list), u"-1 "_s);
    // The handler is told inside the setter, and may choose another row itself.
    list->Click = [&] {
        if (list->ListIndex() == 0) list->setListIndex(3);
    };
    list->setListIndex(0);
    EXPECT_EQ(this->chosen(*list), u"3 d"_s);
}

TEST_F(Lists, ComboKeepsTheChosenRowWhileOthersGo) {
    auto* combo = shown<Combo>(u"ComboCampo"_s, {240, 240, 3000, 345});
    for (const QString& row : {u"a"_s, u"b"_s, u"c"_s, u"d"_s}) combo->AddItem(row);
    combo->setListIndex(2);
    combo->Click = counted();
    EXPECT_EQ(firedBy([&] {
                  combo->RemoveItem(0);
                  EXPECT_EQ(chosen(*combo), u"1 c"_s);
                  combo->RemoveItem(2);
                  EXPECT_EQ(chosen(*combo), u"1 c"_s);
                  combo->RemoveItem(1);
                  EXPECT_EQ(chosen(*combo), u"-1 "_s);
                  EXPECT_FALSE(wheel(*combo, -120)) << "the wheel is the form's";
              }),
              0);
    EXPECT_EQ(combo->ListCount(), 1);
    for (const int bad : {-1, 1}) EXPECT_EQ(errorOf([&] { combo->RemoveItem(bad); }), 5);
    EXPECT_EQ(firedBy([&] { combo->setListIndex(0); }), 1);
    EXPECT_EQ(firedBy([&] { wheel(*combo, 120); }), 0);
}

TEST_F(Lists, ListBoxForgetsWithoutAWord) {
    auto* list = shown<ListBox>(u"ListFiltros"_s, {240, 240, 3000, 1200});
    for (const QString& row : {u"Surname"_s, u"       AND"_s}) list->AddItem(row);
    EXPECT_FALSE(list->item(0)->font().bold());
    EXPECT_TRUE(list->item(1)->font().bold());
    list->setListIndex(1);
    list->Click = counted();
    EXPECT_EQ(firedBy([&] { list->Clear(); }), 0);
    EXPECT_EQ(chosen(*list), u"-1 "_s);
    list->AddItem(u"x"_s);
    EXPECT_EQ(firedBy([&] {
                  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(0)).center());
              }),
              1);
}

TEST_F(Lists, TicksTurnByAClickAnywhereInTheRow) {
    auto* list = shown<CheckList>(u"List"_s, {240, 240, 3000, 960});
    for (const QString& row : {u"Name"_s, u"Surname"_s, u"Image"_s}) list->AddItem(row);
    EXPECT_EQ(list->SelCount(), 0);
    const QRect row = list->visualItemRect(list->item(1));
    for (const QPoint& at :
         {row.center(), QPoint(row.left() + 8, row.center().y()), QPoint(row.right() - 4, row.center().y())}) {
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
        EXPECT_TRUE(list->Selected(1));
        EXPECT_EQ(list->SelCount(), 1);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, at);
        EXPECT_FALSE(list->Selected(1));
    }
    QTest::mouseClick(list->viewport(), Qt::RightButton, {}, row.center());
    EXPECT_EQ(list->SelCount(), 0);
    list->setFocus();
    list->setCurrentRow(2);
    QTest::keyClick(list, Qt::Key_Space);
    EXPECT_TRUE(list->Selected(2)) << "the keyboard ticks as well";
    list->setSelected(0, true);
    EXPECT_EQ(list->SelCount(), 2);
    for (const int bad : {-1, 3}) {
        EXPECT_EQ(errorOf([&] { (void)list->Selected(bad); }), 381);
        EXPECT_EQ(errorOf([&] { list->setSelected(bad, true); }), 381);
    }
}

TEST_F(Lists, BarsHoldSixteenBits) {
    auto* bar = shown<ScrollBar>(u"VScroll"_s, {240, 240, 240, 6000});
    bar->setMin(1);
    bar->setMax(20);
    bar->Change = counted();
    EXPECT_EQ(firedBy([&] { bar->setValue(5); }), 1);
    EXPECT_EQ(firedBy([&] { bar->setValue(5); }), 0);
    for (const int bad : {0, 21, -1}) EXPECT_EQ(errorOf([&] { bar->setValue(bad); }), 380);
    EXPECT_EQ(errorOf([&] { bar->setValue(40000); }), 6);
    EXPECT_EQ(errorOf([&] { bar->setMax(32768); }), 6);
    EXPECT_EQ(errorOf([&] { bar->setMin(-32769); }), 6);
    EXPECT_EQ(bar->Value(), 5);
    bar->setMax(3);
    EXPECT_EQ(bar->Value(), 3);
    bar->setMax(32767);
    bar->setValue(32767);
    EXPECT_EQ(firedBy([&] { QTest::keyClick(bar, Qt::Key_Up); }), 1) << "by hand as by code";
    EXPECT_EQ(bar->Value(), 32766);
}

TEST_F(Lists, BarsGoOneStepForEachTurnOfTheWheel) {
    auto* bar = shown<ScrollBar>(u"HScroll"_s, {240, 240, 2700, 330});
    for (const Qt::Orientation direction : {Qt::Horizontal, Qt::Vertical}) {
        bar->setDirection(direction);
        bar->setMin(1);
        bar->setMax(20);
        bar->setPageStep(5);
        bar->setValue(10);
        bar->Change = counted();
        EXPECT_EQ(firedBy([&] { EXPECT_TRUE(wheel(*bar, -120)); }), 1);
        EXPECT_EQ(bar->Value(), 11) << "towards the user goes on";
        wheel(*bar, 60);
        EXPECT_EQ(bar->Value(), 11) << "half a step";
        wheel(*bar, 60);
        EXPECT_EQ(bar->Value(), 10);
        wheel(*bar, 120 * 30);
        EXPECT_EQ(bar->Value(), 1);
        bar->Change = nullptr;
    }
}

TEST_F(Lists, ProgressOfNothingIsTaken) {
    auto* bar = shown<ProgressBar>(u"ProgressBar"_s, {240, 240, 1215, 270});
    bar->setMax(0);
    bar->setProgress(0);
    EXPECT_TRUE(bar->value() == 0 && bar->maximum() > bar->minimum()) << "no endless bar";
    bar->setMax(40);
    bar->setProgress(40);
    EXPECT_EQ(bar->value(), 40);
    bar->setMax(10);
    EXPECT_EQ(bar->value(), 10) << "a lower end pulls the value down";
}

TEST_F(Lists, TabsStandOnTheirEdgesAndTurnOnlyByAClick) {
    auto* tabs = shown<TabControl>(u"TabNivel1"_s, {100, 240, 9000, 405});
    tabs->Click = counted();
    EXPECT_EQ(firedBy([&] { tabs->setTabs({{u"One"_s, 1310}, {u"Two"_s, 1475}, {u"Three"_s, 1999}}, 1); }), 0);
    EXPECT_EQ(tabs->Tab(), 1);
    EXPECT_EQ(firedBy([&] { tabs->setTab(2); }), 1);
    EXPECT_EQ(firedBy([&] { tabs->setTab(2); }), 0);
    for (const int bad : {-1, 3}) EXPECT_EQ(errorOf([&] { tabs->setTab(bad); }), 380);
    EXPECT_EQ(firedBy([&] { EXPECT_FALSE(wheel(*tabs, 120)); }), 0);
    EXPECT_EQ(firedBy([&] { QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center()); }), 1);
    EXPECT_EQ(tabs->Tab(), 0);
    for (const double s : {1.0, 1.25, 1.75, 3.0}) {
        scale.set(s);
        form->applyScale();
        const int left = scale.px(100);
        EXPECT_EQ(tabs->tabRect(1).left() + left, scale.px(1410)) << s;
        EXPECT_EQ(tabs->tabRect(2).left() + left, scale.px(2885)) << s;
        EXPECT_EQ(tabs->tabRect(2).left() + tabs->tabRect(2).width() + left, scale.px(4884)) << s;
    }
}

} // namespace
} // namespace zv::forms
