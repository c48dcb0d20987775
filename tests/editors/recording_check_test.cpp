// The question of the current selections that both screens of recordings ask before they are filled.
#include "editors/recording_desk.h"

namespace zv::test {
namespace {

using store::Kind;

constexpr Kind Kinds[] = {Kind::Compositor, Kind::Obra,       Kind::Orquesta,
                          Kind::Director,   Kind::Interprete, Kind::Soporte};

/// The number of a screen of recordings.
class RecordingCheck : public RecordingDesk, public ::testing::WithParamInterface<int> {
  protected:
    void SetUp() override { putParts(3, 3); }
    /// A selection of a part as its Select screen leaves it: one row of three.
    void select(Kind kind) {
        jet::DataControl& channel = program->store.Data(kind);
        const auto& info = store::info(kind);
        channel.RecordSource = info.selectAll() + u" WHERE "_s + info.key().column.toString() + u"=2"_s;
        channel.Refresh();
        store::KindMemory& of = memory(kind);
        of.ContSel = 1;
        of.ContFil = 1;
        of.MemoSel = {.NT = 0,
                      .OpcionSQL = u"sql"_s,
                      .ValorFiltro = u"filter"_s,
                      .Lista = u"#row#"_s,
                      .CampoOrden = 1,
                      .CriterioOrden = 0};
    }
    /// Goes to the screen of the parameter by its tabs.
    void come() {
        auto& strip = program->window.Solapas();
        hands->clickTab(*strip.TabNivel1, 0);
        hands->clickTab(*strip.TabRegistros1, GetParam() == Add ? 0 : 2);
        hands->clickTab(*strip.TabEntidad[0][GetParam() == Add ? 0 : 2], 6);
    }
    static QString question(const QString& kinds) {
        return u"\r    The 'Current Selection' of:\r\r"_s + kinds +
               u"\r    DOES NOT SHOW ALL of the Records and should be closed to continue.   \r\r"_s;
    }
};

INSTANTIATE_TEST_SUITE_P(Editors, RecordingCheck, ::testing::Values(7, 21),
                         [](const auto& screen) { return screen.param == 7 ? "Add" : "ShowEdit"; });

TEST_P(RecordingCheck, okClosesTheSelectionsOfAllParts) {
    putRecordings({{1, 1, 1, {1}, {1}, {1}}});
    start();
    hands->go(Elsewhere);
    for (const Kind kind : Kinds) select(kind);
    boxes.expect(
        question(u"    - Composer\r    - Work\r    - Orchestra\r    - Conductor\r    - Performer\r    - Format\r"_s),
        33, box::Ok);
    come();
    EXPECT_EQ(program->window.Solapas().VentanaMostrandose, GetParam());
    expectWholeTables();
    for (const Kind kind : Kinds) {
        const store::KindMemory& of = memory(kind);
        EXPECT_EQ(of.ContSel, 3);
        EXPECT_EQ(of.ContFil, 0);
        EXPECT_EQ(of.MemoSel.CampoOrden, -1);
        EXPECT_EQ(of.MemoSel.CriterioOrden, -1);
        EXPECT_EQ(of.MemoSel.NT, 2);
        EXPECT_EQ(of.MemoSel.Lista, u"#"_s);
        EXPECT_EQ(of.MemoSel.OpcionSQL + of.MemoSel.ValorFiltro, QString());
    }
    EXPECT_EQ(listed(Conductor), GetParam() == ShowEdit ? u"D Conductor 1"_s : QString());
    hands->go(Elsewhere);
    come();
}

TEST_P(RecordingCheck, cancelLeadsToTheSelectScreenOfTheFirst) {
    // Without a work of its own the selection of the works does not count.
    putRecordings({{-1, -1, 1, {1}, {1}, {1}}});
    start();
    hands->go(Elsewhere);
    select(Kind::Obra);
    come();
    EXPECT_EQ(program->window.Solapas().VentanaMostrandose, GetParam());
    for (const auto& [kind, screen, kinds] :
         {std::tuple{Kind::Soporte, u"FormReg1SelSoporte"_s, u"    - Format\r"_s},
          std::tuple{Kind::Interprete, u"FormReg1SelInterprete"_s, u"    - Performer\r    - Format\r"_s},
          std::tuple{Kind::Compositor, u"FormReg1SelCompositor"_s,
                     u"    - Composer\r    - Performer\r    - Format\r"_s}}) {
        SCOPED_TRACE(kinds.toStdString());
        hands->go(FirstShowEdit); // so that coming back by the first tab is not yet coming to the recordings
        hands->go(Elsewhere);
        select(kind);
        boxes.expect(question(kinds), 33, box::Cancel);
        come();
        hands->screen(screen);
        EXPECT_EQ(program->window.Solapas().TabRegistros1->Tab(), 1);
        EXPECT_EQ(program->window.Solapas().SolapaRegistros1, store::info(kind).tab);
        EXPECT_EQ(memory(kind).ContSel, 1);
        EXPECT_EQ(memory(kind).MemoSel.Lista, u"#row#"_s);
        EXPECT_TRUE(tabsFree());
    }
}

} // namespace
} // namespace zv::test
