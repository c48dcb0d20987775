// What stands in the catalogue when the disk fails within the writes of a recording: there is no transaction.
#include "editors/recording_desk.h"
#include "platform/jet/fault_vfs.h"

namespace zv::test {
namespace {

using store::Kind;

class RecordingFailingWrite : public RecordingDesk {
  protected:
    void SetUp() override {
        putParts(3, 3);
        vfs.emplace();
        begin();
        measure();
    }
    void TearDown() override {
        stop();
        vfs.reset();
    }
    /// The program anew on two recordings, of which the second has five links.
    void begin() {
        stop();
        for (const QString& table :
             {u"Grabacion"_s, u"RelacionDirector"_s, u"RelacionOrquesta"_s, u"RelacionInterprete"_s})
            sql(u"DELETE FROM "_s + table);
        putRecordings({{1, 1, 1, {3}, {3}, {3}, u"first"_s}, {2, 2, 2, {1, 2}, {1}, {1, 2}, u"second"_s}});
        start();
    }
    /// How often each kind of write changes the file.
    void measure() {
        store::Store& store = program->store;
        for (const int channel : {6, 7}) {
            store.Data(1, channel).RecordSource =
                channel == 6 ? u"SELECT * FROM Grabacion"_s : u"SELECT * FROM RelacionDirector"_s;
            store.Data(1, channel).Refresh();
        }
        store::Campos row;
        row.set(0, u"IdGrabacion", u"9"_s);
        row.set(1, u"IdDirector", u"9"_s);
        linking = changes([&] { store.GrabarRegistro(7, 2, true, row); });
        unlinking = changes([&] { store.EliminarRegistro(7); });
        row.set(0, u"IdSoporte", u"3"_s);
        row.set(1, u"Notas", u"x"_s);
        adding = changes([&] { store.GrabarRegistro(6, 2, true, row); });
        changing = changes([&] { store.GrabarRegistro(6, 2, false, row); });
        begin();
    }
    int changes(const std::function<void()>& write) {
        for (int passing = 0;; ++passing) {
            vfs->failAfter(passing, Fault::IoError, 1);
            write();
            const bool failed = vfs->hasFailed();
            vfs->heal();
            module1().ErrorBaseDatos = false;
            if (!failed) return passing;
        }
    }
    /// Clicks with a disk that fails one change after that many.
    void clickFailing(const QString& button, int passing, bool told) {
        if (told) boxes.expect(u"Has occurred Error: 3026"_s, box::Critical);
        vfs->failAfter(passing, Fault::NoSpace, 1);
        hands->click(button);
        EXPECT_TRUE(vfs->hasFailed());
        vfs->heal();
        boxes.checkAllShown();
        EXPECT_FALSE(module1().ErrorBaseDatos);
    }
    /// Makes the composition of a new recording: five links, in order.
    void compose() {
        hands->go(Elsewhere);
        store::Module1& m = module1();
        m.IdCompositorAna = m.IdObraAna = m.IdSoporteAna = 3;
        for (int row = 0; row < 2; ++row) {
            m.ListaDirectorAna.at(row, 1) = QString::number(row + 1);
            m.ListaInterpreteAna.at(row, 1) = QString::number(row + 1);
        }
        m.ListaOrquestaAna.at(0, 1) = u"1"_s;
        hands->go(Add);
    }
    /// Numbers of links of all recordings: conductors, orchestras, performers.
    QList<int> linkCounts() {
        QList<int> counts;
        for (const QString& table : links().split(u"; "_s)) counts += int(table.count(u'-'));
        return counts;
    }
    QStringList shortRows() { return stored(u"Grabacion"_s, u"IdCompositor, IdObra, IdSoporte, Notas"_s); }

