// A disk that fails below SQLite: whatever the moment, the error has its number and the rows of before are there.
#include "catalogue.h"
#include "fault_vfs.h"
#include <QDir>

using namespace Qt::StringLiterals;
using zv::test::Fault;
using zv::test::FaultVfs;

namespace zv::jet::test {
namespace {

const QString kAll = u"SELECT * FROM Compositor"_s;

struct FaultCase {
    Fault fault;
    int number;
};

class FaultTest : public testing::TestWithParam<FaultCase> {
  protected:
    void SetUp() override {
        sqlite(catalogue.path, "INSERT INTO Compositor (Apellidos, Notas) VALUES ('one', hex(zeroblob(6000))),"
                               "('two', hex(zeroblob(6000)))");
    }

    /// Runs the work with the k-th change of a file failing, for every k until it passes, and hands each error over.
    template <class Work, class Check>
    void failEverywhere(Work&& work, Check&& check) {
        int k = 0;
        for (; k < 500; ++k) {
            vfs.failAfter(k, GetParam().fault);
            const int number = errorOf(work);
            const bool failed = vfs.hasFailed();
            vfs.heal();
            SCOPED_TRACE("change " + std::to_string(k));
            check(number);
            if (!failed) break;
        }
        EXPECT_GT(k, 0);
        EXPECT_LT(k, 500);
    }

    /// A full disk may show itself as a broken one where no space is asked for.
    static bool isExpected(int number) {
        return number == 0 || number == GetParam().number || (GetParam().fault == Fault::NoSpace && number == 3049);
    }

    FaultVfs vfs;
    Catalogue catalogue;
};

TEST_P(FaultTest, aFailedSaveLeavesTheRowsOfBefore) {
    DataControl control = catalogue.open(kAll);
    failEverywhere(
        [&] {
            control.Refresh();
            Recordset& rows = control.Recordset();
            rows.Edit();
            rows.Fields(u"Apellidos"_s).setValue(u"changed"_s);
            rows.Fields(u"Notas"_s).setValue(QString(9000, u'x'));
            rows.Update();
        },
        [&](int number) {
            const QStringList names = catalogue.texts(kAll, u"Apellidos"_s);
            const bool saved = names == QStringList{u"changed"_s, u"two"_s};
            // Once the journal is gone or cut the save counts, although forcing that to the disk may have failed.
            EXPECT_TRUE(saved || names == (QStringList{u"one"_s, u"two"_s})) << names.join(u' ').toStdString();
            EXPECT_TRUE(isExpected(number) && (number != 0 || saved)) << number;
            if (saved) sqlite(catalogue.path, "UPDATE Compositor SET Apellidos = 'one' WHERE Id = 1");
        });
}

TEST_P(FaultTest, aDiskThatStaysBrokenLosesNothingEither) {
    for (int k = 0; k < 12; ++k) {
        SCOPED_TRACE(k);
        DBEngine engine(tableDefs());
        {
            DataControl control(engine);
            control.DatabaseName = catalogue.path;
            control.RecordSource = kAll;
            control.Refresh();
            control.Recordset().AddNew();
            control.Recordset().Fields(u"Notas"_s).setValue(QString(20000, u'y'));
            vfs.failAfter(k, GetParam().fault);
            const int number = errorOf([&] { control.Recordset().Update(); });
            EXPECT_TRUE(isExpected(number) && (number == 0) != vfs.hasFailed()) << number;
            errorOf([&] { control.Refresh(); });
        }
        const bool failed = vfs.hasFailed();
        vfs.heal();
        if (!failed) break;
        EXPECT_EQ(catalogue.texts(kAll, u"Apellidos"_s), (QStringList{u"one"_s, u"two"_s}));
    }
}

TEST_P(FaultTest, aFailedCopyOrNewFileIsRemoved) {
    const QString made = catalogue.folder.filePath(u"ZVTemp.mdb"_s);
    const auto check = [&](int number) {
        const QStringList files = QDir(catalogue.folder.path()).entryList(QDir::Files);
        EXPECT_TRUE(isExpected(number)) << number;
        EXPECT_EQ(files.join(u' ').toStdString(), number == 0 ? "DataZV.mdb ZVTemp.mdb" : "DataZV.mdb");
        QFile::remove(made);
    };
    failEverywhere([&] { catalogue.engine.CompactDatabase(catalogue.path, made); }, check);
    failEverywhere([&] { catalogue.engine.CreateDatabase(made); }, check);
    EXPECT_EQ(catalogue.texts(kAll, u"Apellidos"_s), (QStringList{u"one"_s, u"two"_s}));
}

INSTANTIATE_TEST_SUITE_P(Disk, FaultTest,
                         testing::Values(FaultCase{Fault::NoSpace, 3026}, FaultCase{Fault::IoError, 3049},
                                         FaultCase{Fault::ReadOnly, 3027}),
                         [](const auto& one) {
                             return std::string(std::array{"NoSpace", "IoError", "ReadOnly"}.at(one.index));
                         });

} // namespace
} // namespace zv::jet::test
