// Walking and writing a recordset.
#include "catalogue.h"

using namespace Qt::StringLiterals;

namespace zv::jet::test {
namespace {

class RecordsetTest : public testing::Test {
  protected:
    void add(DataControl& control, const QString& name, const QString& year) {
        Recordset& rows = control.Recordset();
        rows.AddNew();
        rows.Fields(u"Apellidos"_s).setValue(name);
        rows.Fields(u"Fecha1"_s).setValue(year);
        rows.Update();
    }

    /// A control on the whole table, with as many rows as told: surnames "a", "b", ..., years 1, 2, ...
    DataControl filled(int rows) {
        DataControl control = catalogue.open(u"SELECT * FROM Compositor"_s);
        for (int i = 0; i < rows; ++i) add(control, QString(QChar(u'a' + i)), QString::number(i + 1));
        control.Refresh();
        return control;
    }

    Catalogue catalogue;
};

TEST_F(RecordsetTest, walksFromTheFirstRowToTheEndAndCountsWhatItHasVisited) {
    DataControl control = filled(3);
    Recordset& rows = control.Recordset();
    EXPECT_EQ(rows.RecordCount(), 1);
    rows.MoveLast();
    EXPECT_EQ(rows.RecordCount(), 3);
    EXPECT_EQ(control.boundText(u"Apellidos"_s), u"c"_s);
    rows.MoveNext();
    EXPECT_TRUE(rows.EOF_());
    EXPECT_EQ(rows.AbsolutePosition(), -1);
    EXPECT_EQ(control.boundText(u"Apellidos"_s), u""_s);
    EXPECT_EQ(errorOf([&] { rows.MoveNext(); }), 3021);
    rows.setAbsolutePosition(1);
    EXPECT_EQ(control.boundText(u"apellidos"_s), u"b"_s);
    EXPECT_EQ(errorOf([&] { rows.setAbsolutePosition(3); }), 3001);
}

} // namespace
} // namespace zv::jet::test
