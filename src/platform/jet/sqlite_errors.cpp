// The platform's numbers for what SQLite reports.
#include "platform/jet/sqlite_errors.h"

#include <new>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

namespace zv::jet {

RuntimeError runtimeErrorOf(const SQLite::Exception& failure, const QString& path) {
    const auto damaged = [&path](const QString& why) {
        return RuntimeError(3049, u"Cannot open database '%1'. It may not be a database that your application "
                                  "recognizes, or the file may be corrupt. (%2)"_s.arg(path, why));
    };
    // An interrupted save that cannot be taken back for want of the right to write cannot be read either.
    const bool stuck = failure.getExtendedErrorCode() == SQLITE_READONLY_ROLLBACK;
    // Another program has put another file in its place, by a compaction for instance.
    if (failure.getExtendedErrorCode() == SQLITE_READONLY_DBMOVED) return RuntimeError(3024);
    switch (stuck ? SQLITE_CANTOPEN : failure.getErrorCode() & 0xFF) {
    case SQLITE_FULL: return RuntimeError(3026);
    case SQLITE_READONLY: return RuntimeError(3027);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL: return RuntimeError(3260);
    case SQLITE_CONSTRAINT: return RuntimeError(3022);
    case SQLITE_NOMEM: return RuntimeError(7);
    case SQLITE_CANTOPEN:
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return RuntimeError(3051, u"The database engine cannot open the file '%1'. It is already opened exclusively by "
                                  "another user, or you need permission to view its data."_s.arg(path));
    default: return damaged(QString::fromUtf8(failure.getErrorStr()));
    }
}

} // namespace zv::jet
