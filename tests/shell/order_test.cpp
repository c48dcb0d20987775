// The order of events inside one click, and handlers that unload their own form.
#include "shell/recorded_program.h"

#include <QCoreApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace zv::test {
namespace {

class Order : public RecordedProgram {
  protected:
    void SetUp() override {
        window->resize(1100, 760);
        ASSERT_TRUE(window->Load(folder.path()));
        window->show();
        EXPECT_EQ(events(), "load 0, number 0, on");
        EXPECT_FALSE(strip().isVisible());
        strip().OcultarFormulario();
        strip().MostrarFormulario(15);
        strip().CargaFormulario();
        EXPECT_EQ(events(), "unload 0, number 0, on\nload 15, number 15, on\nfill 15, number 15, on");
    }
    void click(forms::TabControl* tabs, int tab) {
        QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(tab).center());
    }
};

TEST_F(Order, aScreenIsLeftUnderItsNumberAndFilledWhenItIsShown) {
    int carried = -1;
    onCarga = [&](int) { carried = strip().SolapaRegistros1; };
    click(strip().TabEntidad[0][2], 3);
    EXPECT_EQ(events(), "unload 15, number 15, off\nload 18, number 18, off\nfill 18, number 18, off");
    EXPECT_EQ(carried, 3);
    EXPECT_TRUE(strip().isEnabled());
    // Another function, by a change of the entity tab and, with the same entity, by a call.
    click(strip().TabRegistros1, 0);
    EXPECT_EQ(events(), "unload 18, number 18, off\nload 4, number 4, off\nfill 4, number 4, off");
    click(strip().TabRegistros1, 2);
    EXPECT_EQ(events(), "unload 4, number 4, off\nload 18, number 18, off\nfill 18, number 18, off");
    click(strip().TabNivel1, 1);
    EXPECT_EQ(events(), "unload 18, number 18, off\nload 43, number 43, off\nfill 43, number 43, off");
    // Records II take over the entity only at the end.
    onCarga = [&](int) { carried = strip().SolapaRegistros2; };
    click(strip().TabEntidad[1][2], 5);
    EXPECT_EQ(events(), "unload 43, number 43, off\nload 48, number 48, off\nfill 48, number 48, off");
    EXPECT_EQ(carried, 0);
    EXPECT_EQ(strip().SolapaRegistros2, 5);
    EXPECT_EQ(strip().SolapaRegistros1, 3);
}

TEST_F(Order, reportHelpAndAboutAreNotFilled) {
    click(strip().TabNivel1, 2);
    EXPECT_EQ(events(), "unload 15, number 15, off\nload 57, number 57, off");
    click(strip().TabNivel1, 3);
    EXPECT_EQ(events(), "unload 57, number 57, off\nload 58, number 58, off");
    click(strip().TabAyuda, 1);
    EXPECT_EQ(events(), "unload 58, number 58, off\nload 59, number 59, off");
    click(strip().TabNivel1, 4);
    EXPECT_EQ(events(), "unload 59, number 59, off\nload 68, number 68, off");
    EXPECT_TRUE(strip().isEnabled());
}

TEST_F(Order, theTabThatIsShownIsNotLoadedAgain) {
    click(strip().TabEntidad[0][2], 0);
    click(strip().TabRegistros1, 2);
    click(strip().TabNivel1, 0);
    EXPECT_EQ(events(), "");
}

TEST_F(Order, aHandlerMayUnloadItsOwnForm) {
    onButton = [this](int) {
        strip().SolapaRegistros1 = 6;
        strip().setTabRegistros1(0);
        EXPECT_EQ(find(u"Form15"_s), nullptr);
        // The same form anew, beside the one whose handler still runs, and away again.
        strip().OcultarFormulario();
        strip().MostrarFormulario(15);
        strip().CargaFormulario();
        EXPECT_EQ(window->findChildren<QWidget*>(u"BtnPress"_s).size(), 1);
        strip().TabRegistros1_Click();
    };
    QTest::mouseClick(find(u"BtnPress"_s), Qt::LeftButton);
    EXPECT_EQ(events(), "press 15, number 15, on\nunload 15, number 15, off\nload 7, number 7, off\n"
                        "fill 7, number 7, off\nunload 7, number 7, on\nload 15, number 15, on\n"
                        "fill 15, number 15, on\nunload 15, number 15, off\nload 7, number 7, off\n"
                        "fill 7, number 7, off");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(window->findChildren<QWidget*>(u"BtnPress"_s).size(), 1);
    // A button that is pressed by the keyboard is gone before the key is let go.
    onButton = [this](int) { strip().setTabRegistros1(2); };
    QWidget* button = find(u"BtnPress"_s);
    button->setFocus();
    QTest::keyClick(button, Qt::Key_Space);
    EXPECT_EQ(strip().VentanaMostrandose, 21);
}

TEST_F(Order, aTabTurnedWhileAScreenIsFilledLeadsOn) {
    onCarga = [this](int number) {
        if (number != 1) return;
        onCarga = nullptr;
        strip().setTabRegistros1(2);
    };
    click(strip().TabRegistros1, 0);
    EXPECT_EQ(events(), "unload 15, number 15, off\nload 1, number 1, off\nfill 1, number 1, off\n"
                        "unload 1, number 1, off\nload 15, number 15, off\nfill 15, number 15, off");
    EXPECT_TRUE(strip().isEnabled());
    EXPECT_FALSE(strip().TabEntidad[0][0]->isVisible());
    EXPECT_TRUE(strip().TabEntidad[0][2]->isVisible());
}

TEST_F(Order, closingUnloadsTheScreenBeforeItAsks) {
    boxes.expect(u"COMPACT the Database?\r\rRecommended."_s, box::YesNo, box::No);
    boxes.whileShown = [this] {
        EXPECT_EQ(events(), "unload 15, number 15, on");
        EXPECT_THROW(store.Data(1, 0), RuntimeError) << "No channel holds the file any more.";
        boxes.whileShown = nullptr;
    };
    onUnload = [this](int) { EXPECT_EQ(store.Data(1, 0).Recordset().RecordCount(), 0); };
    strip().BloquearSolapas(true);
    window->close();
    window->close();
    EXPECT_EQ(events(), "");
    EXPECT_FALSE(window->isVisible());
}

} // namespace
} // namespace zv::test