    static constexpr int Links = 5;
    std::optional<FaultVfs> vfs;
    int adding = 0, linking = 0, unlinking = 0, changing = 0;
    const QString firstRow = u"1|1|1|first"_s, secondRow = u"2|2|2|second"_s, newRow = u"3|3|3|"_s;
};

TEST_F(RecordingFailingWrite, aSaveKeepsWhatWasWrittenBefore) {
    // Two recordings stand with 3, 2 and 3 links; conductors come first, then orchestras, then performers.
    const QList<QList<int>> left = {{3, 2, 3}, {3, 2, 3}, {4, 2, 3}, {5, 2, 3}, {5, 3, 3}, {5, 3, 4}};
    for (int step = 0; step <= Links; ++step) {
        SCOPED_TRACE(step);
        begin();
        compose();
        clickFailing(u"BtnGuardar"_s, step == 0 ? 0 : adding + (step - 1) * linking, step == 0);
        EXPECT_EQ(shortRows(),
                  step == 0 ? (QStringList{firstRow, secondRow}) : (QStringList{firstRow, secondRow, newRow}));
        EXPECT_EQ(linkCounts(), left[step]);
        EXPECT_EQ(recordings().Cont, 2);
        EXPECT_EQ(recordings().ContNew, 0);
        EXPECT_EQ(keys(true), u"-1 -1 -1"_s);
        EXPECT_EQ(marks(module1().ListaDirectorAna, 0, 2), u" -1, -1"_s);
        EXPECT_FALSE(hands->isEnabled(u"BtnDeshacer"_s));
        compose();
        save();
        EXPECT_EQ(recordings().Cont, 3);
        EXPECT_EQ(shortRows().last(), newRow);
    }
}

TEST_F(RecordingFailingWrite, anUndoTellsAndKeepsTheCounters) {
    for (int step = 0; step <= Links; ++step) {
        SCOPED_TRACE(step);
        begin();
        compose();
        save();
        clickFailing(u"BtnDeshacer"_s, step * unlinking, true);
        // The other removals go on: either one link stays, or the recording without any.
        const bool recordingLeft = step == Links;
        EXPECT_EQ(shortRows().size(), recordingLeft ? 3 : 2);
        QList<int> left = {3, 2, 3};
        if (!recordingLeft) ++left[step < 2 ? 0 : step < 3 ? 1 : 2];
        EXPECT_EQ(linkCounts(), left);
        EXPECT_EQ(recordings().Cont, 3);
        EXPECT_EQ(hands->text(u"LabNumRegTotal"_s), u"3"_s);
        EXPECT_TRUE(hands->isEnabled(u"BtnDeshacer"_s));
        if (!recordingLeft) continue;
        hands->click(u"BtnDeshacer"_s);
        EXPECT_EQ(shortRows().size(), 2);
        EXPECT_EQ(recordings().Cont, 2);
    }
}

TEST_F(RecordingFailingWrite, aSecondAcceptCompletesAChange) {
    const QString composed = u"1-3 2-1 2-2; 1-3 2-1; 1-3 2-1 2-2"_s;
    for (int step = 0; step <= 2 * Links; ++step) {
        SCOPED_TRACE(step);
        begin();
        hands->go(ShowEdit);
        // The write leaves the channel on its first row, which is not this one.
        walk(2);
        hands->click(u"BtnModificar"_s);
        hands->type(u"TxtNotas"_s, u"changed"_s);
        const bool unlinks = step < Links, changesRow = step == Links;
        const int passing = unlinks      ? step * unlinking
                            : changesRow ? Links * unlinking
                                         : Links * unlinking + changing + (step - Links - 1) * linking;
        clickFailing(u"BtnGuardar"_s, passing, unlinks || changesRow);
        EXPECT_TRUE(hands->isEnabled(u"BtnGuardar"_s));
        EXPECT_FALSE(hands->isEnabled(u"BtnEliminar"_s));
        EXPECT_FALSE(tabsFree());
        EXPECT_EQ(shortRows(), (QStringList{firstRow, changesRow ? secondRow : u"2|2|2|changed"_s}));
        const QList<int> left = linkCounts();
        // The first recording has three links.
        EXPECT_EQ(left[0] + left[1] + left[2] - 3, unlinks ? 1 : changesRow ? 0 : step - Links - 1);
        hands->click(u"BtnGuardar"_s);
        EXPECT_TRUE(hands->isEnabled(u"BtnEliminar"_s));
        EXPECT_TRUE(tabsFree());
        EXPECT_EQ(shortRows(), (QStringList{firstRow, u"2|2|2|changed"_s}));
        EXPECT_EQ(links(), composed);
        EXPECT_EQ(recordings().Posicion, 2);
    }
}

TEST_F(RecordingFailingWrite, aSecondAcceptReachesTheRecordingThatLeftItsSelection) {
    const QString selection = u"SELECT * FROM Grabacion WHERE IdCompositor>0"_s;
    const auto channel = [this]() -> jet::DataControl& { return program->store.Data(Kind::Grabacion); };
    for (const bool accepted : {true, false}) {
        SCOPED_TRACE(accepted);
        begin();
        channel().RecordSource = selection;
        channel().Refresh();
        hands->go(ShowEdit);
        walk(2);
        hands->click(u"BtnModificar"_s);
        hands->click(u"BtnEliImaCompositor"_s);
        clickFailing(u"BtnGuardar"_s, Links * unlinking + changing, false);
        EXPECT_EQ(shortRows(), (QStringList{firstRow, u"-2|2|2|second"_s}));
        trip(Performer);
        back();
        hands->click(accepted ? u"BtnGuardar"_s : u"BtnDeshacer"_s);
        EXPECT_TRUE(tabsFree());
        EXPECT_EQ(shortRows(), (QStringList{firstRow, u"-2|2|2|second"_s}));
        EXPECT_EQ(links(), accepted ? u"1-3 2-1 2-2; 1-3 2-1; 1-3 2-1 2-2"_s : u"1-3; 1-3; 1-3"_s);
        EXPECT_EQ(channel().RecordSource, selection);
        EXPECT_EQ(hands->text(u"TxtNotas"_s), u"first"_s);
    }
}

TEST_F(RecordingFailingWrite, aRemovalThatFailsIsTold) {
    for (int step = 0; step <= Links; ++step) {
        SCOPED_TRACE(step);
        begin();
        hands->go(ShowEdit);
        walk(2);
        hands->click(u"BtnEliminar"_s);
        clickFailing(u"BtnGuardar"_s, step * unlinking, true);
        const bool recordingLeft = step == Links;
        EXPECT_EQ(shortRows(), recordingLeft ? (QStringList{firstRow, secondRow}) : QStringList(firstRow));
        const QList<int> left = linkCounts();
        EXPECT_EQ(left[0] + left[1] + left[2] - 3, recordingLeft ? 0 : 1);
        EXPECT_EQ(recordings().Cont, 2);
        EXPECT_EQ(recordings().ContEli, 0);
        EXPECT_EQ(hands->text(u"TxtNotas"_s), recordingLeft ? u"second"_s : u"first"_s);
        EXPECT_TRUE(hands->isEnabled(u"BtnModificar"_s));
        EXPECT_FALSE(hands->isEnabled(u"BtnGuardar"_s));
        EXPECT_TRUE(tabsFree());
    }
}

} // namespace
} // namespace zv::test
