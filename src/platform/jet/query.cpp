// Runs a statement: a scan of the table, narrowed where a key or number is asked for, each row judged by the condition.
#include "platform/jet/query.h"

#include "platform/jet/collation.h"
#include "platform/jet/sqlite_errors.h"
#include <algorithm>
#include <cstring>

namespace zv::jet {
namespace {

using Keys = std::vector<std::int64_t>;

/// Above this many numbers a scan of the table is as fast as looking each one up.
constexpr std::size_t kMostLookups = 2000;

int narrowed(std::int64_t number) {
    if (number > std::numeric_limits<int>::max()) throw RuntimeError(6);
    return static_cast<int>(number);
}

KeyList allKeys(Database& database, const std::string& table) {
    const std::string name = quotedName(table);
    SQLite::Statement bounds(database.connection(), "SELECT (SELECT count(*) FROM " + name +
                                                        "), (SELECT min(rowid) FROM " + name +
                                                        "), (SELECT max(rowid) FROM " + name + ")");
    bounds.executeStep();
    const std::int64_t count = bounds.getColumn(0).getInt64();
    const std::int64_t first = bounds.getColumn(1).getInt64();
    const std::int64_t last = bounds.getColumn(2).getInt64();
    bounds.reset();
    if (last - first == count - 1) return {first, narrowed(count)};
    Keys keys;
    keys.reserve(static_cast<std::size_t>(count));
    SQLite::Statement scan(database.connection(), "SELECT rowid FROM " + name);
    while (scan.executeStep()) keys.push_back(scan.getColumn(0).getInt64());
    if (!std::ranges::is_sorted(keys)) std::ranges::sort(keys);
    return KeyList(std::move(keys));
}

/// Sorts rows by numbers or by the bytes of sort keys; the bytes lie in one block.
class Ordering {
  public:
    explicit Ordering(bool descending) : descending_(descending) {}

    void add(std::int64_t key, std::optional<double> number) {
        rows_.push_back({key, number.has_value(), number.value_or(0), 0, 0, 0});
    }

    void add(std::int64_t key, std::optional<std::string_view> text) {
        Row row{key, text.has_value(), 0, 0, static_cast<std::uint32_t>(bytes_.size()), 0};
        if (text) appendSortKey(*text, bytes_);
        row.length = static_cast<std::uint32_t>(bytes_.size()) - row.at;
        row.head = headOf(row);
        rows_.push_back(row);
    }

    Keys sorted() {
        std::ranges::sort(rows_, [this](const Row& a, const Row& b) {
            const int order = compare(a, b);
            return order == 0 ? a.key < b.key : (order < 0) != descending_;
        });
        Keys keys;
        keys.reserve(rows_.size());
        for (const Row& row : rows_) keys.push_back(row.key);
        return keys;
    }

  private:
    struct Row {
        std::int64_t key;
        bool known; ///< not Null
        double number;
        std::uint64_t head; ///< the first bytes of the sort key, which mostly decide
        std::uint32_t at, length;
    };

    std::uint64_t headOf(const Row& row) const {
        std::uint64_t head = 0;
        for (std::uint32_t i = 0; i < sizeof head; ++i)
            head = head << 8 | (i < row.length ? static_cast<unsigned char>(bytes_[row.at + i]) : 0u);
        return head;
    }

    int compare(const Row& a, const Row& b) const {
        if (a.known != b.known) return a.known ? 1 : -1;
        if (a.number != b.number) return a.number < b.number ? -1 : 1;
        if (a.head != b.head) return a.head < b.head ? -1 : 1;
        const int order = std::memcmp(bytes_.data() + a.at, bytes_.data() + b.at, std::min(a.length, b.length));
        return order != 0 ? order : a.length < b.length ? -1 : a.length > b.length ? 1 : 0;
    }

    bool descending_;
    std::vector<Row> rows_;
    std::string bytes_;
};

/// The numbers that SQLite is to look up itself, null if there are none or too many.
const NumberSet* lookups(const Statement& statement) {
    if (!statement.where || statement.where->required < 0) return nullptr;
    const Condition& where = *statement.where;
    const NumberSet& set = where.sets[static_cast<std::size_t>(where.required)];
    const auto column = static_cast<std::size_t>(where.columns[static_cast<std::size_t>(set.column)]);
    return statement.table.columns[column].keptAsNumber && set.numbers.size() <= kMostLookups ? &set : nullptr;
}

std::string scanText(const Statement& statement, const std::vector<int>& columns, const NumberSet* looked) {
    const auto nameOf = [&](int column) {
        return quotedName(statement.table.columns[static_cast<std::size_t>(column)].name);
    };
    std::string sql = "SELECT rowid";
    for (const int column : columns) sql += ", " + nameOf(column);
    sql += " FROM " + quotedName(statement.table.name);
    if (looked) {
        sql += " WHERE " + nameOf(columns[static_cast<std::size_t>(looked->column)]) + " IN (?";
        for (std::size_t i = 1; i < looked->numbers.size(); ++i) sql += ",?";
        sql += ')';
    }
    return sql;
}

KeyList selectedKeys(Database& database, const Statement& statement) {
    std::vector<int> columns = statement.where ? statement.where->columns : std::vector<int>();
    if (statement.orderColumn >= 0) columns.push_back(statement.orderColumn);
    const NumberSet* looked = lookups(statement);
    SQLite::Statement scan(database.connection(), scanText(statement, columns, looked));
    if (looked)
        for (std::size_t i = 0; i < looked->numbers.size(); ++i) scan.bind(static_cast<int>(i) + 1, looked->numbers[i]);

    const int orderAt = static_cast<int>(columns.size()); // the last one read
    const bool ordered = statement.orderColumn >= 0;
    const bool byNumber =
        ordered && statement.table.columns[static_cast<std::size_t>(statement.orderColumn)].isNumber();
    Ordering ordering(statement.descending);
    Keys keys;
    std::string buffer;
    while (scan.executeStep()) {
        if (statement.where && !statement.where->holds(scan)) continue;
        const std::int64_t key = scan.getColumn(0).getInt64();
        if (!ordered)
            keys.push_back(key);
        else if (byNumber)
            ordering.add(key, numberIn(scan, orderAt));
        else
            ordering.add(key, textIn(scan, orderAt, buffer));
    }
    if (ordered) return KeyList(ordering.sorted());
    if (!std::ranges::is_sorted(keys)) std::ranges::sort(keys);
    return KeyList(std::move(keys));
}

} // namespace

KeyList runStatement(Database& database, const Statement& statement) {
    return translated(database.path(), [&] {
        const bool whole = !statement.where && statement.orderColumn < 0;
        return whole ? allKeys(database, statement.table.name) : selectedKeys(database, statement);
    });
}

} // namespace zv::jet
