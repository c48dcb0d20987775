// Old catalogues made into new ones. The genuine files are kept beside the checkout, not in it; without them their
// tests are skipped.
#include "tool_call.h"

#include "platform/jet/engine.h"
#include "store/schema.h"
#include <QDir>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtEndian>
#include <SQLiteCpp/SQLiteCpp.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kPage = 4096;

QByteArray jetHeader() { return QByteArray("\x00\x01\x00\x00Standard Jet DB\x00\x01\x00\x00\x00", 24); }

/// A column's name as it stands in the definition of its table: its length in bytes, then two bytes per character.
QByteArray stored(const QString& name) {
    const auto size = static_cast<char>(2 * name.size());
    return QByteArray{1, size} + '\0' + QByteArray(reinterpret_cast<const char*>(name.utf16()), size);
}

class Convert : public testing::Test {
  protected:
    Convert() {
        QDir(scratch.path()).mkdir(u"Новый каталог"_s);
        folder = scratch.filePath(u"Новый каталог"_s);
        made = folder + u"/DataZV.mdb"_s;
        old = scratch.filePath(u"старый.mdb"_s);
    }

    /// Converts a file of these bytes, which must not change.
    Outcome convert(const QByteArray& bytes) {
        write(old, bytes);
        Outcome outcome = call({u"convert"_s, old, folder});
        EXPECT_EQ(bytesOf(old), bytes);
        return outcome;
    }

    /// Must be refused with one line and without a trace.
    void refused(const QByteArray& bytes, const QString& why) {
        const Outcome outcome = convert(bytes);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_TRUE(outcome.words.contains(why)) << outcome.words.toStdString();
        EXPECT_EQ(outcome.words.count(u'\n'), 1) << outcome.words.toStdString();
        EXPECT_EQ(outcome.output, QString());
        EXPECT_TRUE(QDir(folder).isEmpty());
    }

    /// All cells of the answer to a statement: cells parted by "|", rows by ";", Null as "-".
    std::string ask(const std::string& statement) {
        SQLite::Database catalogue(made.toStdString(), SQLite::OPEN_READONLY);
        SQLite::Statement rows(catalogue, statement);
        std::string answer;
        while (rows.executeStep()) {
            if (!answer.empty()) answer += ";";
            for (int i = 0; i < rows.getColumnCount(); ++i)
                answer += (i ? "|" : "") + (rows.isColumnNull(i) ? "-" : rows.getColumn(i).getString());
        }
        return answer;
    }

    QTemporaryDir scratch;
    QString folder, made, old;
};

/// With the genuine files.
class ConvertGenuine : public Convert {
  protected:
    void SetUp() override {
        if (!QDir(kept).exists()) GTEST_SKIP() << "There are no genuine old files in " << kept.toStdString();
    }

    QByteArray genuine(const QString& name) { return bytesOf(kept + name); }

    /// The genuine file with two column names of equal length exchanged, in the table that has a third.
    QByteArray renamed(const QString& inTableWith, const QString& from, const QString& to) {
        QByteArray bytes = genuine(u"DataZV-jet4.mdb"_s);
        const qsizetype start = bytes.indexOf(stored(inTableWith)) / kPage * kPage;
        const QByteArray page = bytes.mid(start, kPage);
        const qsizetype at = page.indexOf(stored(from));
        const qsizetype other = page.indexOf(stored(to));
        if (at >= 0) bytes.replace(start + at, stored(to).size(), stored(to));
        if (other >= 0) bytes.replace(start + other, stored(from).size(), stored(from));
        return bytes;
    }

    const QString kept = QStringLiteral(ZV_TEST_DATA "/../../../shared/fixtures/jet/");
};

} // namespace

TEST_F(Convert, RefusesWhatIsNoOldCatalogue) {
    refused("", u"is empty"_s);
    refused("Dear diary", u"no Jet database"_s);
    refused("SQLite format 3" + QByteArray(9000, '\0'), u"no Jet database"_s);
    refused(jetHeader().left(10), u"no Jet database"_s);
    refused(jetHeader().left(22), u"cut off"_s);
    refused(jetHeader(), u"cut off"_s);
    refused(jetHeader() + QByteArray(5 * kPage, '\0'), u"cut off"_s);
    old = scratch.filePath(u"missing.mdb"_s);
    EXPECT_TRUE(call({u"convert"_s, old, folder}).words.contains(u"does not exist"_s));
    EXPECT_TRUE(call({u"convert"_s, folder, folder}).words.contains(u"is no file"_s));
    EXPECT_TRUE(call({u"convert"_s, old, scratch.filePath(u"nowhere"_s)}).words.contains(u"is no folder"_s));
}

