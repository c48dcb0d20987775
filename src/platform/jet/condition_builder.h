// Compiles a WHERE clause while it is read: operands and operators come in postfix order.
#pragma once

#include "platform/jet/condition.h"
#include "platform/jet/table.h"
#include <set>

namespace zv::jet {

class ConditionBuilder {
  public:
    /// The table may be missing: the clause is then read for its syntax only.
    explicit ConditionBuilder(const Table* table) : table_(table) {}

    void addColumn(std::string_view name);
    void addText(std::string text);
    void addNumber(double number);

    /// The two topmost operands become one condition.
    void compare(Comparison comparison);
    void like();

    void negate();
    /// Between the two sides of AND or OR: the right side is passed over where the left one decides.
    /// Returns the mark that `join` needs.
    int skip(bool isAnd);
    void join(bool isAnd, int mark);

    /// The condition; the builder is then used up. Error 3061 for unknown columns, 3464 for a number compared with a
    /// text or for a value where a condition is needed.
    Condition finish();

    /// Counts names that are no columns, the one of an ORDER BY among them.
    void noteUnknown(std::string_view name);

  private:
    enum class Type : unsigned char { Number, Text, Any, Truth };
    struct Item {
        Type type;
        Operand value;
        int set = -1;      ///< the item is this set's test and nothing else
        int required = -1; ///< a set that each row that fits is in
        int tail = -1;     ///< the last alternative is this set's test: "... OR c = 1"
    };

    Item pop();
    Item popCondition();
    void pushCondition(Step step);
    bool pushSetTest(const Item& column, const Item& constant);
    bool mergeSets(int into, int from);
    int better(int first, int second) const;

    const Table* table_;
    Condition condition_;
    std::vector<Item> items_;
    std::set<std::string> unknown_;
    bool mismatch_ = false;
};

} // namespace zv::jet
