// The grid: rows and columns as the logic counts them, its errors, and widths that are twips.
#include "bench_form.h"
#include "platform/forms/flex_grid.h"
#include "platform/forms/look_style.h"
#include <QHeaderView>

namespace zv::forms {
namespace {

class Grid : public Bench {
  protected:
    FlexGrid* grid = form->add<FlexGrid>(u"Tabla"_s, {1695, 150, 8430, 6300});
    void SetUp() override {
        grid->show();
        grid->setDefaultColWidth(1500);
    }
    void fill(int rows, int cols) {
        grid->setRows(rows);
        grid->setCols(cols);
        for (int row = 0; row < rows; ++row)
            for (int col = 0; col < cols; ++col) write(row, col, u"%1.%2"_s.arg(row).arg(col));
    }
    void write(int row, int col, const QString& text) {
        grid->setRow(row);
        grid->setCol(col);
        grid->setText(text);
    }
    QString cells() {
        QStringList rows;
        for (int row = 0; row < grid->Rows(); ++row) {
            QStringList line;
            for (int col = 0; col < grid->Cols(); ++col) line += grid->TextMatrix(row, col);
            rows += line.join(u' ');
        }
        return rows.join(u'|');
    }
};

TEST_F(Grid, HeadingsHaveTheTypeOfTheGrid) {
    for (const int height : {type::G, type::XL}) {
        grid->setType(height, false);
        EXPECT_EQ(grid->horizontalHeader()->font(), scale.font(height, true));
    }
}

TEST_F(Grid, LevelLinesAreCutAndNotWrapped) {
    LookStyle look(scale);
    grid->setStyle(&look);
    grid->setRows(2);
    grid->setCols(1);
    for (int row = 0; row < 2; ++row) {
        grid->setRowHeight(row, 900);
        grid->setTextMatrix(row, 0, (row ? u"x\r"_s : u"Hans Wolf "_s.repeated(9) + u'\r') + u"Second"_s);
    }
    const auto secondLines = [this](int row) {
        QRect cell = grid->visualItemRect(grid->item(row, 0)).adjusted(0, 0, 0, -2);
        const int line = QFontMetrics(grid->font()).lineSpacing();
        return grid->viewport()->grab(QRect(cell.left(), cell.top() + line, cell.width(), line)).toImage();
    };
    EXPECT_NE(secondLines(0), secondLines(1));
    grid->setLinesLevel(0, true);
    EXPECT_EQ(secondLines(0), secondLines(1));
    grid->setStyle(nullptr);
}

TEST_F(Grid, GrowsAndShrinks) {
    fill(3, 2);
    grid->setRows(4);
    EXPECT_EQ(cells(), u"0.0 0.1|1.0 1.1|2.0 2.1| "_s);
    grid->setRows(2);
    EXPECT_EQ(grid->Row(), 1) << "the current row stays inside";
    grid->setRows(3);
    EXPECT_EQ(cells(), u"0.0 0.1|1.0 1.1| "_s);
    grid->setCols(1);
    grid->setCols(2);
    EXPECT_EQ(cells(), u"0.0 |1.0 | "_s);
    for (const QString& text : {u"a\r\nb"_s, u"a\rb"_s, u"a\nb"_s}) {
        write(0, 0, text);
        EXPECT_EQ(grid->Text(), u"a\nb"_s);
    }
}

TEST_F(Grid, HasAHeadingOfOneRow) {
    grid->setRows(3);
    grid->setCols(2);
    grid->setFixedRows(1);
    EXPECT_TRUE(grid->horizontalHeader()->isVisibleTo(grid));
    fill(3, 2);
    EXPECT_EQ(cells(), u"0.0 0.1|1.0 1.1|2.0 2.1"_s);
    EXPECT_EQ(grid->horizontalHeaderItem(1)->text(), u"0.1"_s);
    EXPECT_EQ(grid->item(0, 0)->text(), u"1.0"_s);
    grid->setRows(1); // the usual way to drop all data rows
    EXPECT_EQ(grid->rowCount(), 0);
    grid->setRows(0);
    grid->setRows(2);
    EXPECT_FALSE(grid->horizontalHeader()->isVisibleTo(grid)) << "no rows, no heading, for good";
    EXPECT_EQ(cells(), u" | "_s);
    grid->setFixedRows(1);
    EXPECT_EQ(cells(), u" | "_s);
}

TEST_F(Grid, RemovesARow) {
    fill(4, 1);
    grid->setFixedRows(1);
    fill(4, 1);
    grid->setRowHeight(2, 900);
    EXPECT_EQ(errorOf([&] { grid->RemoveItem(0); }), 30000);
    EXPECT_EQ(errorOf([&] { grid->RemoveItem(4); }), 30002);
    EXPECT_EQ(errorOf([&] { grid->RemoveItem(-1); }), 30002);
    grid->RemoveItem(1);
    EXPECT_EQ(cells(), u"0.0|2.0|3.0"_s);
    EXPECT_EQ(grid->RowHeight(1), 900);
    grid->RemoveItem(2);
    EXPECT_EQ(errorOf([&] { grid->RemoveItem(1); }), 30015);
    EXPECT_EQ(cells(), u"0.0|2.0"_s);
}

TEST_F(Grid, RefusesPlacesThatAreNotThere) {
    EXPECT_EQ(errorOf([&] { grid->setRows(-1); }), 30009);
    EXPECT_EQ(errorOf([&] { grid->setCols(-1); }), 30010);
    EXPECT_EQ(errorOf([&] { grid->setText(u"x"_s); }), 30009);
    fill(2, 2);
    EXPECT_EQ(errorOf([&] { grid->setFixedRows(2); }), 30016);
    for (const int bad : {-1, 2}) {
        EXPECT_EQ(errorOf([&] { grid->setRow(bad); }), 30009);
        EXPECT_EQ(errorOf([&] { grid->setCol(bad); }), 30010);
        EXPECT_EQ(errorOf([&] { (void)grid->TextMatrix(bad, 0); }), 30009);
        EXPECT_EQ(errorOf([&] { (void)grid->TextMatrix(0, bad); }), 30010);
        EXPECT_EQ(errorOf([&] { (void)grid->ColWidth(bad); }), 30010);
        EXPECT_EQ(errorOf([&] { grid->setColWidth(bad, 100); }), 30010);
        EXPECT_EQ(errorOf([&] { (void)grid->RowHeight(bad); }), 30009);
        EXPECT_EQ(errorOf([&] { grid->setRowHeight(bad, 100); }), 30009);
    }
    EXPECT_EQ(cells(), u"0.0 0.1|1.0 1.1"_s);
}

TEST_F(Grid, KeepsTwipsAtEveryScale) {
    fill(3, 3);
    grid->setColWidth(0, 495);
    grid->setColWidth(1, 1001);
    for (const int row : {0, 1, 2}) grid->setRowHeight(row, 307);
    for (const double s : {1.0, 1.25, 1.75, 2.25, 3.0, 1.0}) {
        scale.set(s);
        form->applyScale();
        EXPECT_EQ(grid->ColWidth(0), 495) << s;
        EXPECT_EQ(grid->ColWidth(1), 1001) << s;
        EXPECT_EQ(grid->ColWidth(2), 1500) << s;
        EXPECT_EQ(grid->columnViewportPosition(2), scale.px(1496)) << s;
        // Edges are rounded where they stand, not heights.
        EXPECT_EQ(grid->rowViewportPosition(2), scale.px(150 + 614) - scale.px(150)) << s;
    }
    grid->setRows(0);
    EXPECT_EQ(grid->ColWidth(1), 1001) << "widths outlive the rows";
}

TEST_F(Grid, TellsOfClicksAndOfTheWheel) {
    fill(3, 1);
    grid->Click = counted();
    const QPoint middle = grid->visualItemRect(grid->item(2, 0)).center();
    EXPECT_EQ(firedBy([&] { QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, middle); }), 1);
    EXPECT_EQ(grid->RowSel(), 2);
    grid->DblClick = counted();
    grid->Click = nullptr;
    EXPECT_EQ(firedBy([&] { QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, middle); }), 1);
    QList<int> steps;
    grid->Wheel = [&](int turned) { steps += turned; };
    for (const int delta : {120, -240, 60, 60, -40, -80}) EXPECT_TRUE(wheel(*grid->viewport(), delta));
    EXPECT_EQ(steps, QList<int>({1, -2, 1, -1}));
}

} // namespace
} // namespace zv::forms
