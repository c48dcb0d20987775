// Add Recording: composing out of records that exist, saving, undoing.
#include "editors/recording_desk.h"

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

TEST_F(RecordingAdd, oneMoreThanTheLimitIsReadPastItsTable) {
    putParts(11, 1);
    start();
    // As an unsaid eleventh conductor leaves it: the row that ends the table is taken.
    for (int row = 0; row <= 10; ++row) module1().ListaDirectorAna.at(row, 1) = QString::number(row + 1);
    std::vector<int> fatal;
    setFatalErrorHandler([&](const RuntimeError& error) { fatal.push_back(error.number()); });
    hands->go(Add);
    EXPECT_EQ(fatal, std::vector<int>{9});
    setFatalErrorHandler(nullptr);
    EXPECT_EQ(rows(), QStringList());
}

TEST_F(RecordingAdd, byTheTabsATripHasNoWayBack) {
    putParts(1, 1);
    start();
    hands->go(Add);
    trip(Work);
    EXPECT_TRUE(module1().RegresoAnaGrabacion);
    EXPECT_TRUE(tabsFree());
    hands->go(FirstShowEdit);
    EXPECT_FALSE(module1().RegresoAnaGrabacion);
    back();
    hands->screen(u"FormReg1MosCompositor"_s);
}

/// The number of a screen of recordings.
class RecordingEditors : public RecordingAdd, public ::testing::WithParamInterface<int> {};

INSTANTIATE_TEST_SUITE_P(Editors, RecordingEditors, ::testing::Values(7, 21),
                         [](const auto& screen) { return screen.param == 7 ? "Add" : "ShowEdit"; });

TEST_P(RecordingEditors, leavingByTheTabsPutsTheChannelsBack) {
    putParts(4, 4);
    putRecordings({{1, 1, 1, {1}, {1}, {1}}});
    start();
    stand(Composer, 3);
    stand(Conductor, 2);
    for (const bool byTabs : {true, false}) {
        SCOPED_TRACE(byTabs);
        hands->go(GetParam());
        memory(Kind::Soporte).Posicion = 9;
        memory(Kind::Obra).Posicion = -1;
        if (byTabs) {
            hands->go(Elsewhere);
        } else {
            if (GetParam() == ShowEdit) hands->click(u"BtnModificar"_s);
            trip(Performer);
        }
        expectWholeTables();
        // A trip leaves the positions alone.
        EXPECT_EQ(memory(Kind::Soporte).Posicion, byTabs ? 4 : 9);
        EXPECT_EQ(memory(Kind::Obra).Posicion, byTabs ? 4 : -1);
        EXPECT_EQ(memory(Kind::Compositor).Posicion, 3);
        EXPECT_EQ(program->store.Data(Kind::Compositor).Recordset().AbsolutePosition(), 2);
        if (!byTabs) continue;
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
