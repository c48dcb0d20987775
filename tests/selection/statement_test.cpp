// What the filters make of the words and values: the statement for the channel, the readable text, the rows they find.
#include "selection/select_desk.h"

using namespace zv;
using namespace Qt::StringLiterals;

namespace {

class SelectComposer : public test::SelectDesk {
  protected:
    SelectComposer() : SelectDesk(test::members().front()) {}
};

TEST_F(SelectComposer, OpensParenthesesOnTheLeft) {
    put({u"Compositor"_s,
         u"Apellidos, Fecha1, Fecha2, Notas"_s,
         {u"'A', 1710, 1790, 'opera'"_s, u"'B', 1710, 1810, 'opera'"_s, u"'C', 1710, 1810, ''"_s,
          u"'D', 1600, 1660, ''"_s, u"'E', 1690, 1830, 'opera'"_s}});
    start();
    open();
    selectOne(u"Date 1"_s, u"Bigger than"_s, u"1700"_s);
    EXPECT_EQ(selection().ValorFiltro, u"Date 1 Bigger than '1700'"_s);
    hands->click(u"BtnY"_s);
    add(u"Notes"_s, u"Contains"_s, u"opera"_s);
    EXPECT_EQ(selection().OpcionSQL, u"(Fecha1 > 1700 AND Notas LIKE '*opera*')"_s);
    EXPECT_EQ(selection().ValorFiltro, u"(Date 1 Bigger than '1700' AND Notes Contains 'opera') "_s);
    EXPECT_EQ(selection().Lista, u"Date 1#Bigger than#'1700'#       AND#Notes#Contains#'opera'#"_s);
    hands->click(u"BtnO"_s);
    add(u"Date 2"_s, u"Smaller than"_s, u"1800"_s);
    EXPECT_EQ(selection().OpcionSQL, u"((Fecha1 > 1700 AND Notas LIKE '*opera*') OR Fecha2 < 1800)"_s);
    const QString words = u"((Date 1 Bigger than '1700' AND Notes Contains 'opera')  OR Date 2 Smaller than '1800') "_s;
    EXPECT_EQ(selection().ValorFiltro, words);
    order(u"Date 1"_s, u"Descending"_s);
    accept();
    EXPECT_EQ(statement(), u"SELECT * FROM Compositor WHERE ((Fecha1 > 1700 AND Notas LIKE '*opera*') OR Fecha2 < "
                           "1800) ORDER BY Fecha1 DESC"_s);
    EXPECT_EQ(ids(), u"1 2 4"_s);
    EXPECT_EQ(selection().ValorFiltro, words);
    EXPECT_EQ(hands->text(u"LabOpcionSQL"_s), words);
    EXPECT_EQ(hands->get<forms::Memo>(u"LabOpcionSQL"_s).ToolTipText(), words);
}

class SelectRows : public test::SelectDesk, public ::testing::WithParamInterface<test::Member> {
  protected:
    SelectRows() : SelectDesk(GetParam()) {}
    void SetUp() override {
        fill();
        start();
        open();
    }
};

TEST_P(SelectRows, FindsByEachCriterion) {
    struct Case {
        QString field, criterion, value, found;
    };
    for (const Case& c : {
             // Case is ignored, an accent is not.
             Case{m.text, u"Same as"_s, u"VEGA"_s, u"1 2"_s},
             Case{m.text, u"Contains"_s, u"EG"_s, u"1 2"_s},
             Case{m.text, u"Does not contain"_s, u"eg"_s, u"3 4 5 6"_s},
             Case{m.text, u"Smaller than"_s, u"b"_s, u"4 6"_s},
             Case{m.text, u"Bigger than"_s, u"w"_s, u"5"_s},
             Case{u"Notes"_s, u"Contains"_s, u"opera"_s, u"1 2"_s},
             Case{u"Notes"_s, u"Does not contain"_s, u"opera"_s, u"3 4 5 6"_s},
             Case{m.number, u"Same as"_s, u"1700"_s, u"5"_s},
             Case{m.number, u"Contains"_s, u"17"_s, u"3 5"_s},
             Case{m.number, u"Does not contain"_s, u"17"_s, u"1 2 4 6"_s},
             Case{m.number, u"Smaller than"_s, u"1700"_s, u"1 2"_s},
             Case{m.number, u"Bigger than"_s, u" 1700"_s, u"3 4 6"_s},
             // Letters stand for -1.
             Case{m.number, u"Same as"_s, u"abc"_s, u""_s},
             Case{m.number, u"Smaller than"_s, u"abc"_s, u""_s},
             Case{m.number, u"Bigger than"_s, u"abc"_s, u"1 2 3 4 5 6"_s},
             Case{m.number, u"Contains"_s, u"abc"_s, u""_s},
         }) {
        selectOne(c.field, c.criterion, c.value);
        accept();
        const QString what = c.field + u' ' + c.criterion + u' ' + c.value;
        EXPECT_EQ(ids(), c.found) << what.toStdString();
        const auto count = c.found.isEmpty() ? 0 : c.found.count(u' ') + 1;
        EXPECT_EQ(memory(m.kind).ContSel, count) << what.toStdString();
        EXPECT_EQ(hands->text(u"LabNumReg"_s), QString::number(count)) << what.toStdString();
    }
}

TEST_P(SelectRows, OrdersAllRecordsAndSelectedOnes) {
    const QString all = u"SELECT * FROM "_s + m.table();
    struct Case {
        QString field, criterion, statement, found;
    };
    for (const Case& c : {
             Case{m.text, u"Ascending"_s, u" ORDER BY "_s + m.textColumn + u" ASC"_s, u"6 4 1 2 3 5"_s},
             Case{m.number, u"Descending"_s, u" ORDER BY "_s + m.numberColumn + u" DESC"_s, u"6 4 3 5 1 2"_s},
             Case{m.number, u"Historical"_s, u""_s, u"1 2 3 4 5 6"_s},
         }) {
        hands->click(u"BtnTodo"_s);
        order(c.field, c.criterion);
        accept();
        EXPECT_EQ(statement(), all + c.statement);
        EXPECT_EQ(ids(), c.found);
    }
    EXPECT_EQ(selection().Lista, u"#"_s);
    selectOne(m.number, u"Bigger than"_s, u"1600"_s);
    EXPECT_EQ(hands->text(u"ComboCampoOrden"_s), m.number) << "the ordering accepted last";
    order(m.number, u"Ascending"_s);
    accept();
    const QString where = u" WHERE "_s + m.numberColumn + u" > 1600"_s;
    EXPECT_EQ(statement(), all + where + u" ORDER BY "_s + m.numberColumn + u" ASC"_s);
    EXPECT_EQ(ids(), u"1 5 3 4 6"_s);
    selectOne(m.number, u"Bigger than"_s, u"1600"_s);
    order(m.text, u"Historical"_s);
    accept();
    EXPECT_EQ(statement(), all + where);
    EXPECT_EQ(ids(), u"1 3 4 5 6"_s);
    leaveAndReturn();
    EXPECT_EQ(hands->text(u"ComboCampoOrden"_s), m.text) << "kept though nothing was ordered by it";
}

TEST_P(SelectRows, RefusesAFilterWithoutAValueInSilence) {
    hands->click(u"BtnNueva"_s);
    const QString before = program->store.memory.dump();
    hands->click(u"BtnAnadir"_s); // the placeholder is no value
    add(m.text, u"Same as"_s, QString());
    add(m.text, u"Same as"_s, u"   "_s);
    EXPECT_EQ(program->store.memory.dump(), before);
    EXPECT_EQ(hands->text(u"LabNumFiltros"_s), u"0"_s);
    add(m.text, u"Same as"_s, u" x "_s);
    EXPECT_EQ(selection().OpcionSQL, m.textColumn + u" = ' x '"_s);
    hands->click(u"BtnY"_s);
    hands->type(u"TxtValFiltro"_s, QString(200, u'9'));
    EXPECT_EQ(hands->text(u"TxtValFiltro"_s).size(), m.info().valueLimit);
}

INSTANTIATE_TEST_SUITE_P(Members, SelectRows, ::testing::ValuesIn(test::members()), test::memberName);

} // namespace
