// What the tests of the Select screens share: a small catalogue, filters composed by hand, and the screen as one text.
#pragma once

#include "store/messages.h"
#include "support/desk.h"
#include "support/members.h"

namespace zv::test {

using namespace Qt::StringLiterals;

class SelectDesk : public Desk {
  protected:
    explicit SelectDesk(const Member& member) : m(member) {}

    /// Six records: case, accents, a year that is missing, and a "#".
    void fill() {
        put({m.table(),
             m.textColumn + u", "_s + m.numberColumn + u", Notas"_s,
             {u"'Vega', 1685, 'an opera'"_s, u"'vega', 0, 'OPERA in two acts'"_s, u"'Véga', 1750, ''"_s,
              u"'Arriaga', 1806, 'opéra'"_s, u"'Zubiri', 1700, 'none'"_s, u"'1#2', 1900, ''"_s}});
    }
    void open() { hands->go(m.screen(shell::Function::Select)); }
    /// Leaves for another screen and comes back.
    void leaveAndReturn() {
        hands->go(m.screen(shell::Function::Add));
        open();
        hands->screen(m.form("Sel"));
    }
    void compose(const QString& field, const QString& criterion, const QString& value) {
        hands->choose(u"ComboCampo"_s, field);
        hands->choose(u"ComboCriterio"_s, criterion);
        hands->type(u"TxtValFiltro"_s, value);
    }
    void add(const QString& field, const QString& criterion, const QString& value) {
        compose(field, criterion, value);
        hands->click(u"BtnAnadir"_s);
    }
    /// A new selection of one filter.
    void selectOne(const QString& field, const QString& criterion, const QString& value) {
        hands->click(u"BtnNueva"_s);
        add(field, criterion, value);
    }
    /// A further filter on the one before.
    void further(const QString& button, const QString& field, const QString& criterion, const QString& value) {
        hands->click(button);
        add(field, criterion, value);
    }
    void order(const QString& field, const QString& criterion) {
        hands->choose(u"ComboCampoOrden"_s, field);
        hands->choose(u"ComboCriterioOrden"_s, criterion);
    }
    void accept() { hands->click(u"BtnAceptar"_s); }

    const store::SelectionMemory& selection() { return memory(m.kind).MemoSel; }
    QString statement() { return program->store.Data(m.kind).RecordSource; }
    /// Keys of the records on the channel, in order.
    QString ids() {
        const auto keys = program->store.Data(m.kind).Recordset().columnTexts(m.info().key().column.toString());
        return QStringList(keys.begin(), keys.end()).join(u' ');
    }
    QString rows() {
        QStringList shown;
        auto& list = hands->get<forms::ListBox>(u"ListFiltros"_s);
        for (int i = 0; i < list.ListCount(); ++i) shown += list.item(i)->text();
        return shown.join(u'|');
    }
    /// What the screen shows and lets do. "+" behind a list: its placeholder row is in, "-": it is not.
    QString state() {
        const auto chosen = [this](const QString& combo, QStringView placeholder) {
            auto& list = hands->get<forms::Combo>(combo);
            return list.Text().trimmed() + (list.findText(placeholder.toString()) >= 0 ? u" +"_s : u" -"_s);
        };
        const QString empty(14, u' '), criteria(12, u' ');
        QStringList enabled;
        for (const QString& name :
             {u"BtnNueva"_s, u"BtnTodo"_s, u"BtnAnadir"_s, u"BtnY"_s, u"BtnO"_s, u"BtnAceptar"_s, u"ComboCampo"_s,
              u"ComboCriterio"_s, u"TxtValFiltro"_s, u"ComboCampoOrden"_s, u"ComboCriterioOrden"_s})
            if (hands->isEnabled(name)) enabled += name;
        return QStringList{
            u"Filter "_s + chosen(u"ComboCampo"_s, empty + u"FIELD"_s) + u" | "_s +
                chosen(u"ComboCriterio"_s, criteria + u"CRITERIA"_s) + u" | "_s + hands->text(u"TxtValFiltro"_s),
            u"Order "_s + chosen(u"ComboCampoOrden"_s, empty + u"FIELD"_s) + u" | "_s +
                hands->text(u"ComboCriterioOrden"_s),
            u"Rows "_s + rows(),
            u"Text ["_s + hands->text(u"LabOpcionSQL"_s) + u"] tip ["_s +
                hands->get<forms::Memo>(u"LabOpcionSQL"_s).ToolTipText() + u']',
            u"Records "_s + hands->text(u"LabNumRegTotal"_s) + u", filters "_s + hands->text(u"LabNumFiltros"_s) +
                u", accepted "_s + hands->text(u"LabNumReg"_s) + u" by "_s + hands->text(u"LabNumRegFiltros"_s),
            u"Enabled "_s + enabled.join(u' '),
        }
            .join(u'\n');
    }
    /// The same with the member's captions for FIRST, TEXT and NUMBER.
    void expectState(const QStringList& lines) {
        QString wanted = lines.join(u'\n');
        wanted.replace(u"FIRST"_s, m.first).replace(u"TEXT"_s, m.text).replace(u"NUMBER"_s, m.number);
        EXPECT_EQ(state().toStdString(), wanted.toStdString());
    }
    QString nameOf(const char* before, const char* after) const {
        return QLatin1String(before) + m.info().shortName.toString() + QLatin1String(after);
    }

    const Member& m;
};

} // namespace zv::test
