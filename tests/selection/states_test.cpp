// The states of a Select screen: what is enabled, what a return finds, what an error leaves, what other screens keep.
#include "selection/select_desk.h"

using namespace zv;
using namespace Qt::StringLiterals;

namespace {

const QString Value = u"          FILTER Value"_s;
const QString IdleButtons = u"Enabled BtnNueva BtnTodo"_s;
const QString Untouched = u"Records 6, filters 0, accepted 6 by 0"_s;
const QString ValueHere = u"Filter FIRST - | Same as - | "_s + Value;
const QString NoValue = u"Filter FIELD + | CRITERIA + | "_s + Value;

class Select : public test::SelectDesk, public ::testing::WithParamInterface<test::Member> {
  protected:
    Select() : SelectDesk(GetParam()) {}
    void SetUp() override {
        fill();
        start();
        open();
    }
    void expectUntouched() {
        expectState(
            {NoValue, u"Order FIELD + | Historical"_s, u"Rows "_s, u"Text [] tip []"_s, Untouched, IdleButtons});
    }
};

TEST_P(Select, GoesFromStateToStateAndComesBackToThem) {
    expectUntouched();
    const QString fresh = program->store.memory.dump();

    hands->click(u"BtnNueva"_s);
    const QStringList composing = {
        ValueHere,  u"Order FIELD + | Historical"_s,
        u"Rows "_s, u"Text [] tip []"_s,
        Untouched,  u"Enabled BtnNueva BtnTodo BtnAnadir ComboCampo ComboCriterio TxtValFiltro"_s};
    expectState(composing);
    hands->click(u"BtnNueva"_s);
    expectState(composing);
    compose(m.text, u"Contains"_s, u"half typ"_s);
    leaveAndReturn();
    expectUntouched();
    EXPECT_EQ(program->store.memory.dump(), fresh);

    selectOne(m.text, u"Contains"_s, u"eg"_s);
    QStringList added = {
        NoValue,
        u"Order FIRST - | Historical"_s,
        u"Rows TEXT|Contains|'eg'"_s,
        u"Text [] tip []"_s,
        u"Records 6, filters 1, accepted 6 by 0"_s,
        u"Enabled BtnNueva BtnTodo BtnY BtnO BtnAceptar ComboCampoOrden ComboCriterioOrden"_s,
    };
    expectState(added);
    leaveAndReturn();
    added[3] = u"Text [] tip [Filters]"_s; // the text comes with the acceptance
    expectState(added);

    hands->click(u"BtnO"_s);
    QStringList further = added;
    further[0] = ValueHere;
    further[5] = u"Enabled BtnNueva BtnTodo BtnAnadir BtnAceptar ComboCampo ComboCriterio TxtValFiltro"_s;
    expectState(further);
    compose(m.number, u"Bigger than"_s, u"18"_s);
    leaveAndReturn();
    expectState(added);

    hands->click(u"BtnO"_s);
    add(m.number, u"Bigger than"_s, u"1800"_s);
    order(m.number, u"Descending"_s);
    const QString before = program->store.memory.dump();
    accept();
    const QString words = u"(TEXT Contains 'eg' OR NUMBER Bigger than '1800') "_s;
    const QStringList accepted = {NoValue,
                                  u"Order NUMBER - | Descending"_s,
                                  u"Rows TEXT|Contains|'eg'|       OR|NUMBER|Bigger than|'1800'"_s,
                                  u"Text ["_s + words + u"] tip ["_s + words + u']',
                                  u"Records 6, filters 2, accepted 4 by 2"_s,
                                  IdleButtons};
    expectState(accepted);
    EXPECT_EQ(ids(), u"6 4 1 2"_s);
    const int row = hands->get<forms::Combo>(u"ComboCampoOrden"_s).findText(m.number);
    EXPECT_EQ(changesSince(before),
              QStringList({u"ContSel"_s + m.table() + u" = 4"_s, u"ContFil"_s + m.table() + u" = 2"_s,
                           nameOf("MemoSel", "NT = 2"), nameOf("MemoSel", "OpcionSQL = \"\""),
                           nameOf("MemoSel", "CampoOrden = ") + QString::number(row),
                           nameOf("MemoSel", "CriterioOrden = 1")}));
    leaveAndReturn();
    expectState(accepted);

    hands->click(u"BtnTodo"_s);
    QStringList all = accepted;
    all[2] = u"Rows "_s;
    all[3] = u"Text [] tip ["_s + words + u']';
    all[4] = u"Records 6, filters 0, accepted 4 by 2"_s;
    all[5] = u"Enabled BtnNueva BtnTodo BtnAceptar ComboCampoOrden ComboCriterioOrden"_s;
    expectState(all);
    EXPECT_EQ(hands->get<forms::TextBox>(u"TxtValFiltro"_s).ToolTipText(), QString());
    leaveAndReturn();
    expectState(accepted);
    EXPECT_EQ(hands->get<forms::TextBox>(u"TxtValFiltro"_s).ToolTipText(), u"Insert Value"_s);

    hands->click(u"BtnTodo"_s);
    accept();
    all[3] = u"Text [] tip []"_s;
    all[4] = u"Records 6, filters 0, accepted 6 by 0"_s;
    all[5] = IdleButtons;
    expectState(all);
    leaveAndReturn();
    expectState(all);
}

TEST_P(Select, AcceptsInTheMiddleOfAFurtherFilter) {
    selectOne(m.text, u"Contains"_s, u"eg"_s);
    hands->click(u"BtnY"_s);
    compose(m.number, u"Smaller than"_s, u"1000"_s);
    accept();
    EXPECT_EQ(statement(), u"SELECT * FROM %1 WHERE %2 LIKE '*eg*'"_s.arg(m.table(), m.textColumn));
    expectState({NoValue, u"Order FIRST - | Historical"_s, u"Rows TEXT|Contains|'eg'"_s,
                 u"Text [TEXT Contains 'eg'] tip [TEXT Contains 'eg']"_s, u"Records 6, filters 1, accepted 2 by 1"_s,
                 IdleButtons});
}

TEST_P(Select, TellsTheErrorOfAnApostropheAndGoesBackToAllRecords) {
    selectOne(m.number, u"Bigger than"_s, u"1700"_s);
    order(m.text, u"Ascending"_s);
    accept();
    memory(m.kind).Posicion = 2;
    leaveAndReturn();
    selectOne(m.text, u"Same as"_s, u"O'Brien"_s);
    const QString before = program->store.memory.dump();
    boxes.expect(u"Has occurred Error: 3075"_s, box::Critical);
    accept();
    EXPECT_EQ(statement(), u"SELECT * FROM "_s + m.table() + u' ');
    EXPECT_EQ(ids(), u"1 2 3 4 5 6"_s);
    // The counters, the position and the ordering still tell of the selection before.
    EXPECT_EQ(changesSince(before),
              QStringList({nameOf("MemoSel", "NT = 2"), nameOf("MemoSel", "OpcionSQL = \"\""),
                           nameOf("MemoSel", "ValorFiltro = \"\""), nameOf("MemoSel", "Lista = \"#\"")}));
    QStringList failed = {NoValue,
                          u"Order TEXT - | Ascending"_s,
                          u"Rows TEXT|Same as|'O'Brien'"_s,
                          u"Text [] tip [NUMBER Bigger than '1700']"_s,
                          u"Records 6, filters 1, accepted 3 by 1"_s,
                          IdleButtons};
    expectState(failed);
    leaveAndReturn();
    failed[2] = u"Rows "_s;
    failed[3] = u"Text [] tip []"_s;
    expectState(failed);
    // A number as IsNumeric reads it, but not the statement.
    selectOne(m.number, u"Same as"_s, u"1,700"_s);
    boxes.expect(u"Has occurred Error: 3075"_s, box::Critical);
    accept();
    selectOne(m.number, u"Same as"_s, u"1700"_s);
    accept();
    EXPECT_EQ(ids(), u"5"_s) << "a good selection after the bad ones";
}

TEST_P(Select, SplitsARowAtANumberSignButFindsTheRecord) {
    selectOne(m.text, u"Same as"_s, u"1#2"_s);
    leaveAndReturn();
    expectState({NoValue, u"Order FIRST - | Historical"_s, u"Rows TEXT|Same as|'1|2'"_s, u"Text [] tip [Filters]"_s,
                 u"Records 6, filters 1.25, accepted 6 by 0"_s,
                 u"Enabled BtnNueva BtnTodo BtnY BtnO BtnAceptar ComboCampoOrden ComboCriterioOrden"_s});
    accept();
    EXPECT_EQ(ids(), u"6"_s);
    EXPECT_EQ(memory(m.kind).ContFil, 1);
}

TEST_P(Select, TakesTwentyFiltersAndSaysSoOnce) {
    hands->click(u"BtnNueva"_s);
    for (int i = 1; i <= 20; ++i) {
        if (i > 1) hands->click(i % 2 ? u"BtnY"_s : u"BtnO"_s);
        if (i == 20) boxes.expect(u"20 Filters Maximum."_s, box::Warning);
        hands->type(u"TxtValFiltro"_s, i == 20 ? u"Vega"_s : u"none %1"_s.arg(i));
        hands->click(u"BtnAnadir"_s);
    }
    boxes.checkAllShown();
    for (int visit = 0; visit < 2; ++visit) {
        EXPECT_EQ(hands->text(u"LabNumFiltros"_s), u"20"_s);
        EXPECT_EQ(hands->get<forms::ListBox>(u"ListFiltros"_s).ListCount(), 79);
        EXPECT_FALSE(hands->isEnabled(u"BtnY"_s) || hands->isEnabled(u"BtnO"_s));
        EXPECT_TRUE(hands->isEnabled(u"BtnAceptar"_s));
        leaveAndReturn();
    }
    accept();
    EXPECT_EQ(memory(m.kind).ContFil, 20);
    EXPECT_EQ(selection().NT, 2);
}

TEST_P(Select, AcceptsThatNothingIsFound) {
    selectOne(m.text, u"Same as"_s, u"nobody"_s);
    accept();
    const QStringList none = {NoValue,
                              u"Order FIRST - | Historical"_s,
                              u"Rows TEXT|Same as|'nobody'"_s,
                              u"Text [TEXT Same as 'nobody'] tip [TEXT Same as 'nobody']"_s,
                              u"Records 6, filters 1, accepted 0 by 1"_s,
                              IdleButtons};
    expectState(none);
    hands->go(m.screen(shell::Function::ShowEdit));
    hands->go(m.screen(shell::Function::ListPrint));
    hands->tickAll();
    hands->click(u"BtnListar"_s);
    EXPECT_EQ(hands->get<forms::FlexGrid>(u"Tabla"_s).Rows(), 0);
    open();
    expectState(none);
}

TEST_P(Select, SurvivesTheOtherScreens) {
    selectOne(m.number, u"Bigger than"_s, u"1700"_s);
    order(m.number, u"Descending"_s);
    accept();
    selectOne(m.text, u"Same as"_s, u"under construction"_s);
    const QString memo = program->store.memory.dump(), query = statement();
    for (const shell::Function function : {shell::Function::ShowEdit, shell::Function::ListPrint}) {
        hands->go(m.screen(function));
        EXPECT_EQ(ids(), u"6 4 3"_s);
        open();
        EXPECT_EQ(program->store.memory.dump(), memo);
        EXPECT_EQ(statement(), query);
    }
}

TEST_P(Select, EmptiesTheValueOnlyWhenTheUserMovesToIt) {
    hands->click(u"BtnNueva"_s);
    hands->type(u"TxtValFiltro"_s, u"Vega"_s);
    auto& box = hands->get<forms::TextBox>(u"TxtValFiltro"_s);
    for (const Qt::FocusReason reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
        QFocusEvent out(QEvent::FocusOut, reason), in(QEvent::FocusIn, reason);
        QCoreApplication::sendEvent(&box, &out);
        QCoreApplication::sendEvent(&box, &in);
        EXPECT_EQ(box.Text(), u"Vega"_s) << reason;
    }
    hands->get<forms::Combo>(u"ComboCriterio"_s).setFocus();
    EXPECT_EQ(box.Text(), u"Vega"_s);
    box.setFocus(Qt::TabFocusReason);
    EXPECT_EQ(box.Text(), QString());
}

INSTANTIATE_TEST_SUITE_P(Members, Select, ::testing::ValuesIn(test::members()), test::memberName);

} // namespace
