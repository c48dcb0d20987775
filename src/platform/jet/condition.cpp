// Evaluates a compiled WHERE clause on a row.
#include "platform/jet/condition.h"

#include "platform/base/text.h"
#include "platform/jet/collation.h"
#include <algorithm>
#include <charconv>
#include <sqlite3.h>

namespace zv::jet {
namespace {

Truth truthOf(bool value) { return value ? Truth::True : Truth::False; }

/// The result of a comparison from the order of its two sides (below, equal to or above 0).
Truth compared(Comparison comparison, int order) {
    switch (comparison) {
    case Comparison::Equal: return truthOf(order == 0);
    case Comparison::Unequal: return truthOf(order != 0);
    case Comparison::Less: return truthOf(order < 0);
    case Comparison::LessEqual: return truthOf(order <= 0);
    case Comparison::Greater: return truthOf(order > 0);
    case Comparison::GreaterEqual: return truthOf(order >= 0);
    }
    return Truth::Unknown;
}

} // namespace

std::optional<double> numberIn(SQLite::Statement& row, int column) {
    const SQLite::Column value = row.getColumn(column);
    switch (value.getType()) {
    case SQLITE_INTEGER:
    case SQLITE_FLOAT: return value.getDouble();
    case SQLITE_TEXT: {
        const char* text = value.getText();
        const char* end = text + value.getBytes();
        double number = 0;
        const auto result = std::from_chars(text, end, number);
        if (result.ec == std::errc() && result.ptr == end) return number;
        return std::nullopt;
    }
    default: return std::nullopt;
    }
}

std::optional<std::string_view> textIn(SQLite::Statement& row, int column, std::string& buffer) {
    const SQLite::Column value = row.getColumn(column);
    const int type = value.getType();
    if (type == SQLITE_NULL) return std::nullopt;
    if (type == SQLITE_FLOAT) {
        buffer = CStr(value.getDouble()).toStdString();
        return buffer;
    }
    const char* text = value.getText();
    return std::string_view(text, static_cast<std::size_t>(value.getBytes()));
}

bool Condition::holds(SQLite::Statement& row) const {
    static thread_local std::vector<Truth> stack;
    stack.clear();
    for (std::size_t at = 0; at < steps.size(); ++at) {
        const Step& step = steps[at];
        switch (step.kind) {
        case Step::Kind::Not: stack.back() = static_cast<Truth>(2 - static_cast<int>(stack.back())); break;
        case Step::Kind::And:
        case Step::Kind::Or: {
            const Truth right = stack.back();
            stack.pop_back();
            stack.back() = step.kind == Step::Kind::And ? std::min(stack.back(), right) : std::max(stack.back(), right);
            break;
        }
        case Step::Kind::SkipIfFalse:
        case Step::Kind::SkipIfTrue:
            if (stack.back() == truthOf(step.kind == Step::Kind::SkipIfTrue))
                at = static_cast<std::size_t>(step.index) - 1;
            break;
        default: stack.push_back(pushed(step, row));
        }
    }
    return stack.back() == Truth::True;
}

Truth Condition::pushed(const Step& step, SQLite::Statement& row) const {
    switch (step.kind) {
    case Step::Kind::CompareNumbers: return compareNumbers(step, row);
    case Step::Kind::CompareTexts: return compareTexts(step, row);
    case Step::Kind::Like:
    case Step::Kind::LikeText: return like(step, row);
    case Step::Kind::InSet: {
        const NumberSet& set = sets[static_cast<std::size_t>(step.index)];
        const auto value = numberIn(row, set.column + 1);
        return value ? truthOf(std::ranges::binary_search(set.numbers, *value)) : Truth::Unknown;
    }
    default: return Truth::Unknown;
    }
}

Truth Condition::compareNumbers(const Step& step, SQLite::Statement& row) const {
    const auto left = number(step.left, row);
    const auto right = number(step.right, row);
    if (!left || !right) return Truth::Unknown;
    return compared(step.comparison, *left < *right ? -1 : *left > *right ? 1 : 0);
}

Truth Condition::compareTexts(const Step& step, SQLite::Statement& row) const {
    std::string leftBuffer;
    std::string rightBuffer;
    const auto left = text(step.left, row, leftBuffer);
    const auto right = text(step.right, row, rightBuffer);
    if (!left || !right) return Truth::Unknown;
    return compared(step.comparison, jet::compareTexts(*left, *right));
}

Truth Condition::like(const Step& step, SQLite::Statement& row) const {
    std::string buffer;
    const auto left = text(step.left, row, buffer);
    if (!left) return Truth::Unknown;
    if (step.kind == Step::Kind::Like) return truthOf(patterns[static_cast<std::size_t>(step.index)].matches(*left));
    std::string patternBuffer;
    const auto pattern = text(step.right, row, patternBuffer);
    return pattern ? truthOf(LikePattern(*pattern).matches(*left)) : Truth::Unknown;
}

std::optional<double> Condition::number(Operand operand, SQLite::Statement& row) const {
    if (operand.kind == Operand::Kind::Column) return numberIn(row, operand.index + 1);
    return numbers[static_cast<std::size_t>(operand.index)];
}

std::optional<std::string_view> Condition::text(Operand operand, SQLite::Statement& row, std::string& buffer) const {
    const auto index = static_cast<std::size_t>(operand.index);
    if (operand.kind == Operand::Kind::Column) return textIn(row, operand.index + 1, buffer);
    if (operand.kind == Operand::Kind::Text) return texts[index];
    buffer = CStr(numbers[index]).toStdString();
    return buffer;
}

} // namespace zv::jet
