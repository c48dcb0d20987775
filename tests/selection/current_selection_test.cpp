// The check that comes before a Recording screen is filled: its words, and what its two answers do.
#include "support/desk.h"

using namespace zv;
using namespace Qt::StringLiterals;
using store::Kind;

namespace {

constexpr Kind Parts[] = {Kind::Compositor, Kind::Obra,    Kind::Director,
                          Kind::Orquesta,   Kind::Soporte, Kind::Interprete};

class CurrentSelection : public test::Desk, public ::testing::WithParamInterface<int> {
  protected:
    void SetUp() override {
        for (const Kind kind : Parts) {
            const auto& columns = store::info(kind).fields;
            put({store::info(kind).table.toString(), columns[2].column.toString(), {u"'a'"_s, u"'b'"_s}});
        }
        put({u"Grabacion"_s, u"IdCompositor, IdObra, IdSoporte"_s, {u"1, 1, 1"_s, u"-1, -1, 1"_s}});
        start();
    }
    /// A selection of one of two records, as its Select screen would leave it.
    void select(Kind kind) {
        auto& data = program->store.Data(kind);
        data.RecordSource =
            store::info(kind).selectAll() + u" WHERE "_s + store::info(kind).key().column.toString() + u"=1"_s;
        data.Refresh();
        auto& memory = Desk::memory(kind);
        memory.ContSel = memory.ContFil = 1;
        memory.MemoSel.Lista = u"Surname#Same as#'a'#"_s;
        memory.MemoSel.ValorFiltro = u"Surname Same as 'a'"_s;
        memory.MemoSel.CampoOrden = memory.MemoSel.CriterioOrden = 0;
    }
    void goToRecordings() {
        hands->go(GetParam() - 6); // the composer's screen of the same function
        hands->clickTab(*program->window.Solapas().TabEntidad[0][std::size_t(GetParam() / 7 - 1)], 6);
    }
    static QString question(const QStringList& kinds) {
        return u"\r    The 'Current Selection' of:\r\r    - "_s + kinds.join(u"\r    - "_s) +
               u"\r\r    DOES NOT SHOW ALL of the Records and should be closed to continue.   \r\r"_s;
    }
};

TEST_P(CurrentSelection, NamesAllSixAndClosesThemOnOk) {
    for (const Kind kind : Parts) select(kind);
    boxes.expect(question({u"Composer"_s, u"Work"_s, u"Orchestra"_s, u"Conductor"_s, u"Performer"_s, u"Format"_s}),
                 box::OkCancel, box::Ok);
    goToRecordings();
    EXPECT_EQ(program->window.Solapas().VentanaMostrandose, GetParam());
    store::WorkingMemory fresh;
    for (const Kind kind : Parts) {
        EXPECT_EQ(program->store.Data(kind).RecordSource, store::info(kind).selectAll());
        fresh.of(kind).Cont = fresh.of(kind).ContSel = 2;
    }
    fresh.of(Kind::Grabacion).Cont = fresh.of(Kind::Grabacion).ContSel = 2;
    EXPECT_EQ(program->store.memory.dump().toStdString(), fresh.dump().toStdString());
    goToRecordings(); // a second time there is nothing to ask
}

TEST_P(CurrentSelection, LeavesForTheFirstSelectionOnCancel) {
    select(Kind::Interprete);
    select(Kind::Director);
    const QString before = program->store.memory.dump();
    boxes.expect(question({u"Conductor"_s, u"Performer"_s}), box::OkCancel, box::Cancel);
    goToRecordings();
    hands->screen(u"FormReg1SelDirector"_s);
    EXPECT_EQ(hands->text(u"LabNumReg"_s), u"1"_s);
    EXPECT_EQ(program->window.Solapas().TabRegistros1->Tab(), 1);
    EXPECT_EQ(program->store.memory.dump(), before);
    EXPECT_TRUE(program->store.Data(Kind::Director).RecordSource.endsWith(u"WHERE IdDirector=1"_s));
}

TEST_P(CurrentSelection, CountsAWorkOrAFormatOnlyIfTheRecordingHasOne) {
    select(Kind::Obra);
    select(Kind::Soporte);
    program->store.Data(Kind::Grabacion).Recordset().setAbsolutePosition(1);
    boxes.expect(question({u"Format"_s}), box::OkCancel, box::Ok);
    goToRecordings();
    EXPECT_EQ(program->window.Solapas().VentanaMostrandose, GetParam());
    EXPECT_EQ(memory(Kind::Obra).ContSel, 1);
    EXPECT_EQ(memory(Kind::Soporte).ContSel, 2);
}

std::string functionName(const ::testing::TestParamInfo<int>& screen) {
    return std::array{"Add", "Select", "ShowEdit", "ListPrint"}.at(std::size_t(screen.param / 7 - 1));
}

INSTANTIATE_TEST_SUITE_P(Screens, CurrentSelection, ::testing::Values(7, 14, 21, 28), functionName);

} // namespace
