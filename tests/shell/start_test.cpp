// The start with and without a catalogue, and the compaction at the end.
#include "support/desk.h"
#include "support/file_bytes.h"

using namespace Qt::StringLiterals;

namespace zv::test {
namespace {

class Start : public Desk {
  protected:
    QString copy() const { return folder_.filePath(u"ZVTemp.mdb"_s); }
    QStringList names() const {
        return QDir(folder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    }
    /// Starts a program that finds no catalogue.
    void startInVain() {
        const QStringList before = names();
        app::Program lost(boxes, files, printers);
        boxes.expect(u"Not Found: "_s + folder() + u"\\DataZV.mdb"_s, box::Critical);
        EXPECT_FALSE(lost.window.Load(folder()));
        lost.window.close();
        EXPECT_EQ(lost.window.Solapas().loadedScreen(0), nullptr);
        EXPECT_EQ(names(), before);
    }
    void fill() {
        QStringList rows;
        for (int i = 0; i < 50; ++i) rows += u"'row %1', '%2'"_s.arg(i).arg(QString(3000, u'x'));
        put({u"Compositor"_s, u"Apellidos, Notas"_s, rows});
        start();
        EXPECT_EQ(memory(store::Kind::Compositor).Cont, 50);
        for (int i = 0; i < 30; ++i) program->store.EliminarRegistro(0);
    }
    QStringList rows() { return stored(u"Compositor"_s, u"Id, Apellidos"_s); }
};

TEST_F(Start, withoutACatalogueThereIsNoProgram) {
    ASSERT_TRUE(QFile::remove(file()));
    startInVain();
    ASSERT_TRUE(QDir(folder()).mkdir(u"DataZV.mdb"_s));
    startInVain();
    write(folder_.filePath(u"datazv.MDB"_s), "x");
    startInVain();
    ASSERT_TRUE(QDir(folder()).rmdir(u"DataZV.mdb"_s));
    startInVain();
}

TEST_F(Start, aFileThatIsNoCatalogueIsARunTimeErrorAndStaysAsItIs) {
    for (const QByteArray& contents : {QByteArray(5000, 'x'), QByteArray()}) {
        write(file(), contents);
        app::Program lost(boxes, files, printers);
        try {
            lost.window.Load(folder());
            ADD_FAILURE() << "Took " << contents.left(20).toStdString();
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), 3343) << error.text().toStdString();
        }
        EXPECT_EQ(bytesOf(file()), contents);
    }
}

TEST_F(Start, thePresentationStandsAloneUntilItIsEntered) {
    program = std::make_unique<app::Program>(boxes, files, printers);
    hands = std::make_unique<driver::Driver>(*program, [](const QString& words) { FAIL() << words.toStdString(); });
    program->window.resize(1100, 760);
    ASSERT_TRUE(program->window.Load(folder()));
    program->window.show();
    EXPECT_EQ(program->window.windowTitle(), u"  Brumatec   - Zarvelia -"_s);
    EXPECT_EQ(hands->screen()->objectName(), u"FormPresentacion"_s);
    EXPECT_FALSE(program->window.Solapas().isVisible());
    program->window.resize(1300, 900);
    EXPECT_FALSE(program->window.Solapas().isVisible());
    hands->enter();
    EXPECT_EQ(hands->screen()->objectName(), u"FormReg1MosCompositor"_s);
    EXPECT_TRUE(program->window.Solapas().isVisible());
    EXPECT_EQ(program->window.findChild<QWidget*>(u"FormPresentacion"_s), nullptr);
}

TEST_F(Start, noCompactionChangesNothing) {
    fill();
    const QByteArray before = bytesOf(file());
    close(box::No);
    EXPECT_EQ(bytesOf(file()), before);
    EXPECT_EQ(names(), QStringList{u"DataZV.mdb"_s});
}

TEST_F(Start, aCompactedCatalogueHoldsTheSameRowsInLessRoom) {
    fill();
    const QStringList kept = rows();
    const qint64 size = QFile(file()).size();
    close(box::Yes);
    EXPECT_EQ(names(), QStringList{u"DataZV.mdb"_s});
    EXPECT_EQ(rows(), kept);
    EXPECT_LT(QFile(file()).size(), size);
    start();
    EXPECT_EQ(memory(store::Kind::Compositor).Cont, 20);
    close(box::No);
}

TEST_F(Start, aCatalogueThatCannotBeRemovedLeavesTheCopyBehind) {
    fill();
    const QStringList kept = rows();
    QFile::setPermissions(file(), QFile::ReadOwner);
    const QByteArray before = bytesOf(file());
    close(box::Yes);
    EXPECT_EQ(bytesOf(file()), before);
    EXPECT_EQ(names(), (QStringList{u"DataZV.mdb"_s, u"ZVTemp.mdb"_s}));
    // The next start is as ever, its compaction fails at once.
    QFile::setPermissions(file(), QFile::ReadOwner | QFile::WriteOwner);
    const QByteArray left = bytesOf(copy());
    start();
    EXPECT_EQ(memory(store::Kind::Compositor).Cont, 20);
    close(box::Yes);
    EXPECT_EQ(bytesOf(copy()), left);
    EXPECT_EQ(rows(), kept);
    // The copy is whole: under the catalogue's name it is one.
    stop();
    ASSERT_TRUE(QFile::remove(file()));
    startInVain();
    ASSERT_TRUE(QFile::rename(copy(), file()));
    EXPECT_EQ(rows(), kept);
}

TEST_F(Start, aDamagedCatalogueIsNotReplacedByItsCopy) {
    fill();
    QByteArray broken = bytesOf(file());
    for (qsizetype at = 8192; at < broken.size() - 4096; ++at) broken[at] = 'x';
    write(file(), broken);
    close(box::Yes);
    EXPECT_EQ(bytesOf(file()), broken);
    EXPECT_EQ(names(), QStringList{u"DataZV.mdb"_s});
}

TEST_F(Start, aRecordUnderChangeDoesNotKeepTheWindowOpen) {
    put({u"Compositor"_s, u"Apellidos"_s, {u"'one'"_s}});
    start();
    hands->click(u"BtnModificar"_s);
    hands->type(u"TxtApellidos"_s, u"other"_s);
    close(box::No);
    EXPECT_FALSE(program->window.isVisible());
    EXPECT_EQ(stored(u"Compositor"_s, u"Apellidos"_s), QStringList{u"one"_s});
}

} // namespace
} // namespace zv::test
