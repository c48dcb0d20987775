// Reads a statement: SELECT * FROM table [WHERE condition] [ORDER BY column [ASC | DESC]], or a table's bare name.
#pragma once

#include "platform/jet/condition.h"
#include "platform/jet/table.h"
#include <functional>
#include <optional>

namespace zv::jet {

/// Statements beyond these are refused as too complex. A condition on recordings lists up to 32,766 keys for each of
/// six tables, at some 20 bytes each.
inline constexpr std::size_t kLongestStatement = 16u << 20; // bytes of UTF-8
inline constexpr std::size_t kMostTerms = 256u << 10;       // comparisons and LIKEs

struct Statement {
    Table table;
    std::optional<Condition> where;
    int orderColumn = -1; ///< of the table, -1 for the order of keys
    bool descending = false;
};

using TableFinder = std::function<std::optional<Table>(std::string_view name)>;

/// Reads a statement in UTF-8. Errors: 3075, 3138, 3145 syntax, 3078 unknown table, 3061 unknown column, 3464 kinds
/// that do not go together, 3138 an ordering by a memo, 93 a malformed LIKE pattern, 6 a number beyond all bounds, 3360
/// too complex. Time and memory are linear in the statement's length, whatever its nesting.
Statement parseStatement(std::string_view source, const TableFinder& findTable);

} // namespace zv::jet
