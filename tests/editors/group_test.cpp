// The groups that the Show-Edit screens of conductors, orchestras and performers gather for a recording.
#include "editors/recording_desk.h"
#include <QTest>

namespace zv::test {
namespace {

/// A part with its two tables of Module1, the records that its group takes, and the words at the last of them.
struct GroupCase {
    Part part;
    store::Kind kind;
    store::FixedTable store::Module1::*ana;
    store::FixedTable store::Module1::*mos;
    int limit;
    QString full;
    QString row; ///< text of the row of record %1
};

const GroupCase Groups[] = {
    {Conductor, store::Kind::Director, &store::Module1::ListaDirectorAna, &store::Module1::ListaDirectorMos, 10,
     u"10 Conductors Maximum."_s, u"D Conductor %1"_s},
    {Orchestra, store::Kind::Orquesta, &store::Module1::ListaOrquestaAna, &store::Module1::ListaOrquestaMos, 10,
     u"10 Orchestras-Ensembles-Choirs Maximum."_s, u"Orchestra %1"_s},
    {Performer, store::Kind::Interprete, &store::Module1::ListaInterpreteAna, &store::Module1::ListaInterpreteMos, 100,
     u"100 Performers Maximum."_s, u"P Performer %1, horn"_s},
};

void PrintTo(const GroupCase& group, std::ostream* out) {
    *out << store::info(group.kind).table.toString().toStdString();
}

class Group : public RecordingDesk, public ::testing::WithParamInterface<GroupCase> {
  protected:
    const GroupCase& g = GetParam();
    const int showNumber = FirstShowEdit + g.part;

