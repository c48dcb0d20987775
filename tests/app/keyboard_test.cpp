// The tab key on each screen: it walks the controls in reading order, round and back.
#include "app/every_screen.h"
#include "store/messages.h"

#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zv::test {
namespace {

class Keyboard : public EveryScreen {
  protected:
    static QWidget* focus() { return QApplication::focusWidget(); }
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(focus(), key, modifiers); }

    /// Where the keys lead from a control until they come back to it.
    std::vector<QWidget*> roundFrom(QWidget& first, Qt::Key key) {
        first.setFocus();
        std::vector<QWidget*> visited;
        do {
            visited.push_back(focus());
            press(key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
        } while (focus() && focus() != &first && visited.size() < 60);
        EXPECT_EQ(focus(), &first) << "The round closes.";
        return visited;
    }

    /// A screen is read in blocks: first the page with its boxes, then the frame of the counters at the left, where it
    /// has one, then the row of buttons at the foot, last the tabs. Within a block: by rows from the top, in a row from
    /// the left. A button over a picture comes with its picture; the parts of a recording come one after the other, and
    /// the columns under a list are blocks of their own.
    static std::array<int, 3> place(const QWidget& widget, const forms::Form& screen, const forms::Scale& scale) {
        // The strip of tabs stands under the screen.
        if (dynamic_cast<const forms::TabControl*>(&widget)) return {9, widget.y(), widget.x()};
        const QPoint at = widget.mapTo(&screen, QPoint());
        const int left = qRound(scale.twips(at.x())), top = qRound(scale.twips(at.y()));
        const QString form = screen.objectName();
        // Inside a row the edges may differ by less than half the height of a box.
        const int row = top / 150;
        int block = 0;
        if (form.contains(u"Lis"_s)) return {top < 6500 ? 0 : left < 2700 ? 1 : left < 3900 ? 2 : 3, row, left};
        if (form.endsWith(u"Grabacion"_s) && !form.contains(u"Sel"_s)) {
            const QStringList parts = {
                u"BtnEliImaCompositor"_s, u"BtnEliImaObra"_s,     u"FlexMovimientos"_s, u"BtnEliImaOrquesta"_s,
                u"FlexOrquesta"_s,        u"BtnEliImaDirector"_s, u"FlexDirectores"_s,  u"BtnEliImaInterprete"_s,
                u"FlexInterpretes"_s,     u"BtnEliImaSoporte"_s,  u"TxtNotas"_s};
            const auto part = parts.indexOf(widget.objectName());
            if (part >= 0) return {0, int(part), left};
        }
        if (widget.objectName() == u"BtnImagenEliminar"_s)
            return {0, 0, 0};
        else if (top >= 7100)
            block = 3;
        else if (dynamic_cast<forms::Frame*>(widget.parentWidget()) && left < 3390)
            block = 2;
        return {block, row, left};
    }

    void checkRound(forms::Form& screen) {
        // From wherever the keys lead, the walk begins at the first control.
        if (!focus()) program->window.setFocus();
        QTest::keyClick(focus(), Qt::Key_Tab);
        std::vector<QWidget*> forwards = roundFrom(*focus(), Qt::Key_Tab);
        const auto earlier = [&](const QWidget* a, const QWidget* b) {
            return place(*a, screen, program->scale) < place(*b, screen, program->scale);
        };
        std::ranges::rotate(forwards, std::ranges::min_element(forwards, earlier));
        std::array<int, 3> last{-1};
        for (QWidget* widget : forwards) {
            const std::string name = widget->objectName().toStdString();
            const auto here = place(*widget, screen, program->scale);
            EXPECT_LT(last, here) << name;
            last = here;
            EXPECT_TRUE(widget->isVisible() && widget->isEnabled()) << name;
            const auto* box = qobject_cast<QLineEdit*>(widget);
            EXPECT_FALSE(box && box->isReadOnly()) << name;
        }
        // Nobody is left out: what takes the tab key, is seen and can be used.
        for (forms::Placed* control : controlsOf(screen)) {
            QWidget* widget = control->widget();
            if (!widget->isVisible() || !widget->isEnabled() || !(widget->focusPolicy() & Qt::TabFocus)) continue;
            EXPECT_NE(std::ranges::find(forwards, widget), forwards.end()) << widget->objectName().toStdString();
        }
        std::vector<QWidget*> backwards = roundFrom(*forwards.front(), Qt::Key_Backtab);
        std::reverse(backwards.begin() + 1, backwards.end());
        EXPECT_EQ(forwards, backwards);
    }
};

TEST_F(Keyboard, TheTabKeyWalksEveryScreenInReadingOrder) {
    onEach([&](int number, forms::Form& screen) {
        if (number != shell::PresentationNumber) checkRound(screen);
    });
}

TEST_F(Keyboard, TheTabKeyWalksARecordThatIsChanged) {
    for (const int number : {15, 16, 17, 18, 19, 20, 21, 43, 47}) {
        SCOPED_TRACE(number);
        hands->go(number);
        hands->click(u"BtnModificar"_s);
        if (number == 15) hands->get<QWidget>(u"BtnImagenEliminar"_s).setVisible(true);
        checkRound(*hands->screen());
        EXPECT_FALSE(hands->isEnabled(u"TxtOrden"_s));
        hands->click(u"BtnDeshacer"_s);
    }
    // With a filter being written, and with a list of pages.
    hands->go(8);
    hands->click(u"BtnNueva"_s);
    checkRound(*hands->screen());
    hands->go(22);
    hands->tickAll();
    hands->click(u"BtnListar"_s);
    checkRound(*hands->screen());
}

TEST_F(Keyboard, AClickIntoALockedBoxGoesToTheHiddenButtonAndTheTabKeyGoesOn) {
    hands->go(15);
    QTest::mouseClick(&hands->get<QWidget>(u"TxtApellidos"_s), Qt::LeftButton);
    EXPECT_EQ(focus(), &hands->get<QWidget>(u"BtnRegresar"_s));
    press(Qt::Key_Tab);
    EXPECT_EQ(focus(), &hands->get<QWidget>(u"BtnModificar"_s));
    hands->go(21);
    QTest::mouseClick(hands->get<QPlainTextEdit>(u"TxtNotas"_s).viewport(), Qt::LeftButton);
    EXPECT_EQ(focus(), &hands->get<QWidget>(u"BtnRegresar"_s));
}

TEST_F(Keyboard, AClickedTabKeepsTheFocusAndTheArrowsTurnIt) {
    forms::TabControl& tabs = *strip().TabEntidad[0][2];
    hands->clickTab(tabs, 3);
    EXPECT_EQ(strip().VentanaMostrandose, 18);
    EXPECT_EQ(focus(), &tabs);
    press(Qt::Key_Right);
    EXPECT_EQ(strip().VentanaMostrandose, 19);
    EXPECT_EQ(focus(), &tabs);
    hands->clickTab(*strip().TabNivel1, 4);
    EXPECT_EQ(focus(), strip().TabNivel1);
}

TEST_F(Keyboard, ThePresentationIsLeftByEnter) {
    stop();
    program = std::make_unique<app::Program>(boxes, files, printers);
    hands =
        std::make_unique<driver::Driver>(*program, [](const QString& words) { ADD_FAILURE() << words.toStdString(); });
    ASSERT_TRUE(program->window.Load(folder()));
    program->window.show();
    program->window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&program->window));
    ASSERT_TRUE(focus());
    EXPECT_EQ(focus()->objectName(), u"LabContinuar"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(strip().VentanaMostrandose, 15);
}

