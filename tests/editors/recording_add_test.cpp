// Add Recording: composing out of records that exist, saving, undoing.
#include "editors/recording_desk.h"
#include "platform/base/text.h"

namespace zv::test {
namespace {

using store::Kind;

class RecordingAdd : public RecordingDesk {
  protected:
    QString counters() {
        const store::KindMemory& of = recordings();
        return u"%1 %2; %3 %4 %5"_s.arg(hands->text(u"LabNumRegNuevos"_s), hands->text(u"LabNumRegTotal"_s))
            .arg(of.ContNew)
            .arg(of.Cont)
            .arg(of.ContSel);
    }
};

TEST_F(RecordingAdd, aFormatAloneMakesARecordingAndUndoTakesItBack) {
    putParts(3, 3);
    start();
    stand(Format, 2);
    recordings().MemoSel = {.NT = 0, .OpcionSQL = u"kept"_s, .ValorFiltro = u"filter"_s, .Lista = u"#a#"_s};
    recordings().MemoSel.Opciones.fill(u"x"_s);
    recordings().ContFil = 2;
    hands->go(Add);
    EXPECT_EQ(counters(), u"0 0; 0 0 0"_s);
    EXPECT_FALSE(hands->isEnabled(u"BtnDeshacer"_s));
    const QString empty = hands->dump();
    EXPECT_TRUE(formatMissing());
    heading(Format);
    EXPECT_FALSE(formatMissing());
    EXPECT_EQ(removable(), u"Soporte"_s);
    EXPECT_EQ(hands->text(u"LabSoporteDiscografica"_s), u"Label 2"_s);
    // A group that nobody gathered is not imported.
    for (const Part part : {Orchestra, Conductor, Performer}) heading(part);
    EXPECT_EQ(removable(), u"Soporte"_s);
    hands->type(u"TxtNotas"_s, u"first\nsecond"_s);
    save();
    ASSERT_EQ(rows().size(), 1);
    EXPECT_TRUE(rows()[0].startsWith(u"1|-1|-1|2|first"_s));
    EXPECT_EQ(links(), u"; ; "_s);
    EXPECT_EQ(counters(), u"1 1; 1 1 1"_s);
    const store::KindMemory& of = recordings();
    EXPECT_EQ(of.ContFil, 0);
    EXPECT_EQ(of.MemoSel.Lista, u"#"_s);
    EXPECT_EQ(of.MemoSel.NT, 2);
    EXPECT_EQ(of.MemoSel.ValorFiltro, QString());
    for (const QString& option : of.MemoSel.Opciones) EXPECT_EQ(option, QString());
    EXPECT_EQ(keys(true), u"-1 -1 -1"_s);
    EXPECT_EQ(program->store.memory.Grabacion.AnaNotas, QString());

    // Nothing of it is left for the next one, and only the last one can be undone.
    boxes.expect(u"IDENTIFIER must be Introduced."_s, 48);
    hands->click(u"BtnGuardar"_s);
    EXPECT_TRUE(hands->isEnabled(u"BtnDeshacer"_s));
    hands->click(u"BtnDeshacer"_s);
    EXPECT_EQ(rows(), QStringList());
    EXPECT_EQ(counters(), u"0 0; 0 0 0"_s);
    EXPECT_EQ(hands->dump(), empty);
}

TEST_F(RecordingAdd, withoutAFormatNothingIsSaved) {
    putParts(3, 3);
    start();
    for (const Part part : {Orchestra, Conductor, Performer}) {
        stand(part, 1);
        hands->click(u"BtnAñadirGrupo"_s);
    }
    hands->go(Add);
    for (const Part part : {Composer, Work, Format}) heading(part);
    hands->click(u"BtnEliImaSoporte"_s);
    EXPECT_EQ(hands->text(u"LabSoporteDiscografica"_s), QString());
    const QString composed = hands->dump();
    boxes.expect(u"IDENTIFIER must be Introduced."_s, 48);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(hands->dump(), composed);
    EXPECT_EQ(rows(), QStringList());
    EXPECT_EQ(links(), u"; ; "_s);
    // What was composed survives a way through the program.
    hands->go(Elsewhere);
    hands->go(Add);
    heading(Format);
    EXPECT_EQ(keys(true), u"1 1 1"_s);
    save();
    EXPECT_EQ(rows(), QStringList(u"1|1|1|1|"_s));
    EXPECT_EQ(links(), u"1-1; 1-1; 1-1"_s);
}

TEST_F(RecordingAdd, fullGroupsAreLinkedWhole) {
    putParts(11, 101);
    start();
    const auto gatherAll = [this](Part part, int count, const QString& told) {
        hands->go(FirstShowEdit + part);
        // Backwards: the recording shows the order of the table.
        for (int order = count; order > 1; --order) gather(order);
        gather(2); // a second time it is not taken
        boxes.expect(told, 48);
        gather(1);
        EXPECT_FALSE(hands->isEnabled(u"BtnAñadirGrupo"_s));
    };
    gatherAll(Conductor, 10, u"10 Conductors Maximum."_s);
    gatherAll(Orchestra, 10, u"10 Orchestras-Ensembles-Choirs Maximum."_s);
    gatherAll(Performer, 100, u"100 Performers Maximum."_s);
    EXPECT_LE(Val(module1().ListaDirectorAna.at(10, 1)), 0);
    EXPECT_LE(Val(module1().ListaInterpreteAna.at(100, 1)), 0);
    stand(Composer, 3);
    stand(Work, 4);
    stand(Format, 5);
    hands->go(Add);
    for (const Part part : {Composer, Work, Format}) heading(part);
    EXPECT_EQ(keys(true), u"3 4 5"_s);
    EXPECT_EQ(removable(), u"Compositor Obra Orquesta Director Interprete Soporte"_s);
    EXPECT_EQ(listed(Conductor).section(u'|', 0, 1), u"D Conductor 1|D Conductor 2"_s);
    EXPECT_EQ(listed(Conductor).count(u'|'), 9);
    EXPECT_EQ(listed(Orchestra).section(u'|', 9), u"Orchestra 10"_s);
    EXPECT_EQ(listed(Performer).section(u'|', 99), u"P Performer 100, horn"_s);
    EXPECT_EQ(hands->text(u"LabInterpreteNumeroInterprete"_s), u"100"_s);
    save();
    EXPECT_EQ(rows(), QStringList(u"1|3|4|5|"_s));
    QStringList ten, hundred;
    for (int key = 10; key > 0; --key) ten += u"1-%1"_s.arg(key);
    for (int key = 100; key > 0; --key) hundred += u"1-%1"_s.arg(key);
    EXPECT_EQ(links(), ten.join(u' ') + u"; "_s + ten.join(u' ') + u"; "_s + hundred.join(u' '));
    for (const auto* table : {&module1().ListaDirectorAna, &module1().ListaOrquestaAna, &module1().ListaInterpreteAna})
        for (int row = 0; row < table->rows(); ++row) {
            EXPECT_EQ(table->at(row, 1), u" -1"_s);
            EXPECT_EQ(table->at(row, 0), QString());
        }
    EXPECT_EQ(removable(), QString());

    // It is undone with all its links; those of another recording stay.
    sql(u"INSERT INTO RelacionInterprete VALUES(77, 1)"_s);
    hands->click(u"BtnDeshacer"_s);
    EXPECT_EQ(rows(), QStringList());
    EXPECT_EQ(links(), u"; ; 77-1"_s);
    EXPECT_EQ(recordings().Cont, 0);
}

TEST_F(RecordingAdd, oneMoreThanTheLimitIsReadPastItsTable) {
    putParts(11, 1);
    start();
    hands->go(FirstShowEdit + Conductor);
    for (int order = 1; order < 10; ++order) gather(order);
    boxes.expect(u"10 Conductors Maximum."_s, 48);
    gather(10);
    // The next load of the screen lets one more in, unsaid. It fills the row that ends the table.
    hands->go(Elsewhere);
    hands->go(FirstShowEdit + Conductor);
    gather(11);
    EXPECT_EQ(module1().ListaDirectorAna.at(10, 1), u"11"_s);
    std::vector<int> fatal;
    setFatalErrorHandler([&](const RuntimeError& error) { fatal.push_back(error.number()); });
    hands->go(Add);
    EXPECT_EQ(fatal, std::vector<int>{9});
    setFatalErrorHandler(nullptr);
    EXPECT_EQ(rows(), QStringList());
}

TEST_F(RecordingAdd, tripsFromThePicturesChooseThePartsTwiceOver) {
    putParts(4, 4);
    start();
    hands->go(Add);
    for (int round = 1; round <= 2; ++round) {
        SCOPED_TRACE(round);
        for (const Part part : {Performer, Format, Conductor, Composer, Orchestra, Work}) {
            trip(part);
            EXPECT_TRUE(module1().RegresoAnaGrabacion);
            EXPECT_TRUE(tabsFree());
            EXPECT_EQ(hands->get<forms::Button>(u"BtnRegresar"_s).Left(), 3390);
            const bool group = part == Orchestra || part == Conductor || part == Performer;
            if (group) {
                gather(round + 1);
                gather(1);
            } else {
                walk(round + 1);
            }
            back();
            hands->screen(u"FormReg1AnaGrabacion"_s);
            EXPECT_FALSE(module1().RegresoAnaGrabacion);
            if (!group) heading(part);
        }
        EXPECT_EQ(listed(Conductor), u"D Conductor 1|D Conductor %1"_s.arg(round + 1));
        const QString key = QString::number(round + 1);
        EXPECT_EQ(keys(true), QStringList({key, key, key}).join(u' '));
        EXPECT_EQ(hands->text(u"LabCompositorApellidos"_s), u"Composer "_s + key);
        EXPECT_EQ(marks(module1().ListaInterpreteAna), key + u",1,-1,-1"_s);
        save();
    }
    EXPECT_EQ(rows(), (QStringList{u"1|2|2|2|"_s, u"2|3|3|3|"_s}));
    EXPECT_EQ(links(), u"1-2 1-1 2-3 2-1; 1-2 1-1 2-3 2-1; 1-2 1-1 2-3 2-1"_s);
    // By the tabs there is no way back.
    trip(Work);
    hands->go(FirstShowEdit);
    EXPECT_FALSE(module1().RegresoAnaGrabacion);
    back();
    hands->screen(u"FormReg1MosCompositor"_s);
}

TEST_F(RecordingAdd, leavingByTheTabsPutsTheChannelsBack) {
    putParts(4, 4);
    start();
    stand(Composer, 3);
    stand(Conductor, 2);
    hands->click(u"BtnAñadirGrupo"_s);
    for (const bool byTabs : {true, false}) {
        SCOPED_TRACE(byTabs);
        hands->go(Add);
        heading(Composer);
        EXPECT_EQ(program->store.Data(Kind::Compositor).Recordset().AbsolutePosition(), 2);
        memory(Kind::Soporte).Posicion = 9;
        memory(Kind::Obra).Posicion = -1;
        if (byTabs)
            hands->go(Elsewhere);
        else
            trip(Performer);
        expectWholeTables();
        // A trip leaves the positions alone.
        EXPECT_EQ(memory(Kind::Soporte).Posicion, byTabs ? 4 : 9);
        EXPECT_EQ(memory(Kind::Obra).Posicion, byTabs ? 4 : -1);
        EXPECT_EQ(memory(Kind::Compositor).Posicion, 3);
        if (!byTabs) continue;
        EXPECT_EQ(program->store.Data(Kind::Compositor).Recordset().AbsolutePosition(), 2);
        EXPECT_EQ(program->store.Data(Kind::Director).Recordset().AbsolutePosition(), 1);
        EXPECT_EQ(program->store.Data(Kind::Soporte).Recordset().AbsolutePosition(), 3);
    }
}

TEST_F(RecordingAdd, aPartRemovedElsewhereShowsNothingAndKeepsItsKey) {
    putParts(3, 3);
    start();
    hands->go(Add);
    heading(Composer);
    heading(Format);
    hands->go(Elsewhere);
    sql(u"DELETE FROM Compositor WHERE Id = 1"_s);
    hands->go(Add);
    EXPECT_EQ(hands->text(u"LabCompositorApellidos"_s), QString());
    EXPECT_EQ(removable(), u"Soporte"_s);
    EXPECT_EQ(keys(true), u"1 -1 1"_s);
    save();
    EXPECT_EQ(rows(), QStringList(u"1|1|-1|1|"_s));
}

TEST_F(RecordingAdd, aSaveEndsTheSelectionOfRecordings) {
    putParts(3, 3);
    putRecordings({{1, 1, 1, {1}, {}, {}, u"first"_s}, {2, 2, 2}});
    start();
    jet::DataControl& channel = program->store.Data(Kind::Grabacion);
    channel.RecordSource = u"SELECT * FROM Grabacion WHERE IdGrabacion=1"_s;
    channel.Refresh();
    recordings().ContSel = recordings().ContFil = 1;
    recordings().MemoSel.CampoOrden = 4;
    stand(Conductor, 3);
    hands->click(u"BtnAñadirGrupo"_s);
    hands->go(Add);
    heading(Format);
    hands->type(u"TxtNotas"_s, u"third"_s);
    trip(Work);
    back();
    EXPECT_EQ(hands->text(u"TxtNotas"_s), u"third"_s);
    save();
    EXPECT_EQ(rows().last(), u"3|-1|-1|1|third"_s);
    EXPECT_EQ(links(), u"1-1 3-3; ; "_s) << "the links go to the new one";
    EXPECT_EQ(channel.Recordset().RecordCount(), 3);
    EXPECT_EQ(recordings().ContSel * 10 + recordings().ContFil, 30);
    EXPECT_EQ(recordings().MemoSel.CampoOrden, 4);
}

TEST_F(RecordingAdd, picturesStandCentredInTheirTiles) {
    putParts(3, 3);
    const QString wide = picture(u"wide.bmp"_s, {300, 100}), tall = picture(u"tall.bmp"_s, {100, 300});
    sql(u"UPDATE Compositor SET Imagen = '%1' WHERE Id = 1"_s.arg(wide));
    sql(u"UPDATE Director SET Imagen = '%1' WHERE IdDirector = 2"_s.arg(tall));
    sql(u"UPDATE Director SET Imagen = '%1' WHERE IdDirector = 3"_s.arg(folder_.filePath(u"gone.bmp"_s)));
    start();
    hands->go(FirstShowEdit + Conductor);
    for (const int order : {3, 2, 1}) gather(order);
    hands->go(Add);
    heading(Composer);
    // Fitted to 1935: a third as high as wide, 390 + (1935 - 645) / 2.
    EXPECT_EQ(pictureOf(Composer), u"file at 495 1035, 1935 x 645"_s);
    const QString none = u"default at 5925 2700, 1935 x 1935"_s;
    EXPECT_EQ(pictureOf(Conductor), none);
    auto& grid = hands->get<forms::FlexGrid>(u"FlexDirectores"_s);
    for (const auto& [row, shown] : {std::pair{1, u"file at 6570 2700, 645 x 1935"_s}, std::pair{2, none}}) {
        grid.setRow(row);
        grid.DblClick();
        EXPECT_EQ(pictureOf(Conductor), shown) << row;
    }
    hands->click(u"BtnEliImaCompositor"_s);
    EXPECT_EQ(pictureOf(Composer), u"default at 495 390, 1935 x 1935"_s);
}

} // namespace
} // namespace zv::test
