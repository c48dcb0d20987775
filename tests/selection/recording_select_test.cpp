// The Select screen of the recordings: the statement that filters on seven tables make, what drops out of it, what a
// return loses, and how the other channels stand afterwards.
#include "selection/select_desk.h"
#include "support/kind_words.h"

using namespace zv;
using namespace Qt::StringLiterals;
using store::Kind;

namespace {

const QString All = u"SELECT * FROM Grabacion"_s;

class RecordingSelect : public test::SelectDesk {
  protected:
    RecordingSelect() : SelectDesk(test::memberOf(Kind::Grabacion)) {}
    /// Nine recordings; 4 and 5 have the same composer and work, 4 and 9 the same conductor.
    void fill() {
        put({u"Compositor"_s, u"Apellidos, Fecha1"_s, {u"'Vega', 1600"_s, u"'Ruiz', 1750"_s, u"'Sol', 1650"_s}});
        put({u"Obra"_s,
             u"Nombre"_s,
             {u"'Trio'"_s, u"'Trio'"_s, u"'Trio'"_s, u"'Trio'"_s, u"'Trio'"_s, u"'Trio'"_s, u"'Sonata'"_s}});
        put({u"Director"_s, u"Apellidos"_s, {u"'Bach'"_s, u"'Vega'"_s, u"'Idle'"_s}});
        put({u"Orquesta"_s, u"Nombre"_s, {u"'York'"_s, u"'New York'"_s}});
        put({u"Interprete"_s, u"Nombre"_s, {u"'Ana'"_s, u"'Eva'"_s}});
        put({u"Soporte"_s, u"Discografica"_s, {u"'Acme'"_s, u"'Zeta'"_s}});
        put({u"Grabacion"_s,
             u"IdCompositor, IdObra, IdSoporte, Notas"_s,
             {u"2, 1, 1, 'live'"_s, u"3, 1, 1, ''"_s, u"3, 2, 2, 'Live tape'"_s, u"1, 7, 1, ''"_s, u"1, 7, 1, ''"_s,
              u"3, 3, 1, ''"_s, u"3, 4, 1, ''"_s, u"3, 5, 1, ''"_s, u"3, 6, 1, ''"_s}});
        put({u"RelacionDirector"_s, u"IdGrabacion, IdDirector"_s, {u"5, 1"_s, u"4, 2"_s, u"9, 2"_s}});
        put({u"RelacionOrquesta"_s, u"IdGrabacion, IdOrquesta"_s, {u"6, 2"_s, u"2, 1"_s}});
        put({u"RelacionInterprete"_s, u"IdGrabacion, IdInterprete"_s, {u"3, 1"_s, u"1, 1"_s, u"NULL, 1"_s}});
    }
    void begin() {
        fill();
        start();
        open();
    }
    QString source(Kind kind) { return program->store.Data(kind).RecordSource; }
};

TEST_F(RecordingSelect, MakesOneStatementOfFiltersOnSeveralTables) {
    begin();
    selectOne(u"COM Surname"_s, u"Contains"_s, u"vega"_s);
    further(u"BtnO"_s, u"COM Date 1"_s, u"Bigger than"_s, u"1700"_s);
    further(u"BtnY"_s, u"CON Surname"_s, u"Same as"_s, u"Vega"_s);
    further(u"BtnY"_s, u"WOR Work"_s, u"Contains"_s, u"sonata"_s);
    const QString words = u"(((COM Surname Contains 'vega' OR COM Date 1 Bigger than '1700')  AND CON Surname Same as "
                          "'Vega')  AND WOR Work Contains 'sonata') "_s;
    const auto& clauses = selection().Opciones;
    EXPECT_EQ(QStringList(clauses.begin(), clauses.end()).join(u'|'),
              u"(Apellidos LIKE '*vega*' OR Fecha1 > 1700)|Nombre LIKE '*sonata*'||Apellidos = 'Vega'|||"_s);
    EXPECT_EQ(selection().ValorFiltro, words);
    EXPECT_EQ(selection().Lista, u"COM Surname#Contains#'vega'#       OR#COM Date 1#Bigger than#'1700'#       AND#CON "
                                 "Surname#Same as#'Vega'#       AND#WOR Work#Contains#'sonata'#"_s);
    // The conductors' list stands bare: recording 9 comes in on its own.
    accept();
    EXPECT_EQ(statement(),
              All + u" WHERE ((IdCompositor=1 OR IdCompositor=2) AND (IdObra=7) AND IDGrabacion=4 OR IDGrabacion=9)"_s);
    EXPECT_EQ(ids(), u"4 9"_s);
    EXPECT_EQ(hands->text(u"LabNumReg"_s) + hands->text(u"LabNumRegFiltros"_s), u"24"_s);
    EXPECT_EQ(memory(Kind::Grabacion).ContSel, 2);
    EXPECT_EQ(memory(Kind::Grabacion).ContFil, 4);
    EXPECT_EQ(selection().NT, 2);
    EXPECT_EQ(selection().ValorFiltro, words);
    EXPECT_EQ(QStringList(clauses.begin(), clauses.end()).join(QString()), QString());
    EXPECT_EQ(selection().CampoOrden, -1);
    leaveAndReturn();
    EXPECT_EQ(hands->text(u"LabOpcionSQL"_s), words);
    EXPECT_EQ(hands->text(u"ComboCampoOrden"_s), u"              FIELD"_s);
    EXPECT_EQ(hands->text(u"ComboCriterioOrden"_s), u"Histórical"_s);
}

TEST_F(RecordingSelect, OffersTheFieldsOfSevenTables) {
    begin();
    const std::vector<QString> clauses{u"Compositor"_s, u"Obra"_s,       u"Orquesta"_s,
                                       u"Director"_s,   u"Interprete"_s, u"Soporte"_s};
    QStringList captions, offered;
    auto& list = hands->get<forms::Combo>(u"ComboCampo"_s);
    for (int i = 0; i < list.ListCount(); ++i) offered += list.List(i);
    for (const test::RecordingField& field : test::recordingFields()) {
        captions += field.caption;
        selectOne(field.caption, u"Smaller than"_s, u"XVIII"_s);
        EXPECT_EQ(hands->text(u"ComboCampoOrden"_s) + hands->text(u"ComboCriterioOrden"_s), u"FieldHistórical"_s);
        const auto at = std::size_t(std::find(clauses.begin(), clauses.end(), field.table) - clauses.begin());
        if (at == clauses.size()) continue;
        for (std::size_t i = 0; i < clauses.size(); ++i)
            EXPECT_EQ(selection().Opciones[i],
                      i != at ? QString() : field.column + (field.numeric ? u" < -1"_s : u" < 'XVIII'"_s));
    }
    EXPECT_EQ(offered, captions + QStringList{u"              FIELD"_s});
    hands->click(u"BtnNueva"_s);
    hands->paste(u"TxtValFiltro"_s, u"a#b##"_s + QString(200, u'c'));
    EXPECT_EQ(hands->text(u"TxtValFiltro"_s).left(3), u"abc"_s);
    EXPECT_LE(hands->text(u"TxtValFiltro"_s).size(), 75);
}

TEST_F(RecordingSelect, JoinsTheListsOfAllTablesBehindTheNotes) {
    begin();
    const auto select = [this](const QString& notes) {
        selectOne(u"ORC Orc-Ens-Cho"_s, u"Contains"_s, u"York"_s);
        further(u"BtnY"_s, u"CON Surname"_s, u"Contains"_s, u"a"_s);
        further(u"BtnY"_s, u"FOR Record Company"_s, u"Same as"_s, u"Acme"_s);
        further(u"BtnY"_s, u"PER Name"_s, u"Same as"_s, u"Ana"_s);
        further(u"BtnY"_s, u"WOR Work"_s, u"Same as"_s, u"Sonata"_s);
        further(u"BtnY"_s, u"COM Surname"_s, u"Contains"_s, u"e"_s);
        further(u"BtnY"_s, u"REC Notes"_s, u"Same as"_s, notes);
    };
    memory(Kind::Grabacion).Posicion = 5;
    select(u"live"_s);
    accept();
    EXPECT_EQ(statement(), All + u" WHERE ((Notas  = 'live') AND (IdCompositor=1) AND (IdObra=7) AND (IDGrabacion =3 "
                                 "OR IDGrabacion =1) AND (IdSoporte=1) AND IDGrabacion=5 OR IDGrabacion=4 OR "
                                 "IDGrabacion=9 AND IDGrabacion=6 OR IDGrabacion=2)"_s);
    EXPECT_EQ(ids(), u"2 4"_s) << "the bare lists stand on their own";
    EXPECT_EQ(memory(Kind::Grabacion).Posicion, 1);
    EXPECT_EQ(program->store.Data(Kind::Grabacion).Recordset().AbsolutePosition(), 0);

    // The statement on the recordings itself fails: every other channel stays where the filters took it.
    select(u"O'Brien"_s);
    boxes.expect(u"Has occurred Error: 3075"_s, box::Critical);
    accept();
    QStringList stand;
    store::Store& store = program->store;
    for (int i = 0; i < 10; ++i)
        stand +=
            store.Data(1, i).RecordSource + u'|' + QString::number(store.Data(1, i).Recordset().AbsolutePosition() + 1);
    EXPECT_EQ(stand.join(u'\n').toStdString(),
              QStringList({
                              u"SELECT * FROM Compositor WHERE Apellidos LIKE '*e*'|1"_s,
                              u"SELECT * FROM Obra WHERE Nombre = 'Sonata'|1"_s,
                              u"SELECT * FROM Director WHERE Apellidos LIKE '*a*'|2"_s,
                              u"SELECT * FROM Orquesta WHERE Nombre LIKE '*York*'|2"_s,
                              u"SELECT * FROM Soporte WHERE Discografica = 'Acme'|1"_s,
                              u"SELECT * FROM Interprete WHERE Nombre = 'Ana'|1"_s,
                              u"SELECT * FROM Grabacion|1"_s,
                              u"SELECT * FROM RelacionDirector WHERE (IdDirector=1 OR IdDirector=2)|3"_s,
                              u"SELECT * FROM RelacionOrquesta WHERE (IdOrquesta=1 OR IdOrquesta=2)|2"_s,
                              u"SELECT * FROM RelacionInterprete WHERE (IdInterprete=1)|3"_s,
                          })
                  .join(u'\n')
                  .toStdString());
    EXPECT_EQ(memory(Kind::Grabacion).ContSel * 100 + memory(Kind::Grabacion).ContFil, 207)
        << "of the selection before";
    EXPECT_EQ(selection().ValorFiltro + selection().Opciones[0] + selection().Lista, u"#"_s);
    EXPECT_EQ(selection().NT, 2);
}

TEST_F(RecordingSelect, WritesTheListOfEachTableInItsOwnWay) {
    begin();
    struct Case {
        QString field, criterion, value, where, found;
    };
    for (const Case& c : {
             Case{u"ORC Orc-Ens-Cho"_s, u"Contains"_s, u"York"_s, u"(IDGrabacion=6 OR IDGrabacion=2)"_s, u"2 6"_s},
             Case{u"PER Name"_s, u"Same as"_s, u"ANA"_s, u"((IDGrabacion =3 OR IDGrabacion =1))"_s, u"1 3"_s},
             Case{u"FOR Record Company"_s, u"Bigger than"_s, u"B"_s, u"((IdSoporte=2))"_s, u"3"_s},
             Case{u"REC Notes"_s, u"Contains"_s, u"live"_s, u"((Notas  LIKE '*live*'))"_s, u"1 3"_s},
             Case{u"COM Date 1"_s, u"Same as"_s, u"none"_s, u"IdGrabacion=-1"_s, u""_s},
             Case{u"CON Surname"_s, u"Same as"_s, u"Idle"_s, u"IdGrabacion=-1"_s, u""_s},
         }) {
        selectOne(c.field, c.criterion, c.value);
        accept();
        EXPECT_EQ(statement(), All + u" WHERE "_s + c.where);
        EXPECT_EQ(ids(), c.found);
    }
    selectOne(u"REC Notes"_s, u"Contains"_s, u"live"_s);
    further(u"BtnO"_s, u"REC Notes"_s, u"Same as"_s, u"Live tape"_s);
    EXPECT_EQ(rows(), u"REC Notes|Contains|'live'|       OR|REC Notes|Same as|'Live tape'"_s);
    accept();
    EXPECT_EQ(statement(), All + u" WHERE ((Notas  = 'Live tape'))"_s);
}

TEST_F(RecordingSelect, WidensTheSelectionByWhatMatchesNothing) {
    begin();
    selectOne(u"COM Surname"_s, u"Same as"_s, u"Sol"_s);
    further(u"BtnY"_s, u"CON Surname"_s, u"Same as"_s, u"Idle"_s);
    accept();
    EXPECT_EQ(statement(), All + u" WHERE ((IdCompositor=3))"_s);
    EXPECT_EQ(ids(), u"2 3 6 7 8 9"_s);
}

TEST_F(RecordingSelect, LosesItsClausesOnAReturn) {
    begin();
    for (const bool another : {false, true}) {
        selectOne(u"COM Surname"_s, u"Same as"_s, u"Sol"_s);
        leaveAndReturn();
        EXPECT_EQ(rows(), u"COM Surname|Same as|'Sol'"_s);
        EXPECT_EQ(hands->text(u"LabNumFiltros"_s), u"1"_s);
        EXPECT_EQ(hands->text(u"ComboCampoOrden"_s), u"Field"_s);
        if (another) further(u"BtnY"_s, u"WOR No. of  Movements"_s, u"Smaller than"_s, u"x"_s);
        if (another) further(u"BtnO"_s, u"FOR Record Company"_s, u"Same as"_s, u"Zeta"_s);
        accept();
        EXPECT_EQ(statement(), All + (another ? u" WHERE ((IdSoporte=2))"_s : u" WHERE IdGrabacion=-1"_s));
        EXPECT_EQ(ids(), another ? u"3"_s : u""_s);
    }
    EXPECT_EQ(selection().ValorFiltro, u"((COM Surname Same as 'Sol' AND WOR No. of  Movements Smaller than 'x')  OR "
                                       "FOR Record Company Same as 'Zeta') "_s);
}

TEST_F(RecordingSelect, SelectsAllAndEmptiesTheComposersList) {
    begin();
    selectOne(u"FOR Record Company"_s, u"Same as"_s, u"Zeta"_s);
    accept();
    hands->go(8);
    selectOne(u"Surname"_s, u"Same as"_s, u"Sol"_s);
    EXPECT_EQ(memory(Kind::Compositor).MemoSel.Lista, u"Surname#Same as#'Sol'#"_s);
    open();
    hands->click(u"BtnTodo"_s);
    EXPECT_EQ(selection().Lista, u"#"_s) << "at once, though the accepted selection stands";
    leaveAndReturn();
    EXPECT_EQ(rows(), QString());
    EXPECT_EQ(hands->text(u"LabNumReg"_s) + hands->text(u"LabNumRegFiltros"_s), u"11"_s);
    EXPECT_EQ(ids(), u"3"_s);
    hands->click(u"BtnTodo"_s);
    EXPECT_NE(memory(Kind::Compositor).MemoSel.Lista, u"#"_s) << "not before it is accepted";
    accept();
    EXPECT_EQ(statement(), All);
    EXPECT_EQ(memory(Kind::Grabacion).ContSel, 9);
    EXPECT_EQ(memory(Kind::Grabacion).ContFil, 0);
    EXPECT_EQ(memory(Kind::Compositor).MemoSel.Lista, u"#"_s);
}

TEST_F(RecordingSelect, PutsTheChannelsBackOnlyWhenAllIsWell) {
    begin();
    memory(Kind::Compositor).Posicion = 2;
    memory(Kind::Obra).Posicion = 40;
    selectOne(u"COM Surname"_s, u"Contains"_s, u"o"_s);
    further(u"BtnY"_s, u"CON Surname"_s, u"Same as"_s, u"Vega"_s);
    accept();
    EXPECT_EQ(ids(), u"9"_s);
    store::Store& store = program->store;
    EXPECT_EQ(source(Kind::Compositor), u"SELECT * FROM Compositor"_s);
    EXPECT_EQ(source(Kind::Director), u"SELECT * FROM Director"_s);
    EXPECT_EQ(store.Data(1, 7).RecordSource, u"SELECT * FROM RelacionDirector"_s);
    EXPECT_EQ(store.Data(1, 7).Recordset().RecordCount(), 3);
    EXPECT_EQ(store.Data(Kind::Compositor).Recordset().AbsolutePosition(), 1);
    EXPECT_EQ(store.Data(Kind::Obra).Recordset().AbsolutePosition(), 6);
    EXPECT_EQ(memory(Kind::Obra).Posicion, 7);

    selectOne(u"COM Surname"_s, u"Contains"_s, u"o"_s);
    further(u"BtnY"_s, u"WOR Work"_s, u"Same as"_s, u"O'Brien"_s);
    boxes.expect(u"Has occurred Error: 3075"_s, box::Critical);
    accept();
    EXPECT_EQ(statement(), All);
    EXPECT_EQ(ids(), u"1 2 3 4 5 6 7 8 9"_s);
    EXPECT_EQ(source(Kind::Compositor), u"SELECT * FROM Compositor WHERE Apellidos LIKE '*o*'"_s);
    EXPECT_EQ(store.Data(Kind::Compositor).Recordset().RecordCount(), 1);
    EXPECT_EQ(memory(Kind::Grabacion).ContSel, 1) << "of the selection before";
    EXPECT_EQ(selection().Lista, u"#"_s);
    EXPECT_EQ(selection().NT, 2);
    selectOne(u"COM Surname"_s, u"Same as"_s, u"Vega"_s);
    accept();
    EXPECT_EQ(ids(), u"4 5"_s) << "a good selection after the bad one";
    EXPECT_EQ(source(Kind::Compositor), u"SELECT * FROM Compositor"_s);
}

TEST_F(RecordingSelect, CountsTheMatchesOfATableInSixteenBits) {
    test::Rows many{u"Obra"_s, u"Nombre"_s, {}};
    for (int i = 0; i < 32767; ++i) many.values += u"'a'"_s;
    many.values += u"'ab'"_s;
    put(many);
    put({u"Grabacion"_s, u"IdObra"_s, {u"32767"_s, u"32768"_s}});
    start();
    open();
    selectOne(u"WOR Work"_s, u"Same as"_s, u"a"_s);
    accept();
    EXPECT_EQ(ids(), u"1"_s);
    selectOne(u"WOR Work"_s, u"Contains"_s, u"a"_s);
    boxes.expect(u"Has occurred Error: 6"_s, box::Critical);
    accept();
    EXPECT_EQ(ids(), u"1 2"_s);
}

} // namespace
