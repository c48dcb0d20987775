// Walks and writes the rows of a statement.
#include "platform/jet/recordset.h"

#include "platform/base/runtime_error.h"
#include "platform/base/text.h"
#include "platform/jet/query.h"
#include "platform/jet/recordset_impl.h"
#include "platform/jet/sqlite_errors.h"
#include <algorithm>
#include <cmath>
#include <numeric>
#include <sqlite3.h>

namespace zv::jet {
namespace {

/// Whole numbers up to here are kept exactly by both kinds of number.
constexpr double kLargestWhole = 9007199254740992.0;

Statement parsed(Database& database, const QString& source) {
    return parseStatement(source.toStdString(), [&](std::string_view name) { return database.findTable(name); });
}

QString textOf(const SQLite::Column& value) {
    switch (value.getType()) {
    case SQLITE_NULL: return {};
    case SQLITE_INTEGER: return QString::number(value.getInt64());
    case SQLITE_FLOAT: return CStr(value.getDouble());
    default: {
        const char* text = value.getText();
        return QString::fromUtf8(text, value.getBytes());
    }
    }
}

} // namespace

Recordset::Impl::Impl(std::shared_ptr<Database> database, const QString& source) : database_(std::move(database)) {
    Statement statement = parsed(*database_, source);
    keys_ = runStatement(*database_, statement);
    table_ = std::move(statement.table);
    if (keys_.size() == 0)
        atEnd_ = true;
    else
        stand(0);
}

void Recordset::Impl::stand(int position) {
    position_ = position;
    atEnd_ = removed_ = false;
    row_.reset();
    mode_ = Mode::Reading;
}

void Recordset::Impl::moveFirst() {
    if (keys_.size() == 0 && !removed_) throw RuntimeError(3021);
    if (keys_.size() == 0) return moveNext();
    stand(0);
}

void Recordset::Impl::moveLast() {
    if (keys_.size() == 0 && !removed_) throw RuntimeError(3021);
    if (keys_.size() == 0) return moveNext();
    stand(keys_.size() - 1);
}

void Recordset::Impl::moveNext() {
    if (atEnd_) throw RuntimeError(3021);
    const int next = removed_ ? position_ : position_ + 1;
    if (next < keys_.size()) return stand(next);
    stand(keys_.size() - 1);
    position_ = keys_.size();
    atEnd_ = true;
}

void Recordset::Impl::moveTo(int position) {
    if (keys_.size() == 0) throw RuntimeError(3021);
    if (position < 0 || position >= keys_.size()) throw RuntimeError(3001);
    stand(position);
}

void Recordset::Impl::requireRow() const {
    if (atEnd_) throw RuntimeError(3021);
    if (removed_) throw RuntimeError(3167);
}

void Recordset::Impl::requireWritable() const {
    if (database_->readOnly()) throw RuntimeError(3027);
}

bool Recordset::Impl::readRow() {
    if (row_) return true;
    return translated(database_->path(), [&] {
        if (!reader_) {
            std::string columns;
            for (const Column& column : table_.columns)
                columns += (columns.empty() ? "" : ", ") + quotedName(column.name);
            reader_.emplace(database_->connection(),
                            "SELECT " + columns + " FROM " + quotedName(table_.name) + " WHERE rowid = ?1");
        }
        reader_->reset();
        reader_->bind(1, keys_.at(position_));
        const bool found = reader_->executeStep();
        if (found) {
            row_.emplace();
            row_->reserve(table_.columns.size());
            for (int i = 0; i < reader_->getColumnCount(); ++i) row_->push_back(textOf(reader_->getColumn(i)));
        }
        reader_->reset(); // lets go of the file
        return found;
    });
}

int Recordset::Impl::columnOf(const QString& name) const {
    const int column = table_.find(name.toStdString());
    if (column < 0) throw RuntimeError(3265);
    return column;
}

QString Recordset::Impl::boundText(const QString& name) {
    const auto column = static_cast<std::size_t>(columnOf(name));
    return !atEnd_ && !removed_ && readRow() ? (*row_)[column] : QString();
}

// One pass over the table by rising keys, met by the rows in the same order.
std::vector<QString> Recordset::Impl::columnTexts(const QString& name) {
    const Column& column = table_.columns[static_cast<std::size_t>(columnOf(name))];
    std::vector<int> positions(static_cast<std::size_t>(keys_.size()));
    std::iota(positions.begin(), positions.end(), 0);
    const auto byKey = [this](int position) { return keys_.at(position); };
    if (!std::ranges::is_sorted(positions, {}, byKey)) std::ranges::sort(positions, {}, byKey);
    std::vector<QString> texts(positions.size());
    if (texts.empty()) return texts;
    translated(database_->path(), [&] {
        SQLite::Statement scan(database_->connection(), "SELECT rowid, " + quotedName(column.name) + " FROM " +
                                                            quotedName(table_.name) +
                                                            " WHERE rowid BETWEEN ?1 AND ?2 ORDER BY rowid");
        scan.bind(1, byKey(positions.front()));
        scan.bind(2, byKey(positions.back()));
        for (auto at = positions.begin(); at != positions.end() && scan.executeStep();) {
            const std::int64_t key = scan.getColumn(0).getInt64();
            while (at != positions.end() && byKey(*at) < key) ++at;
            if (at != positions.end() && byKey(*at) == key)
                texts[static_cast<std::size_t>(*at++)] = textOf(scan.getColumn(1));
        }
    });
    return texts;
}

QString Recordset::Impl::value(int column) {
    const auto index = static_cast<std::size_t>(column);
    if (mode_ != Mode::Reading) {
        const Assigned& assigned = assigned_[index];
        if (const auto* whole = std::get_if<std::int64_t>(&assigned)) return QString::number(*whole);
        if (const auto* number = std::get_if<double>(&assigned)) return CStr(*number);
        if (const auto* text = std::get_if<std::string>(&assigned)) return QString::fromStdString(*text);
        if (mode_ == Mode::Adding) return {};
    }
    requireRow();
    if (!readRow()) throw RuntimeError(3167);
    return (*row_)[index];
}

Recordset::Impl::Assigned Recordset::Impl::converted(const Column& column, const QString& text) const {
    if (column.kind == ColumnKind::Key) throw RuntimeError(3164);
    if (!column.isNumber()) {
        if (column.size > 0 && text.size() > column.size) throw RuntimeError(3163);
        return text.toStdString();
    }
    double number = 0;
    try {
        number = CDbl(text);
    } catch (const RuntimeError&) {
        throw RuntimeError(3421);
    }
    if (number == std::trunc(number) && std::abs(number) <= kLargestWhole) return static_cast<std::int64_t>(number);
    return number;
}

void Recordset::Impl::setValue(int column, const QString& text) {
    if (mode_ == Mode::Reading) throw RuntimeError(3020);
    const auto index = static_cast<std::size_t>(column);
    assigned_[index] = converted(table_.columns[index], text);
}

void Recordset::Impl::addNew() {
    requireWritable();
    mode_ = Mode::Adding;
    assigned_.assign(table_.columns.size(), {});
}

void Recordset::Impl::edit() {
    requireRow();
    requireWritable();
    if (!readRow()) throw RuntimeError(3167);
    mode_ = Mode::Editing;
    assigned_.assign(table_.columns.size(), {});
}

void Recordset::Impl::update() {
    if (mode_ == Mode::Reading) throw RuntimeError(3020);
    translated(database_->path(), [&] { mode_ == Mode::Adding ? insertRow() : changeRow(); });
    mode_ = Mode::Reading;
}

std::vector<std::size_t> Recordset::Impl::assignedColumns() const {
    std::vector<std::size_t> columns;
    for (std::size_t i = 0; i < assigned_.size(); ++i)
        if (assigned_[i].index() != 0) columns.push_back(i);
    return columns;
}

void Recordset::Impl::execute(const std::string& sql, const std::vector<std::size_t>& columns,
                              std::optional<std::int64_t> key) {
    SQLite::Statement statement(database_->connection(), sql);
    int parameter = 0;
    for (const std::size_t column : columns) {
        ++parameter;
        const Assigned& value = assigned_[column];
        if (const auto* whole = std::get_if<std::int64_t>(&value)) statement.bind(parameter, *whole);
        if (const auto* number = std::get_if<double>(&value)) statement.bind(parameter, *number);
        if (const auto* text = std::get_if<std::string>(&value)) statement.bindNoCopy(parameter, *text);
    }
    if (key) statement.bind(++parameter, *key);
    statement.exec();
}

void Recordset::Impl::insertRow() {
    const auto columns = assignedColumns();
    std::string names;
    std::string marks;
    for (const std::size_t column : columns) {
        names += (names.empty() ? "" : ", ") + quotedName(table_.columns[column].name);
        marks += marks.empty() ? "?" : ", ?";
    }
    const std::string target = "INSERT INTO " + quotedName(table_.name);
    execute(columns.empty() ? target + " DEFAULT VALUES" : target + " (" + names + ") VALUES (" + marks + ")", columns,
            std::nullopt);
    keys_.append(database_->connection().getLastInsertRowid());
}

void Recordset::Impl::changeRow() {
    const auto columns = assignedColumns();
    if (columns.empty()) return;
    std::string settings;
    for (const std::size_t column : columns)
        settings += (settings.empty() ? "" : ", ") + quotedName(table_.columns[column].name) + " = ?";
    execute("UPDATE " + quotedName(table_.name) + " SET " + settings + " WHERE rowid = ?", columns,
            keys_.at(position_));
    row_.reset();
    if (database_->connection().getChanges() == 0) throw RuntimeError(3167);
}

void Recordset::Impl::remove() {
    requireRow();
    requireWritable();
    mode_ = Mode::Reading;
    translated(database_->path(), [&] {
        SQLite::Statement statement(database_->connection(),
                                    "DELETE FROM " + quotedName(table_.name) + " WHERE rowid = ?1");
        statement.bind(1, keys_.at(position_));
        statement.exec();
    });
    if (database_->connection().getChanges() == 0) throw RuntimeError(3167);
    keys_.removeAt(position_);
    removed_ = true;
    row_.reset();
}

Recordset::Recordset(std::shared_ptr<Database> database, const QString& source)
    : impl_(std::make_unique<Impl>(std::move(database), source)) {}
Recordset::~Recordset() = default;

int Recordset::RecordCount() const { return impl_->count(); }
bool Recordset::EOF_() const { return impl_->atEnd(); }
void Recordset::MoveFirst() { impl_->moveFirst(); }
void Recordset::MoveLast() { impl_->moveLast(); }
void Recordset::MoveNext() { impl_->moveNext(); }
int Recordset::AbsolutePosition() const { return impl_->position(); }
void Recordset::setAbsolutePosition(int position) { impl_->moveTo(position); }
void Recordset::AddNew() { impl_->addNew(); }
void Recordset::Edit() { impl_->edit(); }
void Recordset::Update() { impl_->update(); }
void Recordset::Delete() { impl_->remove(); }
std::vector<QString> Recordset::columnTexts(const QString& name) { return impl_->columnTexts(name); }
Field Recordset::Fields(const QString& name) { return {*this, impl_->columnOf(name)}; }

QString Field::Value() const { return owner_.impl().value(column_); }
void Field::setValue(const QString& text) { owner_.impl().setValue(column_, text); }

} // namespace zv::jet
