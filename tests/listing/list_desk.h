// What the tests of the List screens share: numbered records, lists of ticked fields, and the page as one text.
#pragma once

#include "support/desk.h"
#include "support/members.h"
#include <QPainter>
#include <QtTest/QTest>

namespace zv::test {

using namespace Qt::StringLiterals;

class ListDesk : public Desk {
  protected:
    explicit ListDesk(const Member& member) : m(member) {}

    void fill(int records) {
        Rows rows{m.table(), m.textColumn + u", "_s + m.numberColumn, {}};
        for (int i = 1; i <= records; ++i) rows.values += u"'Record %1', 1700"_s.arg(i);
        if (records > 0) put(rows);
    }
    void open() { hands->go(m.screen(shell::Function::ListPrint)); }
    void leaveAndReturn() {
        hands->go(m.screen(shell::Function::Add));
        open();
    }
    void list(const QStringList& ticks) {
        hands->tick(ticks);
        hands->click(u"BtnListar"_s);
    }
    /// A selection made elsewhere; "Id" stands for the key.
    void select(QString clause) {
        clause.replace(u" Id "_s, u' ' + m.info().key().column.toString() + u' ');
        auto& data = program->store.Data(m.kind);
        data.RecordSource = u"SELECT * FROM "_s + m.table() + clause;
        data.Refresh();
        if (data.Recordset().RecordCount() != 0) data.Recordset().MoveLast();
        memory(m.kind).ContSel = data.Recordset().RecordCount();
    }

    forms::FlexGrid& grid() { return hands->get<forms::FlexGrid>(u"Tabla"_s); }
    forms::ScrollBar& pages() { return hands->get<forms::ScrollBar>(u"VScroll"_s); }
    forms::ScrollBar& zoom() { return hands->get<forms::ScrollBar>(u"HScroll"_s); }
    forms::Picture& picture(int i) { return hands->get<forms::Picture>(u"Imagen%1"_s.arg(i)); }

    /// Page, number of pages, first and last record on it; "+" with the row that says that more follow.
    QString where() {
        const auto& table = grid();
        const bool more = table.TextMatrix(table.Rows() - 1, 0).isEmpty();
        const QString last = table.TextMatrix(table.Rows() - (more ? 2 : 1), 0);
        EXPECT_EQ(pages().isVisibleTo(hands->screen()), pages().Max() > 1);
        return u"%1/%2 %3-%4"_s.arg(QString::number(pages().Value()), QString::number(pages().Max()),
                                    table.TextMatrix(1, 0), last) +
               (more ? u"+"_s : QString());
    }
    /// Makes the columns wider than the grid; the page that follows has a horizontal bar.
    void widen() {
        grid().setColWidth(1, 10000);
        const int before = zoom().Value();
        zoom().setValue(before == 1 ? 2 : 1);
        zoom().setValue(before);
    }

    const Member& m;
};

} // namespace zv::test
