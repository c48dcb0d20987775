// The marks and tables of a catalogue file.
#include "platform/jet/catalogue_file.h"

#include "platform/base/files.h"
#include "platform/jet/table.h"
#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <SQLiteCpp/Transaction.h>

using namespace Qt::StringLiterals;

namespace zv::jet {
namespace {

constexpr int kHeaderSize = 100;
constexpr int kUserVersionAt = 60;
constexpr int kApplicationIdAt = 68;

RuntimeError unrecognized(const QString& path, const QString& why) {
    return RuntimeError(3343, u"Unrecognized database format '%1'. %2"_s.arg(path, why));
}

QByteArray headerOf(const QString& path) {
    const QFileInfo info(path);
    if (!isThere(info.absolutePath())) throw RuntimeError(3044, u"'%1' is not a valid path."_s.arg(path));
    if (!info.isFile()) throw RuntimeError(3024, u"Could not find file '%1'."_s.arg(path));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw RuntimeError(3051, u"The database engine cannot open the file '%1'. You need permission to view its "
                                 "data."_s.arg(path));
    return file.read(kHeaderSize);
}

std::string columnDefinition(const ColumnDef& column) {
    const std::string name = quotedName(column.name.toStdString());
    switch (column.kind) {
    case ColumnKind::Key: return name + " INTEGER PRIMARY KEY AUTOINCREMENT";
    case ColumnKind::Number: return name + " NUMERIC";
    default: return name + " TEXT";
    }
}

std::string tableDefinition(const TableDef& table) {
    std::string columns;
    for (const ColumnDef& column : table.columns) {
        if (!columns.empty()) columns += ", ";
        columns += columnDefinition(column);
    }
    return "CREATE TABLE " + quotedName(table.name.toStdString()) + " (" + columns + ")";
}

std::string indexDefinition(const std::string& table, const std::string& column) {
    return "CREATE INDEX " + quotedName(table + "_" + column) + " ON " + quotedName(table) + " (" + quotedName(column) +
           ")";
}

} // namespace

RuntimeError notACatalogue(const QString& path) {
    return unrecognized(path, u"It is a database, but not a catalogue of this program."_s);
}

void requireCatalogue(const QString& path) {
    const QByteArray header = headerOf(path);
    if (header.isEmpty()) throw unrecognized(path, u"The file is empty."_s);
    if (header.startsWith(QByteArrayView("\x00\x01\x00\x00Standard ", 13)))
        throw unrecognized(path, u"It is a catalogue of the old kind (a Jet database). The companion tool makes a "
                                 "new one from it, in another folder: zarvelia-tool convert OLD.mdb FOLDER. The old "
                                 "file stays as it is."_s);
    if (!header.startsWith("SQLite format 3")) throw unrecognized(path, u"It is no catalogue."_s);
    if (header.size() < kHeaderSize)
        throw RuntimeError(3049, u"Cannot open database '%1'. The file is damaged: it is cut off."_s.arg(path));
    if (qFromBigEndian<qint32>(header.constData() + kApplicationIdAt) != kApplicationId) throw notACatalogue(path);
    const auto version = qFromBigEndian<qint32>(header.constData() + kUserVersionAt);
    if (version > kFormatVersion)
        throw unrecognized(path, u"It was written by a newer version of this program (format %1, this version reads "
                                 "format %2). Please install the newer version."_s.arg(version)
                                     .arg(kFormatVersion));
    if (version < kFormatVersion) throw notACatalogue(path);
}

void prepareConnection(SQLite::Database& connection) {
    connection.exec("PRAGMA synchronous=EXTRA");
    connection.exec("PRAGMA cache_size=-32768");
    // A file that another tool left in the log mode of its own goes back to being one file, if nobody else is using it.
    if (connection.execAndGet("PRAGMA journal_mode").getString() != "delete")
        connection.tryExec("PRAGMA journal_mode=DELETE");
}

void createTables(SQLite::Database& connection, const std::vector<TableDef>& tables) {
    SQLite::Transaction transaction(connection, SQLite::TransactionBehavior::IMMEDIATE);
    connection.exec("PRAGMA application_id=" + std::to_string(kApplicationId));
    connection.exec("PRAGMA user_version=" + std::to_string(kFormatVersion));
    for (const TableDef& table : tables) {
        const std::string name = table.name.toStdString();
        connection.exec(tableDefinition(table));
        for (const ColumnDef& column : table.columns) {
            // The index on the key repeats what the table itself is ordered by, but it is far smaller than a table with
            // long notes: rows are counted and their keys listed from it.
            if (column.kind != ColumnKind::Key && !column.indexed) continue;
            connection.exec(indexDefinition(name, column.name.toStdString()));
        }
    }
    transaction.commit();
}

} // namespace zv::jet
