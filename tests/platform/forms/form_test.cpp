// Forms: the scale, loading and unloading, errors that escape a handler.
#include "bench_form.h"
#include "platform/forms/text_box.h"

namespace zv::forms {
namespace {

TEST(ScaleOfTheWindow, GrowsInQuarters) {
    struct Case {
        QSize client;
        double scale;
    };
    for (const Case& c :
         {Case{{1100, 760}, 1.0}, Case{{1280, 960}, 1.5}, Case{{1920, 1080}, 1.75}, Case{{2560, 1440}, 2.25},
          Case{{3840, 2160}, 3.0}, Case{{712, 626}, 1.0}, Case{{320, 200}, 1.0}, Case{{9000, 9000}, 3.0}})
        EXPECT_EQ(Scale::forClient(c.client), c.scale) << c.client.width();
    struct Lines {
        double scale;
        int hairline, focus;
    };
    for (const Lines& c : {Lines{1.0, 1, 2}, Lines{1.75, 1, 4}, Lines{2.25, 2, 5}, Lines{3.0, 3, 6}}) {
        EXPECT_EQ(Scale(c.scale).hairline(), c.hairline);
        EXPECT_EQ(Scale(c.scale).focusLine(), c.focus);
    }
}

TEST(ScaleOfTheWindow, RoundsEdgesSoThatNeighboursMeet) {
    const Scale scale(1.25);
    EXPECT_EQ(scale.px(315), 26);                                           // 26.25
    EXPECT_EQ(scale.px(6.0), 1);                                            // 0.5 is rounded up
    EXPECT_EQ(scale.px(-6.0), 0);                                           // on either side of 0
    EXPECT_EQ(scale.rect({9885, 150, 240, 6300}), QRect(824, 13, 20, 525)); // 823.75 to 843.75, 12.5 to 537.5
    for (const double s : {1.0, 1.25, 1.5, 1.75, 2.0, 2.25, 2.5, 2.75, 3.0})
        for (int left = 0; left < 9000; left += 307) {
            const QRect one = Scale(s).rect({left, left, 307, 307});
            const QRect next = Scale(s).rect({left + 307, left + 307, 307, 307});
            EXPECT_EQ(one.right() + 1, next.left()) << s << ' ' << left;
            EXPECT_EQ(one.bottom() + 1, next.top()) << s << ' ' << left;
        }
    EXPECT_EQ(Scale(1.0).font(60, false).pixelSize(), 8) << "never smaller";
}

class Forms : public Bench {};

TEST_F(Forms, LoadOnceAndUnloadOnce) {
    form->Show();
    EXPECT_EQ(form->loads, 1);
    form->Unload();
    form->Unload();
    EXPECT_EQ(form->unloads, 1);
    auto* never = new BenchForm(&window, scale, u"FormNunca"_s);
    never->Unload();
    EXPECT_EQ(never->loads + never->unloads, 0) << "what was not loaded has nothing to unload";
}

TEST_F(Forms, MayBeReplacedByTheirTwinFromTheirOwnHandler) {
    auto* button = form->add<Button>(u"BtnRegresar"_s, {240, 240, 1170, 420});
    auto* box = form->add<TextBox>(u"TxtNombre"_s, {240, 1240, 3000, 315});
    button->show();
    box->Change = counted();
    const QPointer<BenchForm> old = form;
    BenchForm* twin = nullptr;
    int clicks = 0;
    button->Click = [&, kept = u"still here"_s] {
        ++clicks;
        old->Unload();
        EXPECT_EQ(kept, u"still here"_s) << "a running handler outlives its drop";
        twin = new BenchForm(&window, scale);
        twin->add<TextBox>(u"TxtNombre"_s, {240, 1240, 3000, 315});
        twin->Show();
        EXPECT_EQ(window.findChildren<QWidget*>(u"FormBanco"_s), QList<QWidget*>{twin});
        EXPECT_EQ(window.findChildren<QWidget*>(u"TxtNombre"_s).size(), 1);
        EXPECT_TRUE(window.findChildren<QWidget*>(u"BtnRegresar"_s).isEmpty());
        ASSERT_TRUE(old) << "its widgets live to the end of the event";
        EXPECT_TRUE(old->objectName().isEmpty() && box->objectName().isEmpty() && !old->isVisible());
        EXPECT_EQ(firedBy([&] { box->setText(u"no logic"_s); }), 0);
        button->click();
    };
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(clicks, 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(old);
    EXPECT_TRUE(twin->isVisible());
    EXPECT_TRUE(errors.isEmpty());
}

TEST_F(Forms, SendEscapedErrorsToTheEndAndNotToTheCaller) {
    auto* box = form->add<TextBox>(u"TxtNombre"_s, {240, 240, 3000, 315});
    auto* button = form->add<Button>(u"BtnGuardar"_s, {240, 1240, 1170, 420});
    button->show();
    bool caught = false;
    box->Change = [] { throw RuntimeError(13); };
    button->Click = [&] {
        try {
            box->setText(u"x"_s); // its handler ends the program, whatever is armed here
        } catch (const RuntimeError&) {
            caught = true;
        }
        throw RuntimeError(91);
    };
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_FALSE(caught);
    EXPECT_EQ(errors, QList<int>({13, 91}));
    errors.clear();
    button->Click = [] { (void)std::vector<int>().at(1); };
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(errors, QList<int>({5})) << "no exception crosses the toolkit";
}

TEST_F(Forms, TellTwoQuickClicksOnALabelAsTwo) {
    auto* label = form->add<Label>(u"LabNombre"_s, {240, 240, 3000, 420});
    label->show();
    label->setCaption(u"<b>A & B</b>"_s);
    EXPECT_EQ(label->text(), u"<b>A & B</b>"_s);
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    const auto twoQuickClicks = [&] {
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
                                QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, QPointF(5, 5), label->mapToGlobal(QPointF(5, 5)), Qt::LeftButton, Qt::LeftButton,
                              Qt::NoModifier);
            QCoreApplication::sendEvent(label, &event);
        }
    };
    label->Click = counted();
    EXPECT_EQ(firedBy(twoQuickClicks), 2);
    label->DblClick = counted();
    label->Click = nullptr;
    EXPECT_EQ(firedBy(twoQuickClicks), 1);
    EXPECT_EQ(firedBy([&] { QTest::mouseClick(label, Qt::RightButton); }), 0);
}

} // namespace
} // namespace zv::forms
