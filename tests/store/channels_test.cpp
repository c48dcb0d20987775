// The generic operations on the channels.
#include "store_fixture.h"

using namespace Qt::StringLiterals;

namespace zv::store::test {
namespace {

class Channels : public StoreTest {
  protected:
    /// Rows of composers with these surnames, opened.
    void loadWith(const QStringList& surnames) {
        for (const QString& name : surnames) sql(u"INSERT INTO Compositor(Apellidos) VALUES('%1')"_s.arg(name));
        load();
    }
    jet::Recordset& composers() { return store.Data(1, 0).Recordset(); }
    QString shown() { return store.Data(1, 0).boundText(u"Apellidos"_s); }
    QStringList surnames() { return rows(u"SELECT Apellidos FROM Compositor ORDER BY Id"_s); }

    /// Writes one column of a composer.
    void write(bool add, const QString& value, const QString& column = u"Apellidos"_s) {
        Campos campos;
        campos.set(0, column, value);
        store.GrabarRegistro(0, 1, add, campos);
    }
};

TEST_F(Channels, aLoadOpensTheTablesAndLeavesTheLinksForLater) {
    loadWith({u"one"_s, u"two"_s});
    EXPECT_EQ(composers().RecordCount(), 2);
    EXPECT_EQ(shown(), u"one"_s);
    EXPECT_TRUE(store.Data(2, 6).Recordset().EOF_());
    for (int link = 7; link <= 9; ++link) EXPECT_THROW(store.Data(1, link).Recordset(), RuntimeError) << link;
    EXPECT_THROW(store.Data(1, 10), RuntimeError);
    EXPECT_THROW(store.Data(2, 7), RuntimeError);
}

TEST_F(Channels, upToAHundredColumnsAreWritten) {
    loadWith({});
    Campos campos;
    for (int i = 0; i < Campos::Columns; ++i) campos.set(i, u"Apellidos", u"value %1"_s.arg(i));
    for (const int refused : {101, -1, -32768}) {
        store.GrabarRegistro(0, refused, true, campos);
        EXPECT_EQ(surnames(), QStringList{}) << refused;
        EXPECT_EQ(errorState(), u"clear 0"_s) << refused;
    }
    store.GrabarRegistro(0, 100, true, campos);
    EXPECT_EQ(surnames(), QStringList{u"value 99"_s});
    EXPECT_THROW(campos.at(0, 101), RuntimeError);
}

TEST_F(Channels, aWriteChangesTheCurrentRowOrAddsTheLastAndLeavesTheFirst) {
    loadWith({u"one"_s, u"two"_s, u"three"_s});
    composers().setAbsolutePosition(1);
    write(false, u"second"_s);
    EXPECT_EQ(surnames(), (QStringList{u"one"_s, u"second"_s, u"three"_s}));
    EXPECT_EQ(composers().AbsolutePosition(), 0);
    write(true, u"four"_s);
    EXPECT_EQ(surnames(), (QStringList{u"one"_s, u"second"_s, u"three"_s, u"four"_s}));
    EXPECT_EQ(shown(), u"one"_s);
}

TEST_F(Channels, aChangeWithoutRowsAddsOne) {
    loadWith({u"one"_s});
    store.Data(1, 0).RecordSource = u"SELECT * FROM Compositor WHERE Apellidos = 'nobody'"_s;
    store.Data(1, 0).Refresh();
    write(false, u"two"_s);
    EXPECT_EQ(surnames(), (QStringList{u"one"_s, u"two"_s}));
    EXPECT_EQ(composers().RecordCount(), 0) << "The refresh runs the channel's own statement.";
}

TEST_F(Channels, removingGoesOnToTheNextRowAndEndsWithoutOne) {
    loadWith({u"one"_s, u"two"_s});
    store.EliminarRegistro(0);
    EXPECT_EQ(surnames(), QStringList{u"two"_s});
    EXPECT_EQ(shown(), u"two"_s);
    store.EliminarRegistro(0);
    EXPECT_TRUE(composers().EOF_());
    EXPECT_EQ(composers().RecordCount(), 0);
    EXPECT_EQ(boxes.shown, QStringList{});
    store.EliminarRegistro(0);
    store.EliminarRegistro2(1);
    EXPECT_EQ(boxes.shown,
              (QStringList{u"16: A record has been not chosen."_s, u"16: A record has been not chosen."_s}));
    EXPECT_EQ(errorState(), u"clear 0"_s);
}

TEST_F(Channels, aFailureSetsTheFlagAndItsNumberSurvives) {
    struct Case {
        QString column, value;
        int number;
    };
    const Case cases[] = {{u"Fecha1"_s, u"sixteen"_s, 3421},
                          {u"Apellidos"_s, QString(51, u'x'), 3163},
                          {u"Apellido"_s, u"x"_s, 3265},
                          {u"Id"_s, u"7"_s, 3164}};
    loadWith({u"one"_s});
    for (const Case& c : cases)
        for (const bool add : {true, false}) {
            SCOPED_TRACE(c.number);
            store.module1.ErrorBaseDatos = false;
            write(add, c.value, c.column);
            EXPECT_EQ(errorState(), u"set %1"_s.arg(c.number));
            EXPECT_EQ(surnames(), QStringList{u"one"_s});
        }
    // A good write clears neither; reporting is the caller's.
    write(true, u"two"_s);
    EXPECT_EQ(errorState(), u"set 3164"_s);
    EXPECT_EQ(surnames(), (QStringList{u"one"_s, u"two"_s}));
    EXPECT_EQ(boxes.shown, QStringList{});
    store.reportError();
    EXPECT_EQ(boxes.shown, QStringList{u"16: Has occurred Error: 3164"_s});
}

} // namespace
} // namespace zv::store::test
