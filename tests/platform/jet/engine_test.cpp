// Files: what is opened, what is refused and how, new files and compacted ones.
#include "catalogue.h"
#include "support/file_bytes.h"
#include <QDir>
#include <QFile>
#include <cstdio>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using zv::test::bytesOf, zv::test::write;

namespace zv::jet::test {
namespace {

const QString kAll = u"SELECT * FROM Compositor"_s;

class EngineTest : public testing::Test {
  protected:
    QString at(const QString& name) const { return catalogue.folder.filePath(name); }
    QString files() const { return QDir(catalogue.folder.path()).entryList(QDir::Files).join(u' '); }

    Catalogue catalogue;
};

TEST_F(EngineTest, refusesWhatIsNoCatalogueAndLeavesItAlone) {
    struct Case {
        QByteArray bytes;
        int error;
        QString says;
    };
    const QString other = at(u"other"_s);
    sqlite(other, "CREATE TABLE Compositor (Id)");
    sqlite(catalogue.path, "PRAGMA user_version = 2");
    const QByteArray newer = bytesOf(catalogue.path);
    sqlite(catalogue.path, "PRAGMA user_version = 1");
    const QByteArray good = bytesOf(catalogue.path);
    QByteArray garbled = good;
    garbled.replace(100, 400, QByteArray(400, '\x7F'));
    const Case cases[]{
        {QByteArray("\x00\x01\x00\x00Standard Jet DB\x00", 20) + QByteArray(4096, 'x'), 3343, u"zarvelia-tool"_s},
        {bytesOf(other), 3343, u"not a catalogue"_s},
        {newer, 3343, u"newer version"_s},
        {"", 3343, u"empty"_s},
        {"Dear diary", 3343, u"no catalogue"_s},
        {good.left(60), 3049, u"cut off"_s},
        {good.left(good.size() / 2), 3049, u"corrupt"_s},
        {garbled, 3049, u"corrupt"_s}};
    QFile::remove(other);
    const QString file = at(u"file.mdb"_s);
    for (const Case& one : cases) {
        SCOPED_TRACE(one.says.toStdString());
        write(file, one.bytes);
        try {
            catalogue.engine.OpenDatabase(file);
            ADD_FAILURE();
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), one.error);
            EXPECT_TRUE(error.text().contains(one.says) && error.text().contains(u"file.mdb")) << error.what();
        }
        EXPECT_EQ(errorOf([&] { catalogue.engine.CompactDatabase(file, at(u"copy"_s)); }), one.error);
        EXPECT_EQ(bytesOf(file), one.bytes);
        EXPECT_EQ(files(), u"DataZV.mdb file.mdb"_s);
    }
}

TEST_F(EngineTest, tellsMissingFilesFromMissingFolders) {
    EXPECT_EQ(errorOf([&] { catalogue.engine.OpenDatabase(at(u"none.mdb"_s)); }), 3024);
    EXPECT_EQ(errorOf([&] { catalogue.engine.OpenDatabase(catalogue.folder.path()); }), 3024);
    EXPECT_EQ(errorOf([&] { catalogue.engine.OpenDatabase(at(u"none/DataZV.mdb"_s)); }), 3044);
    EXPECT_EQ(errorOf([&] { catalogue.engine.CreateDatabase(at(u"none/DataZV.mdb"_s)); }), 3044);
    EXPECT_EQ(errorOf([&] { catalogue.engine.CreateDatabase(catalogue.path); }), 3204);
    EXPECT_NE(catalogue.engine.OpenDatabase(catalogue.folder.path() + u"\\DataZV.mdb"_s), nullptr);
}

TEST_F(EngineTest, sharesOneConnectionAndClosesItWithTheLastUser) {
    auto database = catalogue.engine.OpenDatabase(catalogue.path);
    EXPECT_EQ(database, catalogue.engine.OpenDatabase(catalogue.folder.path() + u"/./DataZV.mdb"_s));
    const QString copy = at(u"ZVTemp.mdb"_s);
    EXPECT_EQ(errorOf([&] { catalogue.engine.CompactDatabase(catalogue.path, copy); }), 3356);
    database.reset();
    EXPECT_EQ(errorOf([&] { catalogue.engine.CompactDatabase(catalogue.path, copy); }), 0);
}

TEST_F(EngineTest, tellsThatAnotherFileHasTakenThePlaceOfItsOwn) {
    DataControl control = catalogue.open(kAll);
    const QString copy = at(u"ZVTemp.mdb"_s);
    ASSERT_TRUE(QFile::copy(catalogue.path, copy));
    ASSERT_EQ(std::rename(copy.toUtf8().constData(), catalogue.path.toUtf8().constData()), 0);
    EXPECT_EQ(errorOf([&] {
                  control.Recordset().AddNew();
                  control.Recordset().Fields(u"Apellidos"_s).setValue(u"a"_s);
                  control.Recordset().Update();
              }),
              3024);
}

TEST_F(EngineTest, readsWhatItMayNotWrite) {
    sqlite(catalogue.path, "INSERT INTO Compositor (Apellidos) VALUES ('a')");
    const auto check = [&] {
        DataControl control = catalogue.open(kAll);
        EXPECT_EQ(control.boundText(u"Apellidos"_s), u"a"_s);
        EXPECT_EQ(errorOf([&] { control.Recordset().AddNew(); }), 3027);
        EXPECT_EQ(errorOf([&] { control.Recordset().Edit(); }), 3027);
        EXPECT_EQ(errorOf([&] { control.Recordset().Delete(); }), 3027);
    };
    chmod(catalogue.path.toUtf8().constData(), 0444);
    check();
    chmod(catalogue.path.toUtf8().constData(), 0644);
    chmod(catalogue.folder.path().toUtf8().constData(), 0555);
    check();
    chmod(catalogue.folder.path().toUtf8().constData(), 0755);
    EXPECT_EQ(files(), u"DataZV.mdb"_s);
}