TEST_F(Convert, OutlivesAFileOfNonsense) {
    QRandomGenerator random(1);
    for (const int kind : {0x00, 0x01, 0xFF, -1, -2, -3}) {
        QByteArray bytes = jetHeader() + QByteArray(40 * kPage - 24, static_cast<char>(kind));
        if (kind < 0)
            for (qsizetype i = 24; i < bytes.size(); ++i) bytes[i] = static_cast<char>(random.bounded(256));
        SCOPED_TRACE(kind);
        refused(bytes, u"damaged"_s);
    }
}

TEST_F(Convert, LeavesWhatIsThere) {
    write(made, "mine");
    const Outcome outcome = convert(jetHeader() + QByteArray(5 * kPage - 24, '\0'));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.words.contains(u"is there already"_s)) << outcome.words.toStdString();
    EXPECT_EQ(bytesOf(made), "mine");
    // The old catalogue may bear the very name under which the copy is made.
    QFile::remove(made);
    old = made + u"-part"_s;
    EXPECT_EQ(convert(jetHeader() + QByteArray(5 * kPage - 24, '\0')).status, 1);
}

TEST_F(ConvertGenuine, TakesEveryRow) {
    for (const QString& name : {u"DataZV-jet4.mdb"_s, u"DataZV-jet4-2003.mdb"_s}) {
        SCOPED_TRACE(name.toStdString());
        const Outcome outcome = convert(genuine(name));
        ASSERT_EQ(outcome.status, 0) << outcome.words.toStdString();
        EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList{u"DataZV.mdb"_s});
        EXPECT_EQ(
            outcome.output.simplified(),
            u"Compositor 19 rows Obra 23 rows Director 11 rows Orquesta 14 rows Soporte 12 rows Interprete 14 rows "
            "Grabacion 13 rows Instrumento 8 rows Agrupacion 8 rows Evento 8 rows Escenario 8 rows Publicacion 8 "
            "rows Emisora 8 rows Internet 8 rows RelacionDirector 11 rows RelacionOrquesta 14 rows "
            "RelacionInterprete 14 rows Together 201 rows, as many as in the old catalogue, table by table "_s +
                made);
        const std::pair<const char*, const char*> answers[]{
            {"SELECT group_concat(Id) FROM Compositor", "1,2,3,4,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20"},
            {"SELECT Id, length(Notas) FROM Compositor WHERE Id IN (6, 8, 9, 10, 11, 12, 13, 15)",
             "6|25000;8|32;9|33;10|33;11|1024;12|1025;13|2030;15|2100"},
            {"SELECT substr(Notas, 1, 6), substr(Notas, -4), instr(Notas, char(13, 10)) > 0 FROM Compositor WHERE Id = "
             "6",
             "INICIO| FIN|1"},
            {"SELECT instr(Notas, char(13, 10)) > 0, instr(Notas, char(9)) > 0, instr(replace(Notas, char(13, 10), "
             "''), "
             "char(10)) FROM Compositor WHERE Id = 3",
             "1|1|0"},
            {"SELECT * FROM Compositor WHERE Id = 19", "19|-|Anónimo|-|-|-|-"},
            {"SELECT Notas, Imagen FROM Compositor WHERE Id = 16", "-|-"},
            {"SELECT Nombre, typeof(Nombre), Fecha1, typeof(Fecha1) FROM Compositor WHERE Id = 14", "|text|0|integer"},
            {"SELECT Apellidos FROM Compositor WHERE Id IN (2, 4, 20)", "Händel;Fauré;O'Carolan"},
            {"SELECT Movimientos, TiempoMovimientos, TiempoTotal, NumeroMovimientos FROM Obra WHERE Id IN (8, 21)",
             "#|#|0|0;Allegro#Andante#| 425# 3602#|4027|2"},
            {"SELECT * FROM Grabacion WHERE IdGrabacion = 13", "13|6|-1|12|-"},
            {"SELECT IdDirector FROM RelacionDirector WHERE IdGrabacion IN (11, 12)", "11;12;11"},
            {"SELECT Fecha, length(Titulo), length(ISBN) FROM Publicacion WHERE Id = 8", "9999|75|75"},
            // Keys of removed records are not given again: a recording may still point to one.
            {"SELECT seq FROM sqlite_sequence WHERE name IN ('Compositor', 'Director') ORDER BY name", "20;12"}};
        for (const auto& [statement, answer] : answers) EXPECT_EQ(ask(statement), answer) << statement;
        EXPECT_NO_THROW(zv::jet::DBEngine(zv::store::tableDefs()).OpenDatabase(made));
        QFile::remove(made);
    }
}

