// Show-Edit Recording: walking, modifying with trips to the parts, removing.
#include "editors/recording_desk.h"

namespace zv::test {
namespace {

using store::Kind;

class RecordingShowEdit : public RecordingDesk {
  protected:
    /// Two recordings of parts 1 and 2, and one of a format alone.
    void three() {
        putParts(4, 4);
        putRecordings({{1, 1, 1, {1, 2}, {1}, {1, 2, 3}, u"first"_s}, {2, 2, 2, {2}, {1, 2}, {4}, u"second"_s}, {}});
    }
    void open(int order = 1) {
        start();
        hands->go(ShowEdit);
        if (order > 1) walk(order);
    }
    QString people() { return listed(Conductor) + u"; "_s + listed(Orchestra) + u"; "_s + listed(Performer); }
    /// First rows of the groups: conductors, orchestras, performers.
    QString groups(int count = 3) {
        return marks(module1().ListaDirectorMos, 0, count) + u"; "_s + marks(module1().ListaOrquestaMos, 0, count) +
               u"; "_s + marks(module1().ListaInterpreteMos, 0, count);
    }
    QString counters() {
        const store::KindMemory& of = recordings();
        return u"%1 %2; %3 %4 %5 %6"_s.arg(hands->text(u"LabNumRegSeleccion"_s), hands->text(u"LabNumRegEliminados"_s))
            .arg(of.Cont)
            .arg(of.ContSel)
            .arg(of.ContEli)
            .arg(of.Posicion);
    }
    /// Buttons and controls that act.
    QString state() {
        QStringList on;
        for (const QString& control : {u"BtnModificar"_s, u"BtnEliminar"_s, u"BtnGuardar"_s, u"BtnDeshacer"_s,
                                       u"HScroll"_s, u"TxtOrden"_s, u"ImagenObra"_s, u"TabNivel1"_s})
            if (hands->isEnabled(control)) on += control;
        if (!hands->get<forms::Memo>(u"TxtNotas"_s).Locked()) on += u"notes"_s;
        return on.join(u' ');
    }
    const QString showing = u"BtnModificar BtnEliminar HScroll TxtOrden TabNivel1"_s;
    const QString modifying = u"BtnModificar BtnGuardar BtnDeshacer ImagenObra notes"_s;
    const QString removing = u"BtnEliminar BtnGuardar BtnDeshacer"_s;
    const QStringList storedRows = {u"1|1|1|1|first"_s, u"2|2|2|2|second"_s, u"3|-1|-1|1|"_s};
    const QString storedLinks = u"1-1 1-2 2-2; 1-1 2-1 2-2; 1-1 1-2 1-3 2-4"_s;
};

TEST_F(RecordingShowEdit, theWalkShowsEachRecordingWhole) {
    three();
    open();
    EXPECT_EQ(state(), showing);
    EXPECT_EQ(people(), u"D Conductor 1|D Conductor 2; Orchestra 1; "
                        "P Performer 1, horn|P Performer 2, horn|P Performer 3, horn"_s);
    EXPECT_EQ(hands->text(u"LabInterpreteNumeroInterprete"_s), u"3"_s);
    EXPECT_EQ(keys(false), u"1 1 1"_s);
    EXPECT_EQ(groups(), u"1,2,-2; 1,-2,-2; 1,2,3"_s);
    EXPECT_EQ(hands->get<QWidget>(u"LabCompositorApellidos"_s).toolTip(), u"Composer 1"_s);
    walk(3);
    EXPECT_EQ(people(), u"; ; "_s);
    EXPECT_EQ(hands->text(u"LabInterpreteNumeroInterprete"_s), QString());
    EXPECT_EQ(hands->text(u"LabCompositorApellidos"_s), QString());
    EXPECT_EQ(hands->get<QWidget>(u"LabCompositorApellidos"_s).toolTip(), QString());
    EXPECT_EQ(hands->text(u"TxtNotas"_s), QString());
    EXPECT_EQ(keys(false), u"-1 -1 1"_s);
    EXPECT_EQ(groups(), u"-1,-2,-2; -1,-2,-2; -1,-2,-2"_s);
    EXPECT_EQ(removable(), QString());
    // While the record is locked, headings and pictures do nothing.
    stand(Composer, 4);
    hands->go(ShowEdit);
    heading(Composer);
    hands->doubleClick(u"ImagenCompositor"_s);
    hands->screen(u"FormReg1MosGrabacion"_s);
    EXPECT_EQ(keys(false), u"-1 -1 1"_s);
    for (const QString& wrong : {u"0"_s, u"4"_s, u"x"_s}) {
        hands->type(u"TxtOrden"_s, wrong);
        EXPECT_EQ(hands->text(u"TxtOrden"_s), QString());
        EXPECT_EQ(recordings().Posicion, 3);
    }
    walk(2);
    EXPECT_EQ(people(), u"D Conductor 2; Orchestra 1|Orchestra 2; P Performer 4, horn"_s);
    EXPECT_EQ(hands->text(u"TxtNotas"_s), u"second"_s);
    hands->go(Elsewhere);
    expectWholeTables();
}

TEST_F(RecordingShowEdit, tripsComposeItAnewTwiceOver) {
    three();
    start();
    for (const Part part : {Composer, Work, Format}) stand(part, 4);
    for (int round = 1; round <= 2; ++round) {
        SCOPED_TRACE(round);
        const QString key = QString::number(round + 2);
        hands->go(ShowEdit);
        walk(2);
        hands->click(u"BtnModificar"_s);
        hands->type(u"TxtNotas"_s, u"round "_s + key);
        for (const Part part : {Conductor, Composer, Performer, Format, Orchestra, Work}) {
            SCOPED_TRACE(part);
            trip(part);
            EXPECT_TRUE(module1().RegresoMosGrabacion);
            EXPECT_TRUE(module1().SolapasFijas);
            EXPECT_FALSE(tabsFree());
            if (part == Composer || part == Work || part == Format) {
                walk(round + 2);
                // A change of the record there leaves the tabs as they are.
                hands->click(u"BtnModificar"_s);
                hands->click(u"BtnDeshacer"_s);
                EXPECT_FALSE(tabsFree());
            } else {
                // The group of the recording stands there; one comes that may be in it.
                auto& grid = hands->get<forms::FlexGrid>(u"MSFlexGrid1"_s);
                const int before = grid.Rows();
                EXPECT_GT(before, 0);
                gather(round + 2);
                EXPECT_EQ(grid.Rows(), before + (part == Performer && round == 2 ? 0 : 1));
            }
            back();
            hands->screen(u"FormReg1MosGrabacion"_s);
            EXPECT_EQ(state(), modifying);
            EXPECT_EQ(hands->text(u"TxtOrden"_s), u"2"_s);
            EXPECT_EQ(hands->text(u"TxtNotas"_s), u"round "_s + key);
        }
        EXPECT_EQ(keys(false), QStringList({key, key, key}).join(u' '));
        hands->click(u"BtnGuardar"_s);
        EXPECT_EQ(state(), showing);
        EXPECT_FALSE(module1().RegresoMosGrabacion);
        EXPECT_FALSE(module1().SolapasFijas);
        EXPECT_EQ(rows()[1], u"2|%1|%1|%1|round %1"_s.arg(key));
        EXPECT_EQ(hands->text(u"LabObraNombre"_s), u"Work "_s + key);
    }
    EXPECT_EQ(rows()[0], storedRows[0]);
    EXPECT_EQ(people(), u"D Conductor 2|D Conductor 3|D Conductor 4; "
                        "Orchestra 1|Orchestra 2|Orchestra 3|Orchestra 4; P Performer 3, horn|P Performer 4, horn"_s);
    EXPECT_EQ(links(), u"1-1 1-2 2-2 2-3 2-4; 1-1 2-1 2-2 2-3 2-4; 1-1 1-2 1-3 2-3 2-4"_s);
}

TEST_F(RecordingShowEdit, aLookAtASinglePartChoosesItAndCancelGivesItUp) {
    three();
    open();
    stand(Composer, 3);
    for (int round = 1; round <= 2; ++round) {
        SCOPED_TRACE(round);
        hands->go(ShowEdit);
        hands->click(u"BtnModificar"_s);
        trip(Composer);
        back();
        EXPECT_EQ(keys(false), u"3 1 1"_s);
        EXPECT_EQ(hands->text(u"LabCompositorApellidos"_s), u"Composer 3"_s);
        // A look at a group changes nothing; taking all out empties it.
        trip(Conductor);
        back();
        EXPECT_EQ(groups(), u"1,2,-2; 1,-2,-2; 1,2,3"_s);
        trip(Orchestra);
        hands->click(u"BtnEliminarGrupo"_s);
        hands->click(u"BtnEliminarGrupo"_s);
        back();
        EXPECT_EQ(groups(), u"1,2,-2; -1,-1,-1; 1,2,3"_s);
        EXPECT_EQ(listed(Orchestra), QString());
        EXPECT_EQ(removable(), u"Compositor Obra Director Interprete Soporte"_s);
        hands->type(u"TxtNotas"_s, u"lost"_s);
        hands->click(u"BtnDeshacer"_s);
        EXPECT_EQ(state(), showing);
        EXPECT_FALSE(module1().RegresoMosGrabacion);
        EXPECT_FALSE(module1().SolapasFijas);
        EXPECT_EQ(keys(false), u"1 1 1"_s);
        EXPECT_EQ(groups(), u"1,2,-2; 1,-2,-2; 1,2,3"_s);
        EXPECT_EQ(marks(module1().ListaOrquestaMos, 9, 2), u"-2,-2"_s);
        EXPECT_EQ(marks(module1().ListaInterpreteMos, 10, 2), u"-2,-1"_s);
        EXPECT_EQ(hands->text(u"TxtNotas"_s), u"first"_s);
        EXPECT_EQ(people().section(u';', 1, 1), u" Orchestra 1"_s);
        EXPECT_EQ(removable(), QString());
    }
    EXPECT_EQ(rows(), storedRows);
    EXPECT_EQ(links(), storedLinks);
}

TEST_F(RecordingShowEdit, removedPartsAndTheirMarks) {
    three();
    open();
    hands->click(u"BtnModificar"_s);
    for (const Part part : {Composer, Work, Orchestra, Conductor, Performer, Format})
        hands->click(u"BtnEliIma"_s + name(part));
    EXPECT_EQ(removable(), QString());
    EXPECT_EQ(keys(false), u"-2 -2 -2"_s);
    EXPECT_TRUE(formatMissing());
    EXPECT_EQ(groups(), u"-1,-1,-1; -1,-1,-1; -1,-1,-1"_s);
    EXPECT_EQ(marks(module1().ListaInterpreteMos, 99, 2), u"-1,-1"_s);
    EXPECT_EQ(module1().ListaInterpreteMos.at(0, 0), QString());
    boxes.expect(u"IDENTIFIER must be Introduced."_s, 48);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(state(), modifying);
    EXPECT_EQ(links(), storedLinks);
    // The heading reads the stored key again; a trip makes it one of its own.
    heading(Format);
    heading(Conductor);
    EXPECT_EQ(keys(false), u"-2 -2 1"_s);
    EXPECT_EQ(removable(), u"Soporte"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(rows()[0], u"1|-2|-2|1|first"_s);
    EXPECT_EQ(links(), u"2-2; 2-1 2-2; 2-4"_s);
    // What is stored as -2 is a part that is not there.
    EXPECT_EQ(keys(false), u"-1 -1 1"_s);
    EXPECT_EQ(groups(), u"-1,-2,-2; -1,-2,-2; -1,-2,-2"_s);
    hands->click(u"BtnModificar"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(rows()[0], u"1|-1|-1|1|first"_s);
}

TEST_F(RecordingShowEdit, partsThatAreGoneShowNothing) {
    putParts(4, 4);
    for (const QString& table :
         {u"Compositor"_s, u"Obra"_s, u"Soporte"_s, u"Director"_s, u"Orquesta"_s, u"Interprete"_s})
        sql(u"UPDATE %1 SET Imagen = '%2'"_s.arg(table, picture(u"square.bmp"_s, {50, 50})));
    putRecordings({{1, 1, 1, {1}, {1}, {1}}, {2, 2, 2, {2, 3}, {2}, {2, 3}}});
    sql(u"DELETE FROM Compositor WHERE Id = 2"_s);
    sql(u"DELETE FROM Obra WHERE Id = 2"_s);
    sql(u"DELETE FROM Soporte WHERE Id = 2"_s);
    sql(u"DELETE FROM Director WHERE IdDirector = 2"_s);
    sql(u"DELETE FROM Orquesta WHERE IdOrquesta = 2"_s);
    open();
    for (int part = Composer; part <= Format; ++part) EXPECT_TRUE(pictureOf(Part(part)).startsWith(u"file"_s)) << part;
    walk(2);
    for (const Part part : {Composer, Work, Orchestra, Format})
        EXPECT_TRUE(pictureOf(part).startsWith(u"default"_s)) << part;
    EXPECT_EQ(people(), u"D Conductor 3; ; P Performer 2, horn|P Performer 3, horn"_s);
    EXPECT_EQ(hands->text(u"LabCompositorApellidos"_s) + hands->text(u"LabObraNombre"_s) +
                  hands->text(u"LabSoporteDiscografica"_s),
              QString());
    EXPECT_EQ(keys(false), u"-2 -2 -2"_s);
    EXPECT_TRUE(formatMissing());
    EXPECT_EQ(groups(), u"3,-2,-2; -2,-2,-2; 2,3,-2"_s);
    hands->click(u"BtnModificar"_s);
    EXPECT_EQ(removable(), u"Director Interprete"_s);
    heading(Orchestra); // reads the links of this recording again, not those of others
    EXPECT_EQ(listed(Orchestra), QString());
    // Without its format the recording can't be saved; with another one it is, and keeps what stands for the lost.
    boxes.expect(u"IDENTIFIER must be Introduced."_s, 48);
    hands->click(u"BtnGuardar"_s);
    trip(Format);
    walk(3);
    back();
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(rows()[1], u"2|-2|-2|4|"_s);
    EXPECT_EQ(links(), u"1-1 2-3; 1-1; 1-1 2-2 2-3"_s);
}

TEST_F(RecordingShowEdit, aPartRemovedOnATripLeavesTheComposition) {
    three();
    open();
    hands->click(u"BtnModificar"_s);
    trip(Conductor);
    walk(2);
    boxes.expect(store::MensaEliRegPosibleGrabacion, box::YesNoInformation, box::Yes);
    hands->click(u"BtnEliminar"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_FALSE(tabsFree());
    back();
    EXPECT_EQ(state(), modifying);
    EXPECT_EQ(listed(Conductor), u"D Conductor 1"_s);
    hands->click(u"BtnDeshacer"_s);
    EXPECT_EQ(listed(Conductor), u"D Conductor 1"_s);
    walk(2);
    EXPECT_EQ(listed(Conductor), QString());
    EXPECT_TRUE(pictureOf(Conductor).startsWith(u"default"_s));
    EXPECT_EQ(links(), storedLinks);
}

TEST_F(RecordingShowEdit, aGroupBeyondItsTableIsToldBeforeAnythingIsRemoved) {
    putParts(11, 2);
    putRecordings({{1, 1, 1, {}, {2}, {1, 2}, u"first"_s}});
    open();
    hands->click(u"BtnModificar"_s);
    trip(Conductor);
    for (int order = 1; order < 10; ++order) gather(order);
    boxes.expect(u"10 Conductors Maximum."_s, box::Warning);
    gather(10);
    // A change of a conductor clears what is on display there, and lets nothing in over the ten.
    hands->click(u"BtnModificar"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(hands->get<forms::FlexGrid>(u"MSFlexGrid1"_s).Rows(), 0);
    EXPECT_FALSE(hands->isEnabled(u"BtnAñadirGrupo"_s));
    back();
    EXPECT_EQ(listed(Conductor).count(u'|'), 9);
    trip(Conductor);
    gather(11);
    back();
    EXPECT_EQ(listed(Conductor), QString());
    boxes.expect(u"Has occurred Error: 9"_s, box::Critical);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(state(), modifying);
    EXPECT_EQ(links(), u"; 1-2; 1-1 1-2"_s);
    hands->click(u"BtnEliImaDirector"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(state(), showing);
    EXPECT_EQ(links(), u"; 1-2; 1-1 1-2"_s);
}

TEST_F(RecordingShowEdit, leavingForASelectionOnTheWayBackGivesTheChangeUp) {
    three();
    open();
    for (const bool closed : {true, false}) {
        SCOPED_TRACE(closed);
        hands->go(ShowEdit);
        hands->click(u"BtnModificar"_s);
        hands->type(u"TxtNotas"_s, u"changed"_s);
        trip(Performer);
        memory(Kind::Obra).ContSel = 1;
        boxes.expect(
            u"\r    The 'Current Selection' of:\r\r    - Work\r\r    DOES NOT SHOW ALL of the Records and should "
            "be closed to continue.   \r\r"_s,
            box::OkCancel, closed ? box::Ok : box::Cancel);
        back();
        EXPECT_EQ(tabsFree(), !closed);
        EXPECT_EQ(module1().RegresoMosGrabacion, closed);
        hands->screen(closed ? u"FormReg1MosGrabacion"_s : u"FormReg1SelObra"_s);
        if (!closed) continue;
        EXPECT_EQ(state(), modifying);
        EXPECT_EQ(hands->text(u"TxtNotas"_s), u"changed"_s);
        hands->click(u"BtnDeshacer"_s);
    }
    memory(Kind::Obra).ContSel = memory(Kind::Obra).Cont;
    hands->go(ShowEdit);
    EXPECT_EQ(state(), showing);
    EXPECT_EQ(hands->text(u"TxtNotas"_s), u"first"_s);
    EXPECT_EQ(rows(), storedRows);
}

TEST_F(RecordingShowEdit, theSelectionOfRecordingsIsWalkedAndShrinks) {
    three();
    start();
    jet::DataControl& channel = program->store.Data(Kind::Grabacion);
    channel.RecordSource = u"SELECT * FROM Grabacion WHERE IdGrabacion>1"_s;
    channel.Refresh();
    recordings().ContSel = 2;
    recordings().Posicion = 3;
    hands->go(ShowEdit);
    EXPECT_EQ(hands->text(u"TxtOrden"_s), u"3"_s) << "the position of a longer selection";
    EXPECT_EQ(hands->get<forms::ScrollBar>(u"HScroll"_s).Value(), 2);
    walk(1);
    EXPECT_EQ(hands->text(u"TxtNotas"_s), u"second"_s);
    hands->click(u"BtnEliminar"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(counters(), u"1 1; 2 1 1 1"_s);
    EXPECT_EQ(links(), u"1-1 1-2; 1-1; 1-1 1-2 1-3"_s);
    hands->click(u"BtnEliminar"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(counters(), u"0 2; 0 0 2 1"_s) << "the last row of a filter counts as that of the table";
    EXPECT_EQ(rows(), QStringList(storedRows[0]));
}

TEST_F(RecordingShowEdit, keysOfALongerGroupBeforeAreSavedWithAShorterOne) {
    const auto first = [](int count) {
        QList<int> keys;
        for (int key = 1; key <= count; ++key) keys += key;
        return keys;
    };
    putParts(3, 20);
    putRecordings({{.performers = first(14)}, {.performers = first(12)}, {.performers = first(10)}});
    open();
    EXPECT_EQ(marks(module1().ListaInterpreteMos, 9, 6), u"10,11,12,13,14,-1"_s);
    walk(2);
    EXPECT_EQ(listed(Performer).count(u'|'), 11);
    EXPECT_EQ(marks(module1().ListaInterpreteMos, 9, 6), u"10,11,12,13,14,-1"_s);
    walk(3);
    EXPECT_EQ(marks(module1().ListaInterpreteMos, 9, 3), u"10,-2,12"_s);
    hands->click(u"BtnModificar"_s);
    hands->click(u"BtnGuardar"_s);
    const auto of = [this](int recording) { return links().count(u" %1-"_s.arg(recording)); };
    EXPECT_EQ(of(3), 10);
    // The save has emptied the table: the next group shows its own rows alone, until a longer one has been walked.
    walk(1);
    walk(2);
    hands->click(u"BtnModificar"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(of(2), 14);
    EXPECT_EQ(hands->text(u"LabInterpreteNumeroInterprete"_s), u"14"_s);
    // Cancel empties it, too.
    walk(3);
    hands->click(u"BtnModificar"_s);
    hands->click(u"BtnDeshacer"_s);
    EXPECT_EQ(marks(module1().ListaInterpreteMos, 9, 6), u"10,-2,-1,-1,-1,-1"_s);
}

TEST_F(RecordingShowEdit, linksToNothingAreLeftOutAndASaveDropsThem) {
    putParts(4, 4);
    putRecordings({{1, 1, 1, {77, 2}, {88}, {3}}, {1, 1, 1, {1}, {1}, {1}}});
    put({u"RelacionDirector"_s, u"IdGrabacion, IdDirector"_s, {u"1, NULL"_s, u"NULL, 1"_s, u"99, 1"_s}});
    put({u"RelacionInterprete"_s, u"IdGrabacion, IdInterprete"_s, {u"1, -1"_s, u"1, 0"_s, u"1, 2"_s, u"1, 2"_s}});
    open();
    EXPECT_EQ(people(), u"D Conductor 2; ; P Performer 2, horn|P Performer 3, horn"_s);
    EXPECT_TRUE(pictureOf(Orchestra).startsWith(u"default"_s));
    hands->click(u"BtnModificar"_s);
    EXPECT_EQ(removable(), u"Compositor Obra Director Interprete Soporte"_s);
    hands->click(u"BtnGuardar"_s);
    // Those of other recordings stay, also of one that is not there.
    EXPECT_EQ(stored(u"RelacionDirector"_s, u"coalesce(IdGrabacion, 'none') || '-' || IdDirector"_s).join(u' '),
              u"2-1 none-1 99-1 1-2"_s);
    EXPECT_EQ(links().section(u"; "_s, 1), u"2-1; 2-1 1-2 1-3"_s);
    walk(2);
    EXPECT_EQ(people(), u"D Conductor 1; Orchestra 1; P Performer 1, horn"_s);
}

TEST_F(RecordingShowEdit, removingStepsBackToTheLastOne) {
    three();
    open(2);
    EXPECT_EQ(counters(), u"3 0; 3 3 0 2"_s);
    hands->click(u"BtnEliminar"_s);
    EXPECT_EQ(state(), removing);
    hands->click(u"BtnDeshacer"_s);
    EXPECT_EQ(state(), showing);
    EXPECT_EQ(rows(), storedRows);
    hands->click(u"BtnEliminar"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(rows(), (QStringList{storedRows[0], storedRows[2]}));
    EXPECT_EQ(links(), u"1-1 1-2; 1-1; 1-1 1-2 1-3"_s);
    EXPECT_EQ(counters(), u"2 1; 2 2 1 1"_s);
    EXPECT_EQ(hands->text(u"TxtNotas"_s), u"first"_s);
    hands->click(u"BtnEliminar"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(counters(), u"1 2; 1 1 2 1"_s);
    EXPECT_EQ(keys(false), u"-1 -1 1"_s);
    hands->click(u"BtnModificar"_s);
    hands->type(u"TxtNotas"_s, u"the last"_s);
    hands->click(u"BtnGuardar"_s);
    hands->click(u"BtnEliminar"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(counters(), u"0 3; 0 0 3 1"_s);
    EXPECT_EQ(rows(), QStringList());
    EXPECT_EQ(links(), u"; ; "_s);
    EXPECT_EQ(hands->text(u"TxtOrden"_s) + hands->text(u"TxtNotas"_s), QString());
    EXPECT_TRUE(tabsFree());
    // Nothing is there to be changed.
    hands->click(u"BtnModificar"_s);
    hands->click(u"BtnEliminar"_s);
    EXPECT_FALSE(hands->isEnabled(u"BtnGuardar"_s));
    hands->go(Elsewhere);
    hands->go(ShowEdit);
    EXPECT_EQ(hands->text(u"TxtOrden"_s), QString());
}

} // namespace
} // namespace zv::test
