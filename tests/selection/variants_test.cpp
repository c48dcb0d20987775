// The Select screens that depart from the pattern.
#include "selection/select_desk.h"

using namespace zv;
using namespace Qt::StringLiterals;

namespace {

class SelectWork : public test::SelectDesk {
  protected:
    SelectWork() : SelectDesk(test::memberOf(store::Kind::Obra)) {}
    void SetUp() override {
        put({u"Obra"_s,
             u"Nombre, Opus, TiempoTotal, NumeroMovimientos, Autor, Movimientos"_s,
             {u"'C', '3', 200, 1, 'Z', 'Lento#'"_s, u"'A', '2', 300, 3, 'Y', '#'"_s,
              u"'B', '1', 100, 2, 'X', 'Allegro#Poco lento#'"_s}});
        start();
        open();
    }
    /// Picks a row of the ordering at one go, as the mouse does.
    void orderBy(const QString& caption) {
        auto& list = hands->get<forms::Combo>(u"ComboCampoOrden"_s);
        list.setListIndex(list.findText(caption));
        hands->choose(u"ComboCriterioOrden"_s, u"Ascending"_s);
    }
    QString allOrderedBy(const QString& caption) {
        hands->click(u"BtnTodo"_s);
        orderBy(caption);
        accept();
        return statement().section(u"SELECT * FROM Obra ORDER BY "_s, 1) + u": "_s + ids();
    }
};

TEST_F(SelectWork, OffersItsFields) {
    QStringList filters, orders;
    for (int i = 0; i < 15; ++i) filters += hands->get<forms::Combo>(u"ComboCampo"_s).List(i);
    for (int i = 0; i < 14; ++i) orders += hands->get<forms::Combo>(u"ComboCampoOrden"_s).List(i);
    const QString first = u"Work|No.|Tonality|Opus|Opus No.|Catalogue|Catalogue No.|Date 1|Date 2|Subtitle|Movements|"
                          "Total Time|No. of Movements|"_s;
    EXPECT_EQ(filters.join(u'|'), first + u"Notes|Author"_s);
    EXPECT_EQ(orders.join(u'|'), first + u"Author"_s);
    for (const auto& [field, clause] : {std::pair(u"Movements"_s, u"Movimientos LIKE '*lento*'"_s),
                                        std::pair(u"Total Time"_s, u"TiempoTotal LIKE '*-1*'"_s),
                                        std::pair(u"No. of Movements"_s, u"NumeroMovimientos LIKE '*-1*'"_s),
                                        std::pair(u"Author"_s, u"Autor LIKE '*lento*'"_s)}) {
        selectOne(field, u"Contains"_s, u"lento"_s);
        EXPECT_EQ(selection().OpcionSQL, clause);
    }
    selectOne(u"Movements"_s, u"Contains"_s, u"lento"_s);
    accept();
    EXPECT_EQ(ids(), u"1 3"_s);
}

TEST_F(SelectWork, OrdersByTheColumnsBesideItsWords) {
    EXPECT_EQ(allOrderedBy(u"Author"_s), u"Nombre ASC: 2 3 1"_s) << "the first row was in force";
    // The row is remembered, and stands for no column.
    EXPECT_EQ(selection().CampoOrden, 13);
    leaveAndReturn();
    EXPECT_EQ(hands->text(u"ComboCampoOrden"_s), u"Author"_s);
    const QString before = program->store.memory.dump();
    hands->click(u"BtnTodo"_s);
    accept();
    EXPECT_EQ(program->store.memory.dump(), before);
    EXPECT_TRUE(hands->isEnabled(u"BtnAceptar"_s));

    EXPECT_EQ(allOrderedBy(u"Subtitle"_s), u"Subtitulo ASC: 1 2 3"_s);
    EXPECT_EQ(allOrderedBy(u"Movements"_s), u"TiempoTotal ASC: 3 1 2"_s);
    EXPECT_EQ(allOrderedBy(u"Total Time"_s), u"NumeroMovimientos ASC: 1 3 2"_s);
    EXPECT_EQ(allOrderedBy(u"No. of Movements"_s), u"Autor ASC: 3 2 1"_s);
    hands->click(u"BtnTodo"_s);
    orderBy(u"Opus"_s);
    orderBy(u"Author"_s);
    accept();
    EXPECT_EQ(statement(), u"SELECT * FROM Obra ORDER BY Opus ASC"_s);
    EXPECT_EQ(ids(), u"3 2 1"_s);
    EXPECT_EQ(hands->text(u"ComboCampoOrden"_s), u"Author"_s);
}

TEST_F(SelectWork, KeepsTheSeparatorOutOfAValue) {
    hands->click(u"BtnNueva"_s);
    hands->type(u"TxtValFiltro"_s, u"a#b#"_s);
    EXPECT_EQ(hands->text(u"TxtValFiltro"_s), u"ab"_s);
    hands->type(u"TxtValFiltro"_s, {});
    hands->paste(u"TxtValFiltro"_s, u"#1##2 # 3#"_s);
    EXPECT_EQ(hands->text(u"TxtValFiltro"_s), u"12  3"_s);
    hands->click(u"BtnAnadir"_s);
    EXPECT_EQ(selection().OpcionSQL, u"Nombre = '12  3'"_s);
    EXPECT_EQ(selection().Lista, u"Work#Same as#'12  3'#"_s);
    hands->click(u"BtnO"_s);
    hands->paste(u"TxtValFiltro"_s, QString(80, u'x'));
    EXPECT_EQ(hands->text(u"TxtValFiltro"_s).size(), 75);
}

class SelectOrchestra : public test::SelectDesk {
  protected:
    SelectOrchestra() : SelectDesk(test::memberOf(store::Kind::Orquesta)) {}
    void SetUp() override {
        put({u"Orquesta"_s,
             u"OrqGrpCor, Nombre, Fecha, Genero"_s,
             {u"'2', 'Vega', 1850, 'x'"_s, u"'2', 'La vega', 1950, ''"_s, u"'3', 'Vega', 1950, ''"_s,
              u"'1', 'Vega', 1950, ''"_s, u"'3', 'vegas', 1990, 'x'"_s, u"'1', 'Otra', 1800, 'x'"_s}});
        start();
        open();
    }
};

TEST_F(SelectOrchestra, CarriesTheKindOfBodyWithAName) {
    selectOne(u"Ensemble"_s, u"Contains"_s, u"vega"_s);
    EXPECT_EQ(selection().OpcionSQL, u"Nombre LIKE '*vega*' AND OrqGrpCor='2'"_s);
    accept();
    EXPECT_EQ(ids(), u"1 2"_s);

    selectOne(u"Ensemble"_s, u"Contains"_s, u"vega"_s);
    further(u"BtnO"_s, u"Choir"_s, u"Same as"_s, u"Vega"_s);
    EXPECT_EQ(selection().OpcionSQL,
              u"(Nombre LIKE '*vega*' AND OrqGrpCor='2' OR Nombre = 'Vega' AND OrqGrpCor='3')"_s);
    accept();
    EXPECT_EQ(ids(), u"1 2 3"_s) << "AND binds tighter";

    selectOne(u"Ensemble"_s, u"Contains"_s, u"vega"_s);
    further(u"BtnO"_s, u"Choir"_s, u"Same as"_s, u"Vega"_s);
    further(u"BtnY"_s, u"Date"_s, u"Bigger than"_s, u"1900"_s);
    EXPECT_EQ(selection().OpcionSQL, u"((Nombre LIKE '*vega*' AND OrqGrpCor='2' OR Nombre = 'Vega' AND OrqGrpCor='3') "
                                     "AND Fecha > 1900)"_s);
    EXPECT_EQ(selection().ValorFiltro,
              u"((Ensemble Contains 'vega' OR Choir Same as 'Vega')  AND Date Bigger than '1900') "_s);
    accept();
    EXPECT_EQ(ids(), u"2 3"_s);

    selectOne(u"Date"_s, u"Smaller than"_s, u"1900"_s);
    further(u"BtnO"_s, u"Orchestra"_s, u"Does not contain"_s, u"otra"_s);
    EXPECT_EQ(selection().OpcionSQL, u"(Fecha < 1900 OR Nombre NOT LIKE '*otra*' AND OrqGrpCor='1')"_s);
    accept();
    EXPECT_EQ(ids(), u"1 4 6"_s);
}

TEST_F(SelectOrchestra, CarriesItWithNothingElse) {
    selectOne(u"Choir"_s, u"Contains"_s, u"vega"_s);
    further(u"BtnO"_s, u"Gender"_s, u"Same as"_s, u"x"_s);
    EXPECT_EQ(selection().OpcionSQL, u"(Nombre LIKE '*vega*' AND OrqGrpCor='3' OR Genero = 'x')"_s);
    accept();
    EXPECT_EQ(ids(), u"1 3 5 6"_s);
    selectOne(u"Choir"_s, u"Same as"_s, u"1#2"_s);
    further(u"BtnY"_s, u"Notes"_s, u"Contains"_s, u"y"_s);
    EXPECT_EQ(selection().OpcionSQL, u"(Nombre = '1#2' AND OrqGrpCor='3' AND Notas LIKE '*y*')"_s);
    for (const QString& name : {u"Orchestra"_s, u"Ensemble"_s, u"Choir"_s}) {
        hands->click(u"BtnTodo"_s);
        order(name, u"Ascending"_s);
        accept();
        EXPECT_EQ(statement(), u"SELECT * FROM Orquesta ORDER BY Nombre ASC"_s);
    }
    EXPECT_EQ(ids(), u"2 6 1 3 4 5"_s);
}

class SelectInternet : public test::SelectDesk {
  protected:
    SelectInternet() : SelectDesk(test::memberOf(store::Kind::Internet)) {}
};

TEST_F(SelectInternet, ReadsTheNumberOfALaterFilter) {
    put({u"Internet"_s, u"Titulo, Fecha"_s, {u"'a', 2001"_s, u"'b', 2002"_s}});
    start();
    open();
    const QString performers = u"MemoSelIntLista = \"#\""_s;
    selectOne(u"Date"_s, u"Bigger than"_s, u"02001"_s);
    EXPECT_EQ(selection().OpcionSQL, u"Fecha > 02001"_s);
    const QString first = u"(Fecha > 02001 AND "_s;
    struct Case {
        QString criterion, value, clause;
    };
    for (const Case& c :
         {Case{u"Bigger than"_s, u"02001"_s, u"Fecha > 2001)"_s},
          Case{u"Smaller than"_s, u" 1e3"_s, u"Fecha < 1000)"_s}, Case{u"Same as"_s, u"MMI"_s, u"Fecha = -1)"_s},
          Case{u"Contains"_s, u"02001"_s, u"Fecha LIKE '*02001*')"_s}}) {
        selectOne(u"Date"_s, u"Bigger than"_s, u"02001"_s);
        further(u"BtnY"_s, u"Date"_s, c.criterion, c.value);
        EXPECT_EQ(selection().OpcionSQL, first + c.clause);
        EXPECT_EQ(selection().ValorFiltro, u"(Date Bigger than '02001' AND Date %1 '%2') "_s.arg(c.criterion, c.value));
    }
    selectOne(u"Date"_s, u"Bigger than"_s, u"02001"_s);
    accept();
    EXPECT_EQ(ids(), u"2"_s);
    EXPECT_EQ(program->store.memory.dump().count(performers), 1) << "the performers have a selection of their own";
}

} // namespace
