// The groups that the Show-Edit screens of conductors, orchestras and performers gather for a recording.
#include "editors/editor_member.h"
#include <QTest>

using namespace Qt::StringLiterals;

namespace zv::test {
namespace {

/// A kind with its two tables of Module1, the records that its group takes, and the words at the last of them.
struct GroupCase {
    Kind kind;
    store::FixedTable store::Module1::*ana;
    store::FixedTable store::Module1::*mos;
    int limit;
    QString full;
    QString row; ///< text of the row of record %1
};

const GroupCase Groups[] = {
    {Kind::Director, &store::Module1::ListaDirectorAna, &store::Module1::ListaDirectorMos, 10,
     u"10 Conductors Maximum."_s, u"N%1 A%1"_s},
    {Kind::Orquesta, &store::Module1::ListaOrquestaAna, &store::Module1::ListaOrquestaMos, 10,
     u"10 Orchestras-Ensembles-Choirs Maximum."_s, u"N%1"_s},
    {Kind::Interprete, &store::Module1::ListaInterpreteAna, &store::Module1::ListaInterpreteMos, 100,
     u"100 Performers Maximum."_s, u"N%1 A%1, I%1"_s},
};

void PrintTo(const GroupCase& group, std::ostream* out) {
    *out << store::info(group.kind).table.toString().toStdString();
}

class Group : public Desk, public ::testing::WithParamInterface<GroupCase> {
  protected:
    const GroupCase& g = GetParam();
    const store::KindInfo& kind = store::info(g.kind);
    const int showNumber = shell::screenNumber(1, shell::Function::ShowEdit, kind.tab);

    void open(int records) {
        const QString columns = g.kind == Kind::Orquesta   ? u"OrqGrpCor, Nombre"_s
                                : g.kind == Kind::Director ? u"Nombre, Apellidos"_s
                                                           : u"Nombre, Apellidos, Instrumento"_s;
        const QString values = g.kind == Kind::Orquesta   ? u"'2', 'N%1'"_s
                               : g.kind == Kind::Director ? u"'N%1', 'A%1'"_s
                                                          : u"'N%1', 'A%1', 'I%1'"_s;
        Rows rows{kind.table.toString(), columns, {}};
        for (int i = 1; i <= records; ++i) rows.values += values.arg(i);
        if (records > 0) put(rows);
        start();
        hands->go(showNumber);
    }
    store::Module1& state() { return program->store.module1; }
    forms::FlexGrid& grid() { return hands->get<forms::FlexGrid>(u"MSFlexGrid1"_s); }
    void show(int record) { hands->type(u"TxtOrden"_s, QString::number(record)); }
    void add() { hands->click(u"BtnAñadirGrupo"_s); }
    void addRecord(int record) {
        show(record);
        add();
    }
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
        if (g.kind == Kind::Interprete) {
            EXPECT_EQ(hands->text(u"LabNumeroInterpretes"_s),
                      keys.isEmpty() ? QString() : QString::number(keys.size()));
        }
        return keys.join(u' ');
    }
    /// Keys in a table up to the first free row.
    static QString keys(const store::FixedTable& table) {
        QStringList found;
        for (int row = 0; row < table.rows() && table.at(row, 1).toInt() > 0; ++row) found += table.at(row, 1);
        return found.join(u' ');
    }
    QString groups() { return u"ana ["_s + keys(state().*g.ana) + u"] mos ["_s + keys(state().*g.mos) + u']'; }
    void modifyName() {
        hands->click(u"BtnModificar"_s);
        hands->type(g.kind == Kind::Orquesta ? u"TxtNombreGrupo"_s : u"TxtApellidos"_s, u"changed"_s);
    }
};

INSTANTIATE_TEST_SUITE_P(Editors, Group, ::testing::ValuesIn(Groups), [](const auto& group) {
    return store::info(group.param.kind).table.toString().toStdString();
});

TEST_P(Group, aRecordEntersOnceAndTheGroupStaysWhileTheUserWalks) {
    open(4);
    EXPECT_EQ(shown(), u"");
    add();
    addRecord(3);
    add();
    EXPECT_EQ(shown(), u"1 3");
    show(4);
    EXPECT_EQ(shown(), u"1 3");
    addRecord(1);
    addRecord(2);
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
    gathered(state().*g.ana, 1);
    gathered(state().*g.mos, 2);
    state().RegresoMosGrabacion = true;
    hands->go(57);
    hands->go(showNumber);
    EXPECT_EQ(shown(), u"1 2");
    auto& back = hands->get<forms::Button>(u"BtnRegresar"_s);
    EXPECT_EQ(back.Left(), 3390);
    back.setLeft(4800);
    addRecord(4);
    EXPECT_EQ(back.Left(), 3390) << "Back comes to where it is seen";
    EXPECT_EQ(back.Top(), 7230);
    EXPECT_EQ(shown(), u"1 2 4");
    EXPECT_EQ(groups(), u"ana [1] mos [1 2 4]"_s);
    // An accepted change gives up the other group; this one comes back with the next record.
    modifyName();
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(grid().Rows(), 0);
    EXPECT_EQ(groups(), u"ana [] mos [1 2 4]"_s);
    show(3);
    EXPECT_EQ(shown(), u"1 2 4");
}

TEST_P(Group, aFullGroupSaysSoOnceAndTakesOneMoreAfterTheScreenCameAgain) {
    open(g.limit + 2);
    gathered(state().*g.ana, g.limit - 2);
    addRecord(g.limit - 1);
    EXPECT_TRUE(hands->isEnabled(u"BtnAñadirGrupo"_s));
    show(g.limit);
    boxes.expect(g.full, box::Warning);
    add();
    EXPECT_EQ(grid().Rows(), g.limit);
    EXPECT_FALSE(hands->isEnabled(u"BtnAñadirGrupo"_s));
    remove(0);
    EXPECT_TRUE(hands->isEnabled(u"BtnAñadirGrupo"_s));
    boxes.expect(g.full, box::Warning);
    addRecord(1);

    hands->go(57);
    hands->go(showNumber);
    EXPECT_EQ(grid().Rows(), g.limit);
    addRecord(g.limit + 1);
    EXPECT_EQ(grid().Rows(), g.limit + 1);
    EXPECT_TRUE(hands->isEnabled(u"BtnAñadirGrupo"_s));
    EXPECT_EQ((state().*g.ana).at(g.limit, 1), QString::number(g.limit + 1));
    // The screen shows no more than the limit, so that a further record takes the last place again.
    addRecord(g.limit + 2);
    EXPECT_EQ((state().*g.ana).at(g.limit, 1), QString::number(g.limit + 2));
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
    const auto gather = [this] {
        addRecord(2);
        addRecord(1);
        EXPECT_EQ(shown(), u"2 1");
    };
    gather();
    modifyName();
    hands->click(u"BtnDeshacer"_s);
    EXPECT_EQ(shown(), u"2 1");
    show(3);
    modifyName();
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(grid().Rows() + grid().Cols(), 0);
    EXPECT_EQ(groups(), u"ana [] mos []"_s);

    gather();
    show(6);
    boxes.expect(store::MensaEliRegPosibleGrabacion, box::YesNoInformation, box::Yes);
    hands->click(u"BtnEliminar"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(shown(), u"");
    EXPECT_EQ(groups(), u"ana [] mos []"_s);
    show(4);
    EXPECT_EQ(shown(), u"");

    gather();
    modifyName();
    sql(u"DELETE FROM "_s + kind.table.toString());
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