TEST_F(EngineTest, waitsForAnotherProgramsLockAndThenGivesUp) {
    sqlite(catalogue.path, "INSERT INTO Compositor (Apellidos) VALUES ('a')");
    DataControl control = catalogue.open(kAll);
    sqlite3* other = nullptr;
    sqlite3_open(catalogue.path.toUtf8().constData(), &other);
    sqlite3_exec(other, "BEGIN IMMEDIATE; UPDATE Compositor SET Apellidos = 'b'", nullptr, nullptr, nullptr);
    control.Recordset().Edit();
    control.Recordset().Fields(u"Apellidos"_s).setValue(u"c"_s);
    EXPECT_EQ(errorOf([&] { control.Recordset().Update(); }), 3260);
    control.Close();
    EXPECT_EQ(errorOf([&] { catalogue.engine.CompactDatabase(catalogue.path, at(u"copy"_s)); }), 3356);
    sqlite3_close(other);
    EXPECT_EQ(catalogue.texts(kAll, u"Apellidos"_s), QStringList(u"a"_s));
}

TEST_F(EngineTest, takesBackAnInterruptedSave) {
    sqlite(catalogue.path, "INSERT INTO Compositor (Apellidos, Notas) VALUES ('a', hex(zeroblob(50000)))");
    sqlite3* other = nullptr;
    sqlite3_open(catalogue.path.toUtf8().constData(), &other);
    sqlite3_exec(other, "PRAGMA cache_size=1; BEGIN; UPDATE Compositor SET Apellidos='b', Notas=hex(zeroblob(90000))",
                 nullptr, nullptr, nullptr);
    const QString copy = at(u"copy.mdb"_s); // as a loss of power would leave it
    const QString journal = u"-journal"_s;
    ASSERT_TRUE(QFile::copy(catalogue.path, copy) && QFile::copy(catalogue.path + journal, copy + journal));
    sqlite3_close(other);
    EXPECT_GT(QFile(copy).size(), QFile(catalogue.path).size());
    DataControl control(catalogue.engine);
    control.DatabaseName = copy;
    control.RecordSource = kAll;
    control.Refresh();
    EXPECT_EQ(control.boundText(u"Apellidos"_s), u"a"_s);
    EXPECT_EQ(control.boundText(u"Notas"_s).size(), 100000);
    EXPECT_EQ(files(), u"copy.mdb DataZV.mdb"_s);
}

TEST_F(EngineTest, putsAFileWithAnotherToolsLogBackIntoOneFile) {
    sqlite(catalogue.path, "PRAGMA journal_mode=WAL; INSERT INTO Compositor (Apellidos) VALUES ('a')");
    EXPECT_EQ(catalogue.texts(kAll, u"Apellidos"_s), QStringList(u"a"_s));
    EXPECT_EQ(files(), u"DataZV.mdb"_s);
    EXPECT_EQ(bytesOf(catalogue.path).at(18), 1) << "one file, without a log, from now on";
}

TEST_F(EngineTest, compactsIntoASmallerCopyThatGoesOnCounting) {
    sqlite(catalogue.path, "INSERT INTO Compositor (Notas) VALUES (hex(zeroblob(90000))), ('kept'), ('last');"
                           "DELETE FROM Compositor WHERE Id <> 2; INSERT INTO RelacionDirector VALUES (1, 2.5)");
    const QString copy = at(u"ZVTemp.mdb"_s);
    const QByteArray before = bytesOf(catalogue.path);
    catalogue.engine.CompactDatabase(catalogue.folder.path() + u"\\DataZV.mdb"_s,
                                     catalogue.folder.path() + u"\\ZVTemp.mdb"_s);
    EXPECT_EQ(bytesOf(catalogue.path), before);
    EXPECT_LT(QFile(copy).size(), before.size() / 2);
    EXPECT_EQ(files(), u"DataZV.mdb ZVTemp.mdb"_s);

    DataControl control(catalogue.engine);
    control.DatabaseName = copy;
    control.RecordSource = kAll;
    control.Refresh();
    EXPECT_EQ(control.boundText(u"Id"_s) + control.boundText(u"Notas"_s), u"2kept"_s);
    control.Recordset().AddNew();
    control.Recordset().Update();
    control.Recordset().MoveLast();
    EXPECT_EQ(control.boundText(u"Id"_s), u"4"_s);
    control.RecordSource = u"RelacionDirector"_s;
    control.Refresh();
    EXPECT_EQ(control.boundText(u"IdDirector"_s), u"2.5"_s);
}

TEST_F(EngineTest, neverCompactsOverAnythingThatExists) {
    write(at(u"empty"_s), "");
    write(at(u"full"_s), "text");
    QDir(catalogue.folder.path()).mkdir(u"folder"_s);
    QFile::link(at(u"nowhere"_s), at(u"link"_s));
    for (const QString& name : {u"empty"_s, u"full"_s, u"folder"_s, u"link"_s, u"DataZV.mdb"_s})
        EXPECT_EQ(errorOf([&] { catalogue.engine.CompactDatabase(catalogue.path, at(name)); }), 3204);
    EXPECT_EQ(bytesOf(at(u"full"_s)), "text");
    EXPECT_EQ(QFile(at(u"empty"_s)).size(), 0);
    EXPECT_FALSE(QFile::exists(at(u"nowhere"_s)));
    EXPECT_EQ(errorOf([&] { catalogue.engine.CompactDatabase(at(u"none"_s), at(u"copy"_s)); }), 3024);
}

} // namespace
} // namespace zv::jet::test
