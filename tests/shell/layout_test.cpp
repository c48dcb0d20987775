// Where the screens stand in the window, from a small one to a large monitor.
#include "support/desk.h"

#include <QApplication>
#include <QToolTip>

using namespace Qt::StringLiterals;

namespace zv::test {
namespace {

struct WindowCase {
    QSize size;
    double scale;
    int left, top; ///< of the screen in twips
};

// The block is 10320 by 9030 twips; the window's 15 twips per pixel are divided by the scale.
const WindowCase Cases[] = {
    {{1100, 760}, 1.0, 3090, 1185}, {{1920, 1080}, 1.75, 3068, 113}, {{3840, 2160}, 3.0, 4440, 885}};

class Layout : public Desk {
  protected:
    shell::FormSolapas& strip() { return program->window.Solapas(); }

    /// Names of what sticks out of what it stands in.
    QStringList sticking(QWidget* form) {
        QStringList names;
        if (!program->window.rect().contains(form->geometry())) names += form->objectName();
        for (QWidget* control : form->findChildren<QWidget*>()) {
            if (!dynamic_cast<forms::Placed*>(control) || !control->isVisibleTo(form)) continue;
            if (!control->parentWidget()->rect().contains(control->geometry()))
                names += form->objectName() + u'.' + control->objectName() + u' ' +
                         QDebug::toString(control->geometry()) + u" in "_s +
                         QDebug::toString(control->parentWidget()->rect());
        }
        return names;
    }
};

TEST_F(Layout, theBlockIsCentredAtEverySize) {
    start();
    for (const WindowCase& c : Cases) {
        program->window.resize(c.size);
        EXPECT_EQ(program->scale.value(), c.scale);
        const forms::Form* screen = hands->screen();
        EXPECT_EQ(screen->Left(), c.left);
        EXPECT_EQ(screen->Top(), c.top);
        EXPECT_EQ(strip().Left(), c.left);
        EXPECT_EQ(strip().Top(), c.top + 7755);
        EXPECT_EQ(strip().y(), screen->geometry().bottom() + 1) << "The tabs stand directly under the screen.";
        const int free = program->window.width() - screen->width();
        EXPECT_NEAR(screen->x(), free / 2.0, 1.5);
        // 195 and 180 twips, 15 to a pixel: the type of boxes and of tips grows as well.
        EXPECT_EQ(QApplication::font().pixelSize(), static_cast<int>(13 * c.scale + 0.5));
        EXPECT_EQ(QToolTip::font().pixelSize(), static_cast<int>(12 * c.scale + 0.5));
    }
}

TEST_F(Layout, nothingSticksOutOfItsPlace) {
    put({u"Compositor"_s, u"Apellidos"_s, {u"'one'"_s}});
    start();
    for (const WindowCase& c : Cases) {
        program->window.resize(c.size);
        for (int number = 1; number <= 68; ++number) {
            hands->go(number);
            EXPECT_EQ(sticking(hands->screen()), QStringList{}) << number << " at " << c.scale;
        }
        EXPECT_EQ(sticking(&strip()), QStringList{}) << c.scale;
    }
}

TEST_F(Layout, theScreenKeepsItsStateWhenTheWindowChanges) {
    start();
    hands->go(1);
    hands->type(u"TxtApellidos"_s, u"half a na"_s);
    const QString before = hands->dump();
    for (const WindowCase& c : Cases) program->window.resize(c.size);
    program->window.showMinimized();
    program->window.showNormal();
    program->window.resize(1100, 760);
    EXPECT_EQ(hands->dump().toStdString(), before.toStdString());
    EXPECT_EQ(hands->screen()->Left(), 3090);
}

TEST_F(Layout, aSmallWindowKeepsTheSmallestScale) {
    start({720, 640});
    EXPECT_EQ(program->scale.value(), 1.0);
    EXPECT_TRUE(program->window.rect().contains(hands->screen()->geometry()));
    EXPECT_TRUE(program->window.rect().contains(strip().geometry()));
    EXPECT_GE(program->window.minimumWidth(), 688);
    EXPECT_GE(program->window.minimumHeight(), 602);
}

} // namespace
} // namespace zv::test
