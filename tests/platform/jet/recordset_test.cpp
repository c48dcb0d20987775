// Walking and writing a recordset, and the data channel around it.
#include "catalogue.h"

using namespace Qt::StringLiterals;

namespace zv::jet::test {
namespace {

const QString kAll = u"SELECT * FROM Compositor"_s;
const QString kName = u"Apellidos"_s;
const QString kYear = u"Fecha1"_s;

class RecordsetTest : public testing::Test {
  protected:
    static void add(DataControl& control, const QString& name, const QString& year) {
        Recordset& rows = control.Recordset();
        rows.AddNew();
        rows.Fields(kName).setValue(name);
        rows.Fields(kYear).setValue(year);
        rows.Update();
    }

    /// A control on the whole table, with as many rows as told: surnames "a", "b", ..., years 1, 2, ...
    DataControl filled(int rows) {
        DataControl control = catalogue.open(kAll);
        for (int i = 0; i < rows; ++i) add(control, QString(QChar(u'a' + i)), QString::number(i + 1));
        control.Refresh();
        return control;
    }

    QString names(const QString& source = kAll) { return catalogue.texts(source, kName).join(u' '); }

    Catalogue catalogue;
};

TEST_F(RecordsetTest, walksFromTheFirstRowToTheEnd) {
    DataControl control = filled(3);
    Recordset& rows = control.Recordset();
    EXPECT_EQ(rows.RecordCount(), 3);
    rows.MoveLast();
    EXPECT_EQ(rows.RecordCount(), 3);
    EXPECT_EQ(control.boundText(kName), u"c"_s);
    rows.MoveNext();
    EXPECT_TRUE(rows.EOF_());
    EXPECT_EQ(rows.AbsolutePosition(), -1);
    EXPECT_EQ(control.boundText(kName), u""_s);
    EXPECT_EQ(errorOf([&] { rows.MoveNext(); }), 3021);
    EXPECT_EQ(errorOf([&] { rows.Fields(kName).Value(); }), 3021);
    rows.setAbsolutePosition(1);
    EXPECT_EQ(control.boundText(u"apellidos"_s), u"b"_s);
    EXPECT_EQ(errorOf([&] { rows.setAbsolutePosition(3); }), 3001);
    EXPECT_EQ(errorOf([&] { rows.setAbsolutePosition(-1); }), 3001);
    EXPECT_EQ(rows.AbsolutePosition(), 1);
}

TEST_F(RecordsetTest, hasNoRowToMoveToWhenEmpty) {
    DataControl control = catalogue.open(kAll);
    Recordset& rows = control.Recordset();
    EXPECT_TRUE(rows.EOF_());
    EXPECT_EQ(rows.RecordCount(), 0);
    EXPECT_EQ(control.boundText(kName), u""_s);
    const std::initializer_list<std::function<void()>> refused{
        [&] { rows.MoveFirst(); }, [&] { rows.MoveLast(); },
        [&] { rows.MoveNext(); },  [&] { rows.setAbsolutePosition(0); },
        [&] { rows.Edit(); },      [&] { rows.Delete(); }};
    for (const auto& call : refused) EXPECT_EQ(errorOf(call), 3021);
}

TEST_F(RecordsetTest, putsANewRowLastAndStaysWhereItWas) {
    DataControl control = filled(2);
    control.RecordSource = kAll + u" ORDER BY Apellidos DESC"_s;
    control.Refresh();
    Recordset& rows = control.Recordset();
    rows.MoveLast();
    rows.MoveFirst();
    rows.AddNew();
    EXPECT_EQ(rows.Fields(kName).Value(), u""_s);
    rows.Fields(kName).setValue(u"z"_s);
    EXPECT_EQ(rows.Fields(kName).Value(), u"z"_s);
    rows.Update();
    EXPECT_EQ(rows.RecordCount(), 3);
    EXPECT_EQ(control.boundText(kName), u"b"_s);
    rows.MoveLast();
    EXPECT_EQ(control.boundText(kName), u"z"_s);
    EXPECT_EQ(control.boundText(kYear), u""_s);
    control.Refresh();
    EXPECT_EQ(control.boundText(kName), u"z"_s);
    EXPECT_EQ(control.boundText(u"Id"_s), u"3"_s);
}

TEST_F(RecordsetTest, dropsWhatWasNotUpdated) {
    DataControl control = filled(2);
    Recordset& rows = control.Recordset();
    rows.AddNew();
    rows.Fields(kName).setValue(u"lost"_s);
    rows.MoveLast();
    EXPECT_EQ(errorOf([&] { rows.Update(); }), 3020);
    EXPECT_EQ(errorOf([&] { rows.Fields(kName).setValue(u"x"_s); }), 3020);
    EXPECT_EQ(names(), u"a b"_s);
}

TEST_F(RecordsetTest, changesOnlyTheAssignedFieldsAndKeepsTheRowInItsPlace) {
    DataControl control = filled(3);
    control.RecordSource = kAll + u" WHERE Fecha1 < 3 ORDER BY Apellidos"_s;
    control.Refresh();
    Recordset& rows = control.Recordset();
    rows.Edit();
    sqlite(catalogue.path, "UPDATE Compositor SET Notas = 'by another' WHERE Id = 1");
    rows.Fields(kName).setValue(u"y"_s);
    rows.Fields(kYear).setValue(u"99"_s);
    rows.Update();
    EXPECT_EQ(rows.AbsolutePosition(), 0);
    EXPECT_EQ(control.boundText(kName), u"y"_s);
    EXPECT_EQ(control.boundText(u"Notas"_s), u"by another"_s);
    control.Refresh();
    EXPECT_EQ(control.boundText(kName), u"b"_s);
    EXPECT_EQ(names(), u"y b c"_s);
}

TEST_F(RecordsetTest, deletesTheCurrentRowAndGoesOnWithTheNext) {
    DataControl control = filled(4);
    Recordset& rows = control.Recordset();
    rows.MoveLast();
    rows.setAbsolutePosition(1);
    rows.Delete();
    EXPECT_EQ(rows.RecordCount(), 3);
    EXPECT_FALSE(rows.EOF_());
    EXPECT_EQ(errorOf([&] { rows.Fields(kName).Value(); }), 3167);
    EXPECT_EQ(errorOf([&] { rows.Delete(); }), 3167);
    EXPECT_EQ(control.boundText(kName), u""_s);
    rows.MoveNext();
    EXPECT_EQ(rows.AbsolutePosition(), 1);
    EXPECT_EQ(control.boundText(kName), u"c"_s);
    rows.MoveLast();
    rows.Delete();
    rows.MoveNext();
    EXPECT_TRUE(rows.EOF_());
    EXPECT_EQ(names(), u"a c"_s);
    while (rows.RecordCount() > 0) {
        rows.MoveFirst();
        rows.Delete();
    }
    EXPECT_FALSE(rows.EOF_());
    rows.MoveNext();
    EXPECT_TRUE(rows.EOF_());
    EXPECT_EQ(names(), u""_s);
    add(control, u"next"_s, u"0"_s);
    EXPECT_EQ(catalogue.texts(kAll, u"Id"_s), QStringList(u"5"_s)) << "keys are never given twice";
}

TEST_F(RecordsetTest, readsAColumnOfAllRowsInTheirOrderAndStaysWhereItIs) {
    filled(4);
    DataControl control = catalogue.open(kAll + u" WHERE Fecha1 > 1 ORDER BY Fecha1 DESC"_s);
    control.Recordset().setAbsolutePosition(2);
    sqlite(catalogue.path, "DELETE FROM Compositor WHERE Apellidos = 'c'");
    EXPECT_EQ(control.Recordset().columnTexts(u"apellidos"_s), (std::vector<QString>{u"d"_s, u""_s, u"b"_s}));
    EXPECT_EQ(control.boundText(kName), u"b"_s);
    EXPECT_EQ(errorOf([&] { control.Recordset().columnTexts(u"Nadie"_s); }), 3265);
    EXPECT_TRUE(catalogue.open(kAll + u" WHERE Id = -1"_s).Recordset().columnTexts(kName).empty());
}

TEST_F(RecordsetTest, noticesThatAnotherProgramRemovedTheRow) {
    DataControl control = filled(2);
    sqlite(catalogue.path, "DELETE FROM Compositor WHERE Id = 1");
    Recordset& rows = control.Recordset();
    EXPECT_EQ(control.boundText(kName), u""_s);
    EXPECT_EQ(errorOf([&] { rows.Fields(kName).Value(); }), 3167);
    EXPECT_EQ(errorOf([&] { rows.Edit(); }), 3167);
    EXPECT_EQ(errorOf([&] { rows.Delete(); }), 3167);
    rows.MoveNext();
    rows.Edit();
    rows.Fields(kName).setValue(u"x"_s);
    sqlite(catalogue.path, "DELETE FROM Compositor");
    EXPECT_EQ(errorOf([&] { rows.Update(); }), 3167);
}

TEST_F(RecordsetTest, convertsTextsByTheKindOfTheColumn) {
    struct Case {
        QString column, text;
        int error;
        QString stored;
    };
    const Case cases[]{{kYear, u"1685"_s, 0, u"1685 integer"_s},
                       {kYear, u" 12 "_s, 0, u"12 integer"_s},
                       {kYear, u"1,700"_s, 0, u"1700 integer"_s},
                       {kYear, u"(5)"_s, 0, u"-5 integer"_s},
                       {kYear, u"2.5"_s, 0, u"2.5 real"_s},
                       {kYear, u"1e20"_s, 0, u"1E+20 real"_s},
                       {kYear, u""_s, 3421, u""_s},
                       {kYear, u"abc"_s, 3421, u""_s},
                       {kYear, u"1e999"_s, 3421, u""_s},
                       {kName, QString(50, QChar(0xE9)), 0, QString(50, QChar(0xE9)) + u" text"_s},
                       {kName, QString(51, u'x'), 3163, u""_s},
                       {kName, u""_s, 0, u" text"_s},
                       {kName, u"123"_s, 0, u"123 text"_s},
                       {u"Notas"_s, u"a\r\nb 'c' \"d\" ✓"_s, 0, u"a\r\nb 'c' \"d\" ✓ text"_s},
                       {u"Id"_s, u"7"_s, 3164, u""_s}};
    for (const Case& one : cases) {
        SCOPED_TRACE(one.text.toStdString());
        DataControl control = catalogue.open(kAll);
        Recordset& rows = control.Recordset();
        rows.AddNew();
        ASSERT_EQ(errorOf([&] { rows.Fields(one.column).setValue(one.text); }), one.error);
        if (one.error != 0) continue;
        rows.Update();
        rows.MoveLast();
        sqlite(catalogue.path, "UPDATE Compositor SET Nombre = typeof(Fecha1) || typeof(Apellidos) || typeof(Notas)");
        const QString types = control.boundText(u"Nombre"_s).remove(u"null"_s);
        EXPECT_EQ((control.boundText(one.column) + u' ' + types).toStdString(), one.stored.toStdString());
    }
}

TEST_F(RecordsetTest, readsWhatOtherToolsWrote) {
    sqlite(catalogue.path, "INSERT INTO Compositor (Apellidos, Fecha1, Notas) VALUES (12, 'abc', x'41')");
    DataControl control = catalogue.open(kAll);
    EXPECT_EQ(control.boundText(kName), u"12"_s);
    EXPECT_EQ(control.boundText(kYear), u"abc"_s);
    EXPECT_EQ(control.boundText(u"Notas"_s), u"A"_s);
    EXPECT_EQ(names(u"SELECT * FROM Compositor WHERE Fecha1 = 0 OR NOT Fecha1 = 0"_s), u""_s);
    sqlite(catalogue.path, "ALTER TABLE Compositor DROP COLUMN Fecha2; DROP TABLE RelacionDirector;"
                           "CREATE VIEW RelacionDirector AS SELECT 1 AS IdGrabacion");
    control.Refresh();
    EXPECT_EQ(control.boundText(kName), u"12"_s);
    EXPECT_EQ(errorOf([&] { control.boundText(u"Fecha2"_s); }), 3265);
    EXPECT_EQ(errorOf([&] { names(kAll + u" WHERE Fecha2 = 1"_s); }), 3061);
    EXPECT_EQ(errorOf([&] { names(u"SELECT * FROM RelacionDirector"_s); }), 3078);
}

TEST_F(RecordsetTest, keepsTheRowsOfTheMomentOfItsRefresh) {
    DataControl first = filled(5);
    sqlite(catalogue.path, "DELETE FROM Compositor WHERE Id = 3"); // keys with a gap from here on
    first.Refresh();
    DataControl second = catalogue.open(kAll);
    add(second, u"f"_s, u"6"_s);
    second.Recordset().MoveFirst();
    second.Recordset().Delete();
    first.Recordset().MoveLast();
    EXPECT_EQ(first.Recordset().RecordCount(), 4);
    EXPECT_EQ(first.boundText(kName), u"e"_s);
    EXPECT_EQ(names(), u"b d e f"_s);
}

TEST_F(RecordsetTest, worksOnTablesWithoutAKey) {
    DataControl control = catalogue.open(u"SELECT * FROM RelacionDirector WHERE IdGrabacion=4"_s);
    for (const QString& director : {u"9"_s, u"7"_s, u"9"_s}) {
        control.Recordset().AddNew();
        control.Recordset().Fields(u"IDGrabacion"_s).setValue(u"4"_s);
        control.Recordset().Fields(u"IdDirector"_s).setValue(director);
        control.Recordset().Update();
    }
    control.Refresh();
    control.Recordset().Delete();
    EXPECT_EQ(catalogue.texts(control.RecordSource, u"IdDirector"_s), (QStringList{u"7"_s, u"9"_s}));
    EXPECT_EQ(errorOf([&] { control.Recordset().Fields(u"Id"_s); }), 3265);
}

TEST_F(RecordsetTest, keepsTheRowsOfBeforeAfterAFailedRefresh) {
    DataControl control = filled(1);
    control.RecordSource = u"SELECT * FROM Compositor WHERE Apellidos = 'O'Brien'"_s;
    EXPECT_EQ(errorOf([&] { control.Refresh(); }), 3075);
    EXPECT_EQ(control.Recordset().RecordCount(), 1);
    EXPECT_EQ(control.boundText(kName), u"a"_s);
    control.RecordSource = u"Compositor"_s;
    control.Refresh();
    EXPECT_EQ(control.boundText(kName), u"a"_s);
}

} // namespace
} // namespace zv::jet::test
