// Opens the connection of a catalogue and looks up its tables.
#include "platform/jet/database.h"

#include "platform/base/files.h"
#include "platform/jet/catalogue_file.h"
#include "platform/jet/lexer.h"
#include "platform/jet/sqlite_errors.h"
#include <QFileInfo>
#include <algorithm>
#include <sqlite3.h>

namespace zv::jet {
namespace {

SQLite::Database connect(const QString& path, bool readOnly) {
    return translated(path, [&] {
        SQLite::Database connection(path.toStdString(), readOnly ? SQLite::OPEN_READONLY : SQLite::OPEN_READWRITE,
                                    kBusyTimeout);
        prepareConnection(connection);
        return connection;
    });
}

/// Whether SQLite turns texts that read as numbers into numbers in a column of that declared type.
bool keepsNumbers(const std::string& declared) {
    const QString type = QString::fromStdString(declared).toUpper();
    const auto has = [&type](QLatin1String part) { return type.contains(part); };
    if (has(QLatin1String("INT"))) return true;
    return !type.isEmpty() && !has(QLatin1String("CHAR")) && !has(QLatin1String("CLOB")) &&
           !has(QLatin1String("TEXT")) && !has(QLatin1String("BLOB"));
}

} // namespace

int Table::find(std::string_view column) const {
    const auto found = std::ranges::find_if(columns, [column](const Column& c) { return sameName(c.name, column); });
    return found == columns.end() ? -1 : static_cast<int>(found - columns.begin());
}

std::string quotedName(std::string_view name) {
    std::string text = "\"";
    for (const char c : name) text.append(c == '"' ? 2 : 1, c);
    return text + '"';
}

Database::Database(const QString& path, const std::vector<TableDef>& tables)
    : path_(path), readOnly_(!isWritable(path) || !isWritable(QFileInfo(path).absolutePath())), tables_(tables),
      connection_((requireCatalogue(path), connect(path, readOnly_))) {
    translated(path, [&] {
        // Reading the schema shows damage at once, and an interrupted save of another day is taken back by now.
        if (connection_.execAndGet("PRAGMA application_id").getInt() != kApplicationId) throw notACatalogue(path);
        connection_.execAndGet("SELECT count(*) FROM sqlite_schema");
        if (sqlite3_db_readonly(connection_.getHandle(), "main") == 1) readOnly_ = true;
        columnsOf_.emplace(connection_, "SELECT c.name, c.type FROM sqlite_schema AS t, pragma_table_info(t.name) AS c "
                                        "WHERE t.type = 'table' AND t.name = ?1 COLLATE NOCASE");
    });
}

std::optional<Table> Database::findTable(std::string_view name) {
    const auto found =
        std::ranges::find_if(tables_, [name](const TableDef& def) { return sameName(def.name.toStdString(), name); });
    if (found == tables_.end()) return std::nullopt;
    Table table{found->name.toStdString(), {}};
    std::vector<std::pair<std::string, bool>> inFile;
    translated(path_, [&] {
        columnsOf_->reset();
        columnsOf_->bind(1, table.name);
        while (columnsOf_->executeStep())
            inFile.emplace_back(columnsOf_->getColumn(0).getString(),
                                keepsNumbers(columnsOf_->getColumn(1).getString()));
        columnsOf_->reset();
    });
    if (inFile.empty()) return std::nullopt;
    for (const ColumnDef& def : found->columns) {
        const std::string column = def.name.toStdString();
        const auto same =
            std::ranges::find_if(inFile, [&](const auto& entry) { return sameName(entry.first, column); });
        if (same != inFile.end()) table.columns.push_back({column, def.kind, def.size, same->second});
    }
    return table;
}

} // namespace zv::jet
