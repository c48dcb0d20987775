// Opens, makes and compacts catalogue files.
#include "platform/jet/engine.h"

#include "platform/base/files.h"
#include "platform/jet/catalogue_file.h"
#include "platform/jet/database.h"
#include "platform/jet/sqlite_errors.h"
#include <QFile>
#include <QFileInfo>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace zv::jet {
namespace {

QString absolute(const QString& path) { return QFileInfo(nativePath(path)).absoluteFilePath(); }

void requireFree(const QString& path) {
    if (!isThere(QFileInfo(path).absolutePath())) throw RuntimeError(3044, u"'%1' is not a valid path."_s.arg(path));
    if (isThere(path)) throw RuntimeError(3204);
}

/// A file that is removed again, with its journal, unless it is kept.
class HalfMadeFile {
  public:
    explicit HalfMadeFile(QString path) : path_(std::move(path)) { remove(); }
    ~HalfMadeFile() {
        if (!kept_) remove();
    }
    HalfMadeFile(const HalfMadeFile&) = delete;
    HalfMadeFile& operator=(const HalfMadeFile&) = delete;

    const QString& path() const { return path_; }

    /// Gives the whole file its name; both are on the disk when this returns.
    void keepAs(const QString& name) {
        try {
            syncToDisk(path_);
            Name(path_, name);
        } catch (const RuntimeError& error) {
            if (error.number() == 58) throw RuntimeError(3204);
            if (!isThere(path_)) QFile::remove(name); // it has its name, but that is not on the disk
            throw RuntimeError(3026, u"The file '%1' could not be written to the disk."_s.arg(name));
        }
        kept_ = true;
    }

  private:
    void remove() const {
        QFile::remove(path_);
        QFile::remove(path_ + u"-journal"_s);
    }

    QString path_;
    bool kept_ = false;
};

/// The name under which a file is made before it gets its own, so that no half-made file ever bears it.
QString halfMadeName(const QString& path) { return path + u"-part"_s; }

/// Error 3356 if another program has the file open for writing just now.
void requireAlone(SQLite::Database& connection) {
    if (sqlite3_db_readonly(connection.getHandle(), "main") == 1) return;
    connection.exec("PRAGMA locking_mode=EXCLUSIVE");
    const int result = connection.tryExec("BEGIN EXCLUSIVE");
    if (result == SQLITE_BUSY) throw RuntimeError(3356);
    if (result == SQLITE_OK) connection.exec("COMMIT");
}

/// Error 3049 unless the copy can be opened and has all rows: the caller will remove the original.
void requireWhole(const QString& copy, Database& original, const std::vector<TableDef>& tables) {
    // SQLite does not report that it could not end the copy's own journal.
    if (isThere(copy + u"-journal"_s)) throw RuntimeError(3049);
    Database made(copy, tables);
    for (const TableDef& table : tables) {
        if (!original.findTable(table.name.toStdString())) continue;
        const std::string count = "SELECT count(*) FROM " + quotedName(table.name.toStdString());
        if (made.connection().execAndGet(count).getInt64() != original.connection().execAndGet(count).getInt64())
            throw RuntimeError(3049);
    }
}

} // namespace

DBEngine::DBEngine(std::vector<TableDef> tables) : tables_(std::move(tables)) {}
DBEngine::~DBEngine() = default;

std::shared_ptr<Database> DBEngine::OpenDatabase(const QString& path) {
    const QString file = absolute(path);
    std::erase_if(open_, [](const auto& entry) { return entry.second.expired(); });
    if (const auto found = open_.find(file); found != open_.end()) return found->second.lock();
    auto database = std::make_shared<Database>(file, tables_);
    open_[file] = database;
    return database;
}

void DBEngine::CreateDatabase(const QString& path) {
    const QString file = absolute(path);
    requireFree(file);
    HalfMadeFile made(halfMadeName(file));
    translated(file, [&] {
        SQLite::Database connection(made.path().toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE,
                                    kBusyTimeout);
        prepareConnection(connection);
        createTables(connection, tables_);
    });
    made.keepAs(file);
}

void DBEngine::CompactDatabase(const QString& source, const QString& destination) {
    const QString from = absolute(source);
    const QString to = absolute(destination);
    if (const auto found = open_.find(from); found != open_.end() && !found->second.expired()) throw RuntimeError(3356);
    requireFree(to);
    Database database(from, tables_);
    HalfMadeFile copy(halfMadeName(to));
    translated(to, [&] {
        requireAlone(database.connection());
        SQLite::Statement vacuum(database.connection(), "VACUUM INTO ?1");
        vacuum.bind(1, copy.path().toStdString());
        vacuum.exec();
        requireWhole(copy.path(), database, tables_);
    });
    copy.keepAs(to);
}

} // namespace zv::jet