// Enter presses the button that has the focus and does nothing in a box; Escape changes nothing anywhere.
TEST_F(Keyboard, EnterAndEscapeDoWhatUsersExpect) {
    hands->go(1);
    hands->type(u"TxtApellidos"_s, u"three"_s);
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    EXPECT_EQ(hands->text(u"TxtApellidos"_s), u"three"_s);
    EXPECT_EQ(stored(u"Compositor"_s, u"Apellidos"_s).size(), 2);
    hands->get<QWidget>(u"BtnGuardar"_s).setFocus();
    boxes.expect(store::MensaGrabadoBien, box::Information);
    press(Qt::Key_Return);
    EXPECT_EQ(stored(u"Compositor"_s, u"Apellidos"_s).size(), 3);
    hands->go(15);
    hands->type(u"TxtOrden"_s, u"3"_s);
    press(Qt::Key_Return);
    press(Qt::Key_Escape);
    EXPECT_EQ(hands->text(u"TxtApellidos"_s), u"three"_s);
    EXPECT_EQ(hands->text(u"TxtOrden"_s), u"3"_s);
}

TEST_F(Keyboard, EscapeClosesAnOpenListAndNothingElse) {
    hands->go(8);
    hands->click(u"BtnNueva"_s);
    auto& combo = hands->get<forms::Combo>(u"ComboCampo"_s);
    const int before = combo.ListIndex();
    combo.setFocus();
    combo.showPopup();
    ASSERT_TRUE(combo.view()->isVisible());
    QTest::keyClick(combo.view(), Qt::Key_Down);
    QTest::keyClick(combo.view(), Qt::Key_Escape);
    EXPECT_FALSE(combo.view()->isVisible());
    EXPECT_EQ(combo.ListIndex(), before);
    EXPECT_EQ(strip().VentanaMostrandose, 8);
    EXPECT_EQ(focus(), &combo);
}

} // namespace
} // namespace zv::test
