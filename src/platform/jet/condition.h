// A WHERE clause, compiled: steps on a stack of three-valued truths, and how a row of SQLite is put through them.
#pragma once

#include "platform/jet/like_pattern.h"
#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Statement.h>
#include <optional>
#include <string>
#include <vector>

namespace zv::jet {

enum class Truth : unsigned char { False, Unknown, True };

enum class Comparison : unsigned char { Equal, Unequal, Less, LessEqual, Greater, GreaterEqual };

/// One side of a comparison: a column among those the condition reads, or a constant.
struct Operand {
    enum class Kind : unsigned char { Column, Text, Number } kind = Kind::Number;
    int index = 0;
};

/// Numbers that a column is compared with: "c = 1 OR c = 2 ...".
struct NumberSet {
    int column = 0;
    std::vector<double> numbers; ///< rising once the condition is complete
};

struct Step {
    enum class Kind : unsigned char {
        CompareNumbers,
        CompareTexts,
        Like,
        LikeText,
        InSet,
        Unknown, // push a truth
        Not,
        And,
        Or, // on the top of the stack
        SkipIfFalse,
        SkipIfTrue // leave the top and go on at the target
    } kind;
    Comparison comparison = Comparison::Equal;
    Operand left, right;
    int index = 0; ///< of the set or pattern; of the step to go on at
};

class Condition {
  public:
    std::vector<Step> steps;
    std::vector<int> columns; ///< columns of the table that are read, in the order in which Operand counts them
    std::vector<std::string> texts;
    std::vector<double> numbers;
    std::vector<NumberSet> sets;
    std::vector<LikePattern> patterns;
    int required = -1; ///< a set that each row that fits is in; -1 if there is none

    /// Whether the row fits. The row's results are the key and then the columns.
    bool holds(SQLite::Statement& row) const;

  private:
    Truth pushed(const Step& step, SQLite::Statement& row) const;
    Truth compareNumbers(const Step& step, SQLite::Statement& row) const;
    Truth compareTexts(const Step& step, SQLite::Statement& row) const;
    Truth like(const Step& step, SQLite::Statement& row) const;
    std::optional<double> number(Operand operand, SQLite::Statement& row) const;
    std::optional<std::string_view> text(Operand operand, SQLite::Statement& row, std::string& buffer) const;
};

/// A column of a row as a number, nothing for Null or for what is none.
std::optional<double> numberIn(SQLite::Statement& row, int column);

/// A column of a row as text, nothing for Null. Numbers stand in it in their plain form.
std::optional<std::string_view> textIn(SQLite::Statement& row, int column, std::string& buffer);

} // namespace zv::jet
