// The arithmetic of the pages: how many records a page holds at each zoom, which of them it shows, what a return finds.
#include "listing/list_desk.h"

using namespace zv;
using namespace Qt::StringLiterals;

namespace {

/// First and last page of so many records at a zoom, worked out by hand: a page is 6000 high, or 5760 above a
/// horizontal bar, and a row 300 times the zoom.
struct Count {
    int records, zoom;
    QString first, last;
};

class Pages : public test::ListDesk, public ::testing::WithParamInterface<test::Member> {
  protected:
    Pages() : ListDesk(GetParam()) {}
    void begin(int records) {
        fill(records);
        start();
        open();
    }
    void expectPages(const Count& c, bool wide) {
        SCOPED_TRACE(u"%1 records at zoom %2"_s.arg(c.records).arg(c.zoom).toStdString());
        select(u" WHERE Id < %1"_s.arg(c.records + 1));
        list({m.text});
        zoom().setValue(c.zoom);
        if (wide) widen();
        EXPECT_EQ(where(), c.first);
        EXPECT_EQ(grid().horizontalScrollBar()->isVisible(), wide);
        pages().setValue(pages().Max());
        EXPECT_EQ(where(), c.last);
    }
    void expectEmptyState() {
        EXPECT_EQ(grid().Rows() + grid().Cols(), 0);
        EXPECT_FALSE(hands->isEnabled(u"VScroll"_s) || hands->isEnabled(u"HScroll"_s) ||
                     hands->isEnabled(u"BtnAImagen"_s) || pages().isVisibleTo(hands->screen()));
        EXPECT_FALSE(program->store.memory.dump().contains(u"(0) = True"_s));
    }
};

TEST_P(Pages, HoldAsManyRecordsAsTheZoomLeavesRoomFor) {
    begin(41);
    for (const Count& c : {
             Count{1, 1, u"1/1 1-1"_s, u"1/1 1-1"_s},
             Count{1, 20, u"1/1 1-1"_s, u"1/1 1-1"_s},
             Count{19, 1, u"1/1 1-19"_s, u"1/1 1-19"_s},
             Count{19, 19, u"1/19 1-1+"_s, u"19/19 19-19"_s},
             Count{20, 1, u"1/1 1-20"_s, u"1/1 1-20"_s},
             Count{20, 5, u"1/5 1-4+"_s, u"5/5 17-20"_s},
             Count{21, 1, u"1/2 1-20+"_s, u"2/2 21-21"_s},
             Count{21, 5, u"1/6 1-4+"_s, u"6/6 21-21"_s},
             Count{41, 5, u"1/11 1-4+"_s, u"11/11 41-41"_s},
             Count{41, 20, u"1/41 1-1+"_s, u"41/41 41-41"_s},
         }) {
        expectPages(c, false);
    }
}

TEST_P(Pages, LoseALineToTheHorizontalBar) {
    begin(41);
    for (const Count& c : {
             Count{19, 1, u"1/1 1-19"_s, u"1/1 1-19"_s},
             Count{20, 1, u"1/2 1-19+"_s, u"2/2 20-20"_s},
             Count{20, 5, u"1/7 1-3+"_s, u"7/7 19-20"_s},
             Count{21, 5, u"1/7 1-3+"_s, u"7/7 19-21"_s},
             Count{41, 1, u"1/3 1-19+"_s, u"3/3 39-41"_s},
             Count{41, 5, u"1/14 1-3+"_s, u"14/14 40-41"_s},
             Count{41, 19, u"1/41 1-1+"_s, u"41/41 41-41"_s},
         }) {
        expectPages(c, true);
        zoom().setValue(1);
    }
    list({m.text});
    zoom().setValue(5);
    widen();
    zoom().setValue(20); // no room beside a bar
    EXPECT_EQ(zoom().Value(), 19);
    EXPECT_EQ(hands->text(u"LabZoom"_s), u"19"_s);
    EXPECT_EQ(memory(m.kind).MemoLis.Posicion2, 19);
    EXPECT_EQ(where(), u"1/41 1-1+"_s);
}

TEST_P(Pages, KeepTheFirstRecordWhenTheZoomMoves) {
    begin(41);
    list({m.text});
    pages().setValue(2);
    EXPECT_EQ(where(), u"2/3 21-40+"_s);
    hands->click(u"BtnAImagen"_s);
    EXPECT_EQ(where(), u"6/11 21-24+"_s);
    EXPECT_EQ(hands->text(u"LabZoom"_s), u"5"_s);
    zoom().setValue(1);
    EXPECT_EQ(where(), u"2/3 21-40+"_s);
    hands->click(u"BtnListar"_s);
    EXPECT_EQ(where(), u"1/3 1-20+"_s) << "a new list starts at its first page";
}

TEST_P(Pages, ComeBackWithTicksZoomAndPage) {
    begin(41);
    hands->tick({m.text}); // ticked and never listed
    leaveAndReturn();
    expectEmptyState();
    list({m.text, u"Image"_s});
    hands->click(u"BtnAImagen"_s);
    pages().setValue(9);
    EXPECT_EQ(where(), u"9/11 33-36+"_s);
    const QString shown = hands->dump(), page = hands->page();
    leaveAndReturn();
    EXPECT_EQ(hands->dump().toStdString(), shown.toStdString());
    EXPECT_EQ(hands->page(), page);
    auto& items = hands->get<forms::CheckList>(u"List"_s);
    for (int i = 0; i < items.ListCount(); ++i)
        EXPECT_EQ(items.Selected(i), items.List(i) == m.text || items.List(i) == u"Image"_s);
    EXPECT_EQ(hands->text(u"LabNumCampos"_s), u"2"_s);

    hands->go(m.screen(shell::Function::Add));
    select(u" WHERE Id < 22"_s); // fewer pages than the one remembered
    open();
    EXPECT_EQ(where(), u"6/6 21-21"_s);
    EXPECT_EQ(hands->text(u"LabNumRegSeleccion"_s), u"21"_s);
    hands->go(m.screen(shell::Function::Add));
    select(u" WHERE Id < 3"_s); // one page: its bar does not move
    open();
    EXPECT_EQ(where(), u"1/1 1-2"_s);
    EXPECT_EQ(memory(m.kind).MemoLis.Posicion, 1);
}

TEST_P(Pages, AreEmptyWithoutATickAndWithoutARecord) {
    begin(21);
    expectEmptyState();
    list({m.first});
    EXPECT_EQ(where(), u"1/2 1-20+"_s);
    list({});
    expectEmptyState();
    EXPECT_EQ(hands->text(u"LabNumCampos"_s), u"0"_s);
    list({m.first});
    EXPECT_TRUE(program->store.memory.dump().contains(u"(0) = True"_s));
    select(u" WHERE Id > 99"_s);
    hands->click(u"BtnListar"_s);
    expectEmptyState();
    EXPECT_EQ(hands->text(u"LabNumCampos"_s), u"1"_s);

    // Records go while the ticks stand: the bars are disabled, nothing is drawn, and a new list helps.
    select(QString());
    list({m.first});
    hands->go(m.screen(shell::Function::Add));
    select(u" WHERE Id > 99"_s);
    open();
    EXPECT_FALSE(hands->isEnabled(u"VScroll"_s));
    EXPECT_EQ(grid().Rows(), 0);
    select(QString());
    hands->click(u"BtnListar"_s);
    EXPECT_EQ(where(), u"1/2 1-20+"_s);
}

INSTANTIATE_TEST_SUITE_P(Members, Pages, ::testing::ValuesIn(test::members()), test::memberName);

} // namespace