    void open(int records) {
        if (records != 0) putParts(records, records);
        start();
        hands->go(showNumber);
    }
    forms::FlexGrid& grid() { return hands->get<forms::FlexGrid>(u"MSFlexGrid1"_s); }
    void add() { hands->click(u"BtnAñadirGrupo"_s); }
    void remove(int row) {
        QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, grid().visualItemRect(grid().item(row, 0)).center());
        hands->click(u"BtnEliminarGrupo"_s);
    }
    /// Fills the first rows of a table as earlier visits would have.
    void gathered(store::FixedTable& table, int rows) {
        for (int row = 0; row < rows; ++row) {
            table.at(row, 0) = g.row.arg(row + 1);
            table.at(row, 1) = QString::number(row + 1);
        }
    }
    /// Keys in the grid; each row must tell its record.
    QString shown() {
        QStringList keys;
        for (int row = 0; row < grid().Rows(); ++row) {
            keys += grid().TextMatrix(row, 1);
            EXPECT_EQ(grid().TextMatrix(row, 0), g.row.arg(keys.last()));
        }
        if (g.part == Performer) {
            EXPECT_EQ(hands->text(u"LabNumeroInterpretes"_s),
                      keys.isEmpty() ? QString() : QString::number(keys.size()));
        }
        return keys.join(u' ');
    }
    /// Keys in a table up to the first free row.
    static QString keysIn(const store::FixedTable& table) {
        QStringList found;
        for (int row = 0; row < table.rows() && table.at(row, 1).toInt() > 0; ++row) found += table.at(row, 1);
        return found.join(u' ');
    }
    QString groups() { return u"ana ["_s + keysIn(module1().*g.ana) + u"] mos ["_s + keysIn(module1().*g.mos) + u']'; }
    void modifyName() {
        hands->click(u"BtnModificar"_s);
        hands->type(g.part == Orchestra ? u"TxtNombreOrquesta"_s : u"TxtApellidos"_s, u"changed"_s);
    }
};

INSTANTIATE_TEST_SUITE_P(Editors, Group, ::testing::ValuesIn(Groups), [](const auto& group) {
    return store::info(group.param.kind).table.toString().toStdString();
});

TEST_P(Group, aRecordEntersOnceAndTheGroupStaysWhileTheUserWalks) {
    open(4);
    EXPECT_EQ(shown(), u"");
    add();
    gather(3);
    add();
    EXPECT_EQ(shown(), u"1 3");
    walk(4);
    EXPECT_EQ(shown(), u"1 3");
    gather(1);
    gather(2);
    EXPECT_EQ(shown(), u"1 3 2");
    EXPECT_EQ(groups(), u"ana [1 3 2] mos []"_s);
    hands->go(57);
    hands->go(showNumber);
    EXPECT_EQ(shown(), u"1 3 2");
    EXPECT_EQ(grid().ColWidth(0), grid().Width());
    EXPECT_EQ(grid().ColWidth(1), 0);
    const auto& back = hands->get<forms::Button>(u"BtnRegresar"_s);
    EXPECT_EQ(back.Left(), 4800);

    remove(1);
    EXPECT_EQ(shown(), u"1 2");
    EXPECT_EQ(groups(), u"ana [1 2] mos []"_s);
    remove(1);
    remove(0);
    EXPECT_EQ(shown(), u"");
    hands->click(u"BtnEliminarGrupo"_s);
    EXPECT_EQ(groups(), u"ana [] mos []"_s);
}

TEST_P(Group, aRecordingOnDisplayHasItsOwnGroup) {
    open(4);
    gathered(module1().*g.ana, 1);
    gathered(module1().*g.mos, 2);
    module1().RegresoMosGrabacion = true;
    hands->go(57);
    hands->go(showNumber);
    EXPECT_EQ(shown(), u"1 2");
    auto& back = hands->get<forms::Button>(u"BtnRegresar"_s);
    EXPECT_EQ(back.Left(), 3390);
    back.setLeft(4800);
    gather(4);
    EXPECT_EQ(back.Left(), 3390) << "Back comes to where it is seen";
    EXPECT_EQ(back.Top(), 7230);
    EXPECT_EQ(shown(), u"1 2 4");
    EXPECT_EQ(groups(), u"ana [1] mos [1 2 4]"_s);
    // An accepted change gives up the other group; this one comes back with the next record.
    modifyName();
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(grid().Rows(), 0);
    EXPECT_EQ(groups(), u"ana [] mos [1 2 4]"_s);
    walk(3);
    EXPECT_EQ(shown(), u"1 2 4");
}

TEST_P(Group, aFullGroupSaysSoOnceAndTakesOneMoreAfterTheScreenCameAgain) {
    open(g.limit + 2);
    gathered(module1().*g.ana, g.limit - 2);
    gather(g.limit - 1);
    EXPECT_TRUE(hands->isEnabled(u"BtnAñadirGrupo"_s));
    walk(g.limit);
    boxes.expect(g.full, box::Warning);
    add();
    EXPECT_EQ(grid().Rows(), g.limit);
    EXPECT_FALSE(hands->isEnabled(u"BtnAñadirGrupo"_s));
    remove(0);
    EXPECT_TRUE(hands->isEnabled(u"BtnAñadirGrupo"_s));
    boxes.expect(g.full, box::Warning);
    gather(1);

    hands->go(57);
    hands->go(showNumber);
    EXPECT_EQ(grid().Rows(), g.limit);
    gather(g.limit + 1);
    EXPECT_EQ(grid().Rows(), g.limit + 1);
    EXPECT_TRUE(hands->isEnabled(u"BtnAñadirGrupo"_s));
    EXPECT_EQ((module1().*g.ana).at(g.limit, 1), QString::number(g.limit + 1));
    // The screen shows no more than the limit, so that a further record takes the last place again.
    gather(g.limit + 2);
    EXPECT_EQ((module1().*g.ana).at(g.limit, 1), QString::number(g.limit + 2));
    // A record beyond the table is an error that nothing catches.
    std::vector<int> fatal;
    setFatalErrorHandler([&](const RuntimeError& error) { fatal.push_back(error.number()); });
    program->store.Data(g.kind).Recordset().setAbsolutePosition(g.limit);
    add();
    EXPECT_EQ(fatal, std::vector<int>{9});
    stop();
    setFatalErrorHandler(nullptr);
}

TEST_P(Group, whateverIsAcceptedGivesTheGroupUp) {
    open(6);
    const auto gatherTwo = [this] {
        gather(2);
        gather(1);
        EXPECT_EQ(shown(), u"2 1");
    };
    gatherTwo();
    modifyName();
    hands->click(u"BtnDeshacer"_s);
    EXPECT_EQ(shown(), u"2 1");
    walk(3);
    modifyName();
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(grid().Rows() + grid().Cols(), 0);
    EXPECT_EQ(groups(), u"ana [] mos []"_s);

    gatherTwo();
    walk(6);
    boxes.expect(store::MensaEliRegPosibleGrabacion, box::YesNoInformation, box::Yes);
    hands->click(u"BtnEliminar"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(shown(), u"");
    EXPECT_EQ(groups(), u"ana [] mos []"_s);
    walk(4);
    EXPECT_EQ(shown(), u"");

    gatherTwo();
    modifyName();
    sql(u"DELETE FROM "_s + name(g.part));
    boxes.expect(u"Has occurred Error: 3167"_s, box::Critical);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(shown(), u"");
    EXPECT_EQ(groups(), u"ana [] mos []"_s);
}

TEST_P(Group, anEmptyTableAddsNothing) {
    open(0);
    add();
    hands->click(u"BtnEliminarGrupo"_s);
    EXPECT_EQ(shown(), u"");
    EXPECT_EQ(groups(), u"ana [] mos []"_s);
}

} // namespace
} // namespace zv::test
