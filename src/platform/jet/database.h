// An open catalogue file: the connection, and the tables as they stand in it.
#pragma once

#include "platform/jet/table.h"
#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <optional>

namespace zv::jet {

class Database {
  public:
    /// Opens the catalogue of that path. Errors as DBEngine::OpenDatabase tells.
    Database(const QString& path, const std::vector<TableDef>& tables);

    const QString& path() const { return path_; }
    bool readOnly() const { return readOnly_; }
    SQLite::Database& connection() { return connection_; }

    /// The table of that name (case does not count) with the columns that stand in the file as well.
    std::optional<Table> findTable(std::string_view name);

  private:
    QString path_;
    bool readOnly_;
    std::vector<TableDef> tables_;
    SQLite::Database connection_;
    std::optional<SQLite::Statement> columnsOf_;
};

} // namespace zv::jet
