// What stands on a page and where: cells, pictures, the grid beside them, and that no hand moves one without the other.
#include "listing/list_desk.h"
#include <QHeaderView>
#include <QWheelEvent>

using namespace zv;
using namespace Qt::StringLiterals;

namespace {

class Page : public test::ListDesk, public ::testing::WithParamInterface<test::Member> {
  protected:
    Page() : ListDesk(GetParam()) {}
    void begin(int records, QSize window = {1100, 760}) {
        fill(records);
        start(window);
        open();
    }
    /// Left and width of the grid, width of the heading of the pictures, right end of its line; twips.
    QString geometry() {
        forms::Form* screen = hands->screen();
        const auto& heading = hands->get<forms::Label>(u"Label16"_s);
        const auto& line = hands->get<forms::Rule>(u"LineImagen"_s);
        EXPECT_EQ(grid().Top(), 150);
        EXPECT_EQ(grid().Height(), 6300);
        EXPECT_EQ(heading.isVisibleTo(screen), line.isVisibleTo(screen));
        QString text = u"%1 %2"_s.arg(grid().Left()).arg(grid().Width());
        if (heading.isVisibleTo(screen)) text += u", %1 to %2"_s.arg(heading.Width()).arg(line.Left() + line.Width());
        return text;
    }
    QString image(const QString& name, QSize pixels) {
        QImage made(pixels, QImage::Format_RGB32);
        made.fill(Qt::darkGreen);
        made.setDotsPerMeterX(20000); // no word in the file changes its size
        made.setDotsPerMeterY(20000);
        const QString path = folder_.filePath(name);
        EXPECT_TRUE(made.save(path));
        return path;
    }
    QString place(int i) {
        auto& box = picture(i);
        if (!box.isVisibleTo(hands->screen())) return u"none"_s;
        return u"%1 %2 %3 %4"_s.arg(box.Left()).arg(box.Top()).arg(box.Width()).arg(box.Height());
    }
    void wheel(int delta) {
        const QPointF at(50, 50);
        QWheelEvent event(at, grid().mapToGlobal(at), {}, {0, delta}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(grid().viewport(), &event);
    }
    void drag(int column, int pixels) {
        QHeaderView* header = grid().horizontalHeader();
        const QPoint edge(header->sectionViewportPosition(column) + header->sectionSize(column) - 1, 5);
        const auto send = [&](QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons held) {
            QMouseEvent event(type, at, header->viewport()->mapToGlobal(at), button, held, Qt::NoModifier);
            QCoreApplication::sendEvent(header->viewport(), &event);
        };
        send(QEvent::MouseButtonPress, edge, Qt::LeftButton, Qt::LeftButton);
        send(QEvent::MouseMove, edge + QPoint(pixels, 0), Qt::NoButton, Qt::LeftButton);
        send(QEvent::MouseButtonRelease, edge + QPoint(pixels, 0), Qt::LeftButton, Qt::NoButton);
    }
};

TEST_P(Page, LeavesRoomForPicturesAndBar) {
    begin(21);
    EXPECT_EQ(geometry(), u"1695 8430, 1485 to 1680"_s);
    list({m.text});
    EXPECT_EQ(geometry(), u"195 9690"_s);
    zoom().setValue(5);
    EXPECT_EQ(geometry(), u"195 9690"_s);
    list({m.text, u"Image"_s});
    EXPECT_EQ(geometry(), u"1695 8190, 1485 to 10125"_s);
    zoom().setValue(1);
    EXPECT_EQ(geometry(), u"495 9390, 285 to 10125"_s);
    select(u" WHERE Id < 4"_s);
    hands->click(u"BtnListar"_s);
    EXPECT_EQ(geometry(), u"495 9630, 285 to 10125"_s);
    zoom().setValue(20);
    EXPECT_EQ(geometry(), u"6195 3690, 5985 to 10125"_s);
    zoom().setValue(1);
    list({m.text});
    EXPECT_EQ(geometry(), u"195 9930"_s);
    list({});
    EXPECT_EQ(geometry(), u"1695 8430, 1485 to 1680"_s);
}

TEST_P(Page, FitsPicturesIntoTheirRows) {
    const QString wide = image(u"wide.bmp"_s, {300, 100}), tall = image(u"tall.jpg"_s, {100, 300});
    put({m.table(),
         m.textColumn + u", Imagen"_s,
         {u"'wide', '%1'"_s.arg(wide), u"'tall', '%1'"_s.arg(tall), u"'missing', '%1'"_s.arg(folder() + u"/no.jpg"_s),
          u"'none', ''"_s, u"'fifth', '%1'"_s.arg(wide)}});
    start();
    open();
    list({u"Image"_s});
    EXPECT_EQ(hands->page(), u"No.\n1\n2\n3\n4\n5\n"_s) << "the numbers alone";
    hands->click(u"BtnAImagen"_s);
    // A row is 1500 high, a picture fits 1485; the grid's heading ends at 450 and the panel begins at 165.
    EXPECT_EQ(place(0), u"195 945 1485 495"_s);
    EXPECT_EQ(place(1), u"690 1950 495 1485"_s);
    EXPECT_EQ(place(2), u"none"_s);
    EXPECT_EQ(place(3), u"none"_s);
    EXPECT_EQ(place(4), u"none"_s) << "of the next page";
    for (const QSize& window : {QSize(1920, 1080), QSize(2560, 1440), QSize(1100, 760)}) {
        program->window.resize(window);
        for (const int row : {0, 1}) {
            const int top = grid().viewport()->mapTo(hands->screen(), QPoint(0, grid().rowViewportPosition(row))).y();
            const QRect box = picture(row).geometry();
            EXPECT_TRUE(top <= box.top() && box.bottom() < top + grid().rowHeight(row))
                << "not beside its record: " << box.top() << " to " << box.bottom() << " for " << top << " and "
                << grid().rowHeight(row);
        }
    }
    pages().setValue(2);
    EXPECT_EQ(place(0), u"195 945 1485 495"_s);
    EXPECT_EQ(place(1), u"none"_s);
    list({m.text});
    EXPECT_EQ(place(0), u"none"_s);
}

TEST_P(Page, KeepsWidthsAndFollowsTheScale) {
    begin(41, {1100, 760});
    list({m.text, m.number});
    drag(1, 40); // 40 pixels of 15 twips
    EXPECT_EQ(grid().ColWidth(0), 495);
    EXPECT_EQ(grid().ColWidth(1), 2100);
    EXPECT_EQ(grid().ColWidth(2), 1500);
    pages().setValue(2);
    zoom().setValue(3);
    EXPECT_EQ(grid().ColWidth(1), 2100);
    program->window.resize(1920, 1080);
    EXPECT_EQ(program->scale.value(), 1.75);
    EXPECT_EQ(grid().ColWidth(1), 2100);
    EXPECT_EQ(grid().columnWidth(1), 245);
    EXPECT_EQ(grid().rowHeight(0), 105);
    EXPECT_EQ(where(), u"4/7 19-24+"_s);
    pages().setValue(5);
    EXPECT_EQ(grid().ColWidth(1), 2100);
    EXPECT_EQ(grid().ColWidth(2), 1500);
}

TEST_P(Page, TurnsByTheWheelAndNeverScrolls) {
    begin(41);
    list({m.text});
    wheel(120);
    EXPECT_EQ(where(), u"1/3 1-20+"_s);
    wheel(-120);
    EXPECT_EQ(where(), u"2/3 21-40+"_s);
    for (int i = 0; i < 8; ++i) wheel(-15); // a fine wheel
    EXPECT_EQ(where(), u"3/3 41-41"_s);
    wheel(-1200);
    EXPECT_EQ(where(), u"3/3 41-41"_s);
    wheel(240);
    EXPECT_EQ(where(), u"1/3 1-20+"_s);
    // The row that says that more follow overflows the grid.
    for (const int row : {19, 20, 0}) {
        const QPoint middle = grid().visualItemRect(grid().item(row, 0)).center();
        QTest::mouseClick(grid().viewport(), Qt::LeftButton, {},
                          {middle.x(), std::min(middle.y(), grid().viewport()->height() - 2)});
        QTest::keyClick(&grid(), Qt::Key_Down);
        QTest::keyClick(&grid(), Qt::Key_End);
        EXPECT_EQ(grid().rowViewportPosition(0), 0) << row;
    }
}

INSTANTIATE_TEST_SUITE_P(Members, Page, ::testing::ValuesIn(test::members()), test::memberName);

class ComposerPage : public test::ListDesk {
  protected:
    ComposerPage() : ListDesk(test::members().front()) {}
};

TEST_F(ComposerPage, ShowsTheTickedFieldsWithoutYearsThatAreMissing) {
    put({u"Compositor"_s,
         u"Nombre, Apellidos, Fecha1, Fecha2, Notas, Imagen"_s,
         {u"'Ana', 'Vega', 1685, 0, 'One' || char(13, 10) || 'Two', ''"_s, u"'', 'Ruiz', 0, 1750, NULL, ''"_s}});
    start();
    open();
    hands->tickAll();
    hands->click(u"BtnListar"_s);
    EXPECT_EQ(hands->page(), u"No.|Name|Surname|Date 1|Date 2|Notes\n1|Ana|Vega|1685||One\nTwo\n2||Ruiz||1750|\n"_s);
    EXPECT_EQ(hands->text(u"LabNumCampos"_s), u"6"_s);
    list({u"Date 2"_s, u"Surname"_s});
    EXPECT_EQ(hands->page(), u"No.|Surname|Date 2\n1|Vega|\n2|Ruiz|1750\n"_s);
    EXPECT_EQ(hands->get<forms::ProgressBar>(u"ProgressBar"_s).value(), 0);
}

TEST_F(ComposerPage, ShowsTheFirstLinesThatARowHasRoomFor) {
    const auto lines = [](const QStringList& words) {
        return u"'x', '"_s + words.join(u"' || char(13, 10) || '"_s) + u'\'';
    };
    put({u"Compositor"_s,
         u"Apellidos, Notas"_s,
         {lines({u"One"_s, u"Two"_s, u"Three"_s}), lines({u"One…"_s}), lines({u"One"_s, u"Two…"_s})}});
    start();
    open();
    list({u"Notes"_s});
    const auto shot = [this](int row) {
        return grid().viewport()->grab(grid().visualItemRect(grid().item(row, 1)).adjusted(0, 0, 0, -2)).toImage();
    };
    EXPECT_EQ(shot(0), shot(1));
    hands->get<forms::ScrollBar>(u"HScroll"_s).setValue(2);
    EXPECT_EQ(shot(0), shot(2));
    hands->get<forms::ScrollBar>(u"HScroll"_s).setValue(3);
    EXPECT_NE(shot(0), shot(2)) << "room for all three";
}

} // namespace