TEST_F(ConvertGenuine, TakesManyRowsAndNone) {
    ASSERT_EQ(convert(genuine(u"DataZV-5000-jet4.mdb"_s)).status, 0);
    EXPECT_EQ(
        ask("SELECT count(*), min(Id), max(Id), sum(Notas IS NULL), sum(Fecha1 = 0 AND Fecha2 = 0) FROM Compositor"),
        "5000|1|5000|1250|500");
    QFile::remove(made);
    const Outcome outcome = convert(genuine(u"DataZV-empty-jet4.mdb"_s));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.output.simplified().contains(u"Together 0 rows"_s));
}

TEST_F(ConvertGenuine, RefusesADamagedCatalogue) {
    const QByteArray whole = genuine(u"DataZV-jet4.mdb"_s);
    refused(whole.left(whole.size() - 1), u"cut off"_s);
    for (const int part : {2, 3, 10}) refused(whole.left(whole.size() / kPage / part * kPage), u"old"_s);
    // The page where the longest note begins.
    const qsizetype note = whole.indexOf(QByteArray("I\0N\0I\0C\0I\0O", 11)) / kPage * kPage;
    ASSERT_GT(note, 0);
    QByteArray spoilt = whole;
    refused(spoilt.replace(note, kPage, QByteArray(kPage, '\0')), u"table Compositor"_s);
    refused(renamed(u"Genero"_s, u"Genero"_s, u"Genera"_s), u"table Orquesta has no column Genero"_s);
    refused(renamed(u"Genero"_s, u"Fecha"_s, u"Notas"_s), u"Column Fecha of table Orquesta holds another kind"_s);
}

TEST_F(ConvertGenuine, LeavesOutARowThatWasMovedAndThenRemoved) {
    QByteArray bytes = genuine(u"DataZV-jet4.mdb"_s);
    const auto at = [&bytes](qsizetype offset) { return reinterpret_cast<uchar*>(bytes.data()) + offset; };
    // Removing marks the slot from which the row was moved, not where it lies now; and the table counts one row less.
    const auto removeFirstMoved = [&] {
        for (qsizetype page = kPage; page < bytes.size(); page += kPage) {
            if (bytes[page] != 1 || bytes.mid(page + 4, 4) == "LVAL") continue;
            for (qsizetype slot = 0; slot < qFromLittleEndian<quint16>(at(page + 12)); ++slot) {
                const auto place = qFromLittleEndian<quint16>(at(page + 14 + 2 * slot));
                if ((place & 0xC000) != 0x4000) continue;
                qToLittleEndian<quint16>(place | 0xC000, at(page + 14 + 2 * slot));
                const qsizetype count = qFromLittleEndian<quint32>(at(page + 4)) * kPage + 16;
                qToLittleEndian<quint32>(qFromLittleEndian<quint32>(at(count)) - 1, at(count));
                return;
            }
        }
        FAIL() << "No row was moved.";
    };
    removeFirstMoved();
    ASSERT_EQ(convert(bytes).status, 0);
    EXPECT_EQ(ask("SELECT group_concat(Id) FROM Compositor"), "1,3,4,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20");
}

TEST_F(ConvertGenuine, KeepsWhatDoesNotFitAndSaysSo) {
    Outcome outcome = convert(renamed(u"TiempoMovimientos"_s, u"Nombre"_s, u"Numero"_s));
    ASSERT_EQ(outcome.status, 0) << outcome.words.toStdString();
    const std::string longer = ask("SELECT count(*) FROM Obra WHERE length(Numero) > 15");
    EXPECT_NE(longer, "0");
    EXPECT_TRUE(
        outcome.output.contains(u"Table Obra: %1 of the texts in Numero are longer than the 15 characters"_s.arg(
            QString::fromStdString(longer))))
        << outcome.output.toStdString();
    QFile::remove(made);
    // Nothing points to the keys of this table, so their column may have any name.
    outcome = convert(renamed(u"Constructor"_s, u"Id"_s, u"No"_s));
    ASSERT_EQ(outcome.status, 0) << outcome.words.toStdString();
    EXPECT_EQ(ask("SELECT group_concat(Id) FROM Instrumento"), "1,2,3,4,5,6,7,8");
    EXPECT_FALSE(outcome.output.contains(u"left out"_s));
}
