// Compiles a WHERE clause. A chain of "c = n" joined by OR becomes one look-up in a set, however long it is.
#include "platform/jet/condition_builder.h"

#include "platform/base/runtime_error.h"
#include "platform/base/text.h"
#include <algorithm>

namespace zv::jet {

void ConditionBuilder::noteUnknown(std::string_view name) {
    std::string lower(name);
    std::ranges::transform(lower, lower.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? char(c + 32) : c; });
    unknown_.insert(std::move(lower));
}

void ConditionBuilder::addColumn(std::string_view name) {
    const int column = table_ ? table_->find(name) : -1;
    if (column < 0) {
        noteUnknown(name);
        items_.push_back({Type::Any, {}});
        return;
    }
    auto& read = condition_.columns;
    auto found = std::ranges::find(read, column);
    if (found == read.end()) found = read.insert(read.end(), column);
    const Type type = table_->columns[static_cast<std::size_t>(column)].isNumber() ? Type::Number : Type::Text;
    items_.push_back({type, {Operand::Kind::Column, static_cast<int>(found - read.begin())}});
}

void ConditionBuilder::addText(std::string text) {
    condition_.texts.push_back(std::move(text));
    items_.push_back({Type::Text, {Operand::Kind::Text, static_cast<int>(condition_.texts.size()) - 1}});
}

void ConditionBuilder::addNumber(double number) {
    condition_.numbers.push_back(number);
    items_.push_back({Type::Number, {Operand::Kind::Number, static_cast<int>(condition_.numbers.size()) - 1}});
}

ConditionBuilder::Item ConditionBuilder::pop() {
    const Item item = items_.back();
    items_.pop_back();
    if (item.type == Type::Truth) mismatch_ = true;
    return item;
}

ConditionBuilder::Item ConditionBuilder::popCondition() {
    const Item item = items_.back();
    items_.pop_back();
    if (item.type != Type::Truth) mismatch_ = true;
    return item;
}

void ConditionBuilder::pushCondition(Step step) {
    items_.push_back({Type::Truth, {}});
    condition_.steps.push_back(step);
}

void ConditionBuilder::compare(Comparison comparison) {
    const Item right = pop();
    const Item left = pop();
    if (comparison == Comparison::Equal && (pushSetTest(left, right) || pushSetTest(right, left))) return;
    const bool known = left.type != Type::Any && right.type != Type::Any;
    if (known && left.type != right.type) mismatch_ = true;
    const auto kind = left.type == Type::Number ? Step::Kind::CompareNumbers : Step::Kind::CompareTexts;
    pushCondition({kind, comparison, left.value, right.value});
}

/// "column = number" as a set of one number.
bool ConditionBuilder::pushSetTest(const Item& column, const Item& constant) {
    if (column.type != Type::Number || column.value.kind != Operand::Kind::Column) return false;
    if (constant.type != Type::Number || constant.value.kind != Operand::Kind::Number) return false;
    const int set = static_cast<int>(condition_.sets.size());
    condition_.sets.push_back(
        {column.value.index, {condition_.numbers[static_cast<std::size_t>(constant.value.index)]}});
    Step step{Step::Kind::InSet};
    step.index = set;
    pushCondition(step);
    items_.back().set = items_.back().required = set;
    return true;
}

void ConditionBuilder::like() {
    const Item right = pop();
    const Item left = pop();
    Step step{Step::Kind::LikeText, Comparison::Equal, left.value, right.value};
    const auto index = static_cast<std::size_t>(right.value.index);
    if (right.value.kind != Operand::Kind::Column && right.type != Type::Any && right.type != Type::Truth) {
        const bool isText = right.value.kind == Operand::Kind::Text;
        condition_.patterns.emplace_back(isText ? condition_.texts[index]
                                                : CStr(condition_.numbers[index]).toStdString());
        step.kind = Step::Kind::Like;
        step.index = static_cast<int>(condition_.patterns.size()) - 1;
    }
    pushCondition(step);
}

void ConditionBuilder::negate() {
    Item item = popCondition();
    item.set = item.required = item.tail = -1;
    item.type = Type::Truth;
    condition_.steps.push_back({Step::Kind::Not});
    items_.push_back(item);
}

int ConditionBuilder::skip(bool isAnd) {
    if (items_.back().type != Type::Truth) mismatch_ = true;
    condition_.steps.push_back({isAnd ? Step::Kind::SkipIfFalse : Step::Kind::SkipIfTrue});
    return static_cast<int>(condition_.steps.size()) - 1;
}

void ConditionBuilder::join(bool isAnd, int mark) {
    const Item right = popCondition();
    Item left = popCondition();
    left.type = Type::Truth;
    // A list of keys mostly stands by itself, but also behind other conditions without parentheses of its own.
    if (!isAnd && (mergeSets(left.set, right.set) || mergeSets(left.tail, right.set))) {
        condition_.steps.resize(static_cast<std::size_t>(mark), Step{Step::Kind::Unknown});
        items_.push_back(left);
        return;
    }
    condition_.steps.push_back({isAnd ? Step::Kind::And : Step::Kind::Or});
    condition_.steps[static_cast<std::size_t>(mark)].index = static_cast<int>(condition_.steps.size());
    left.set = -1;
    left.tail = isAnd ? -1 : right.set;
    left.required = isAnd ? better(left.required, right.required) : -1;
    items_.push_back(left);
}

/// Adds the numbers of a set to another one; false if there are not two sets on one column.
bool ConditionBuilder::mergeSets(int into, int from) {
    if (into < 0 || from < 0) return false;
    auto& first = condition_.sets[static_cast<std::size_t>(into)];
    auto& second = condition_.sets[static_cast<std::size_t>(from)];
    if (first.column != second.column) return false;
    if (first.numbers.size() < second.numbers.size()) std::swap(first.numbers, second.numbers);
    first.numbers.insert(first.numbers.end(), second.numbers.begin(), second.numbers.end());
    second.numbers = {};
    return true;
}

/// The set that leaves fewer rows.
int ConditionBuilder::better(int first, int second) const {
    if (first < 0 || second < 0) return std::max(first, second);
    const auto size = [this](int set) { return condition_.sets[static_cast<std::size_t>(set)].numbers.size(); };
    return size(second) < size(first) ? second : first;
}

Condition ConditionBuilder::finish() {
    if (!items_.empty()) condition_.required = popCondition().required;
    if (!unknown_.empty())
        throw RuntimeError(3061, QStringLiteral("Too few parameters. Expected %1.").arg(unknown_.size()));
    if (mismatch_) throw RuntimeError(3464);
    for (NumberSet& set : condition_.sets) {
        std::ranges::sort(set.numbers);
        set.numbers.erase(std::unique(set.numbers.begin(), set.numbers.end()), set.numbers.end());
    }
    return std::move(condition_);
}

} // namespace zv::jet
