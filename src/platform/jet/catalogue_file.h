// What makes a file a catalogue: its marks, its tables, and how connections to it are set up.
#pragma once

#include "platform/base/runtime_error.h"
#include "platform/jet/table_def.h"
#include <SQLiteCpp/Database.h>

namespace zv::jet {

inline constexpr int kApplicationId = 0x5A564354; ///< "ZVCT", in the file's header
inline constexpr int kFormatVersion = 1;          ///< user_version of the files that this program writes
inline constexpr int kBusyTimeout = 2000;         ///< milliseconds to wait for another program's lock

/// Looks at the first bytes of a file without changing it. Errors 3024, 3044, 3051 if it cannot be read, 3343 with a
/// text that says what it is if it is no catalogue, 3049 if it is too short to be one.
void requireCatalogue(const QString& path);

/// Error 3343 for a file without the marks of a catalogue.
RuntimeError notACatalogue(const QString& path);

/// Durability: a commit is on the disk, and so is the removal of its journal, before it returns.
void prepareConnection(SQLite::Database& connection);

/// Writes marks, tables and indexes into an empty database.
void createTables(SQLite::Database& connection, const std::vector<TableDef>& tables);

} // namespace zv::jet
