// A table as it is: what the engine knows of it, for those columns that really stand in the file.
#pragma once

#include "platform/jet/table_def.h"
#include <string>
#include <string_view>
#include <vector>

namespace zv::jet {

struct Column {
    std::string name; ///< UTF-8, as in the definition
    ColumnKind kind;
    int size;
    bool keptAsNumber; ///< the file turns what reads as a number into one

    bool isNumber() const { return kind == ColumnKind::Key || kind == ColumnKind::Number; }
};

struct Table {
    std::string name; ///< UTF-8
    std::vector<Column> columns;

    /// Index of a column, -1 without one; case does not count.
    int find(std::string_view column) const;
};

/// A name as it may stand in the text of an SQLite statement.
std::string quotedName(std::string_view name);

} // namespace zv::jet
