// The List screen under the hands: its bars, its wheel, and the columns that the horizontal bar moves.
#include "listing/list_desk.h"
#include <QScrollBar>

using namespace zv;
using namespace Qt::StringLiterals;

namespace {

class ByHand : public test::ListDesk {
  protected:
    ByHand() : ListDesk(test::members().front()) {}
    void SetUp() override {
        fill(45);
        start();
        open();
    }
    /// Lists three columns that are wider than the grid.
    void listWide() {
        list({u"Name"_s, u"Surname"_s, u"Date 1"_s});
        grid().setColWidth(1, 6000);
        grid().setColWidth(2, 6000);
        pages().setValue(2);
        ASSERT_GT(bar().maximum(), 0);
    }
    QScrollBar& bar() { return *grid().horizontalScrollBar(); }
    int numbersWidth() { return grid().columnWidth(0); }
    /// The left end of the grid as far as the numbers reach, with their heading, down to the horizontal bar.
    QImage numbers() {
        QCoreApplication::processEvents();
        const int height = grid().viewport()->geometry().bottom() + 1;
        return grid().grab(QRect(0, 0, grid().viewport()->x() + numbersWidth(), height)).toImage();
    }
};

TEST_F(ByHand, TheNumbersStayWhileTheColumnsMove) {
    listWide();
    const QImage before = numbers();
    for (const int moved : {1, numbersWidth() + 30, bar().maximum()}) {
        bar().setValue(moved);
        EXPECT_EQ(numbers(), before) << moved;
    }
    // They follow the page and the chosen row.
    pages().setValue(1);
    bar().setValue(bar().maximum());
    const QImage other = numbers();
    EXPECT_NE(other, before);
    const QPoint second(numbersWidth() / 2, grid().rowViewportPosition(1) + 5);
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(grid().RowSel(), 2);
    EXPECT_EQ(bar().value(), bar().maximum()) << "A click chooses a row and moves nothing.";
    const QImage chosen = numbers();
    EXPECT_NE(chosen, other);
    bar().setValue(0);
    EXPECT_EQ(numbers(), chosen);
}

TEST_F(ByHand, TheArrowKeysBringColumnsOutFromUnderTheNumbers) {
    listWide();
    grid().setFocus();
    grid().setCurrentCell(0, 3);
    EXPECT_GT(bar().value(), 0);
    for (int column = 2; column >= 1; --column) {
        QTest::keyClick(&grid(), Qt::Key_Left);
        EXPECT_EQ(grid().currentColumn(), column);
        EXPECT_GE(grid().columnViewportPosition(column), numbersWidth()) << column;
    }
    QTest::keyClick(&grid(), Qt::Key_Down);
    EXPECT_EQ(grid().RowSel(), 2);
}

TEST_F(ByHand, TheWheelAndTheKeysTurnPageAndZoom) {
    list({u"Surname"_s});
    const auto wheel = [](QWidget& over, int delta) {
        const QPointF middle = over.rect().center();
        QWheelEvent event(middle, over.mapToGlobal(middle), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&over, &event);
    };
    EXPECT_EQ(where(), u"1/3 1-20+"_s);
    for (QWidget* over : std::initializer_list<QWidget*>{&pages(), grid().viewport()}) {
        wheel(*over, -120);
        EXPECT_EQ(where(), u"2/3 21-40+"_s);
        wheel(*over, 120);
        EXPECT_EQ(where(), u"1/3 1-20+"_s);
    }
    wheel(zoom(), -120);
    EXPECT_EQ(zoom().Value(), 2);
    wheel(zoom(), 120);
    EXPECT_EQ(zoom().Value(), 1);
    QTest::keyClick(&pages(), Qt::Key_Down);
    EXPECT_EQ(where(), u"2/3 21-40+"_s);
    QTest::keyClick(&pages(), Qt::Key_Up);
    EXPECT_EQ(where(), u"1/3 1-20+"_s);
    QTest::keyClick(&zoom(), Qt::Key_Right);
    EXPECT_EQ(zoom().Value(), 2);
    QTest::keyClick(&zoom(), Qt::Key_Left);
    EXPECT_EQ(zoom().Value(), 1);
}

} // namespace
