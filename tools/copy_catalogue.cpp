// Table by table: finds the columns, puts the rows in the order of their keys, writes them, counts them again.
#include "copy_catalogue.h"

#include "jet_reader.h"
#include "platform/jet/catalogue_file.h"
#include "platform/jet/table.h"
#include "store/schema.h"
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace zv::tool {
namespace {

/// Nobody can have come to more records than this: a greater "last number" is not believed.
constexpr qint64 kMostNumbers = 2'000'000'000;

/// How a table's rows are taken over.
struct Plan {
    std::vector<int> sources; ///< for each new column the index of the old one, -1 for none
    int key = -1;             ///< index of the old column that holds the keys, -1 if rows stand in stored order
};

bool goesInto(jet::ColumnKind kind, JetType type) {
    switch (kind) {
    case jet::ColumnKind::Key: return type == JetType::Whole;
    case jet::ColumnKind::Number: return type == JetType::Whole || type == JetType::Real;
    default: return type != JetType::Other; // a number becomes its digits
    }
}

/// Whether other records point to a table's keys. Where none does, the old table may lack a key or call it otherwise.
bool keyMatters(const QString& table) {
    return std::ranges::none_of(store::kinds(),
                                [&](const store::KindInfo& kind) { return kind.table == table && kind.form == 2; });
}

int sourceOf(const JetTable& old, const jet::TableDef& table, const jet::ColumnDef& column) {
    int index = old.indexOf(column.name);
    if (index < 0 && column.kind == jet::ColumnKind::Key && !keyMatters(table.name)) {
        const auto counted = std::ranges::find_if(old.columns(), &JetColumn::counted);
        return counted == old.columns().end() ? -1 : static_cast<int>(counted - old.columns().begin());
    }
    if (index < 0)
        throw ConvertError(
            u"The old file is no whole catalogue: table %1 has no column %2."_s.arg(table.name, column.name));
    if (!goesInto(column.kind, old.columns()[static_cast<std::size_t>(index)].type))
        throw ConvertError(
            u"Column %2 of table %1 holds another kind of data than a catalogue."_s.arg(table.name, column.name));
    return index;
}

Plan planOf(const JetTable& old, const jet::TableDef& table) {
    Plan plan;
    for (const jet::ColumnDef& column : table.columns) {
        plan.sources.push_back(sourceOf(old, table, column));
        if (column.kind == jet::ColumnKind::Key) plan.key = plan.sources.back();
    }
    return plan;
}

/// The places of a table's rows in the order of their keys, or as they are stored where there is no key.
std::vector<JetPlace> orderedPlaces(JetTable& old, const Plan& plan) {
    std::vector<JetPlace> places = old.places();
    if (plan.key < 0) return places;
    std::vector<std::pair<qint64, JetPlace>> keyed;
    keyed.reserve(places.size());
    for (const JetPlace& place : places) {
        const JetValue key = old.read(place, {plan.key}).front();
        if (!std::holds_alternative<qint64>(key))
            throw ConvertError(u"The old catalogue is damaged: a row of table %1 has no key."_s.arg(old.name()));
        keyed.emplace_back(std::get<qint64>(key), place);
    }
    std::ranges::stable_sort(keyed, {}, &std::pair<qint64, JetPlace>::first);
    for (std::size_t i = 0; i < keyed.size(); ++i) {
        if (i > 0 && keyed[i].first == keyed[i - 1].first)
            throw ConvertError(
                u"The old catalogue is damaged: table %1 has key %2 twice."_s.arg(old.name()).arg(keyed[i].first));
        places[i] = keyed[i].second;
    }
    return places;
}

QString textOf(const JetValue& value) {
    if (const auto* whole = std::get_if<qint64>(&value)) return QString::number(*whole);
    if (const auto* real = std::get_if<double>(&value)) return QString::number(*real, 'g', 15);
    return std::get<QString>(value);
}

void bind(SQLite::Statement& insert, int parameter, const jet::ColumnDef& column, const JetValue& value) {
    if (std::holds_alternative<std::monostate>(value))
        insert.bind(parameter);
    else if (column.kind == jet::ColumnKind::Text || column.kind == jet::ColumnKind::Memo)
        insert.bind(parameter, textOf(value).toStdString());
    else if (const auto* whole = std::get_if<qint64>(&value))
        insert.bind(parameter, static_cast<int64_t>(*whole));
    else
        insert.bind(parameter, std::get<double>(value));
}

std::string insertInto(const jet::TableDef& table) {
    std::string columns, values;
    for (const jet::ColumnDef& column : table.columns) {
        columns += (columns.empty() ? "" : ", ") + jet::quotedName(column.name.toStdString());
        values += values.empty() ? "?" : ", ?";
    }
    return "INSERT INTO " + jet::quotedName(table.name.toStdString()) + " (" + columns + ") VALUES (" + values + ")";
}

/// Makes the next key stay beyond all that the old engine gave, even those of records removed since: a recording may
/// still point to such a one.
void keepNumbering(SQLite::Database& made, const jet::TableDef& table, qint64 last) {
    if (last <= 0 || last > kMostNumbers) return;
    const std::string name = table.name.toStdString();
    SQLite::Statement known(made, "SELECT seq FROM sqlite_sequence WHERE name = ?");
    known.bind(1, name);
    if (known.executeStep() && known.getColumn(0).getInt64() >= last) return;
    SQLite::Statement forget(made, "DELETE FROM sqlite_sequence WHERE name = ?");
    forget.bind(1, name);
    forget.exec();
    SQLite::Statement keep(made, "INSERT INTO sqlite_sequence (name, seq) VALUES (?, ?)");
    keep.bind(1, name);
    keep.bind(2, static_cast<int64_t>(last));
    keep.exec();
}

/// Copies the rows of one table. Returns the notes on what does not fit its columns.
QString copyRows(JetTable& old, SQLite::Database& made, const jet::TableDef& table, const Plan& plan, qint64& rows) {
    std::vector<int> wanted;
    std::ranges::copy_if(plan.sources, std::back_inserter(wanted), [](int source) { return source >= 0; });
    std::map<std::size_t, int> tooLong; // by column: rows
    SQLite::Statement insert(made, insertInto(table));
    const std::vector<JetPlace> places = orderedPlaces(old, plan);
    for (const JetPlace& place : places) {
        const std::vector<JetValue> values = old.read(place, wanted);
        auto value = values.begin();
        for (std::size_t i = 0; i < table.columns.size(); ++i) {
            const jet::ColumnDef& column = table.columns[i];
            const JetValue taken = plan.sources[i] < 0 ? JetValue() : *value++;
            bind(insert, static_cast<int>(i) + 1, column, taken);
            if (column.size > 0 && taken.index() != 0 && textOf(taken).size() > column.size) ++tooLong[i];
        }
        insert.exec();
        insert.reset();
    }
    rows = static_cast<qint64>(places.size());
    QString notes;
    for (const auto& [i, count] : tooLong)
        notes += u"Table %1: %2 of the texts in %3 are longer than the %4 characters of their box; they were kept "
                 "whole.\n"_s.arg(table.name)
                     .arg(count)
                     .arg(table.columns[i].name)
                     .arg(table.columns[i].size);
    return notes;
}

QString leftOut(const JetTable& old, const Plan& plan) {
    QString notes;
    for (std::size_t i = 0; i < old.columns().size(); ++i)
        if (std::ranges::find(plan.sources, static_cast<int>(i)) == plan.sources.end())
            notes += u"Table %1: column %2 is no part of a catalogue and was left out.\n"_s.arg(old.name(),
                                                                                                old.columns()[i].name);
    return notes;
}

QString leftOut(const JetFile& old, const std::vector<jet::TableDef>& tables) {
    QString notes;
    for (const QString& name : old.tableNames())
        if (std::ranges::none_of(tables,
                                 [&](const auto& table) { return table.name.compare(name, Qt::CaseInsensitive) == 0; }))
            notes += u"Table %1 is no part of a catalogue and was left out.\n"_s.arg(name);
    return notes;
}

/// ConvertError unless the new table has the rows that were read.
void requireRows(SQLite::Database& made, const jet::TableDef& table, qint64 rows) {
    const qint64 counted =
        made.execAndGet("SELECT count(*) FROM " + jet::quotedName(table.name.toStdString())).getInt64();
    if (counted != rows)
        throw ConvertError(u"Table %1 has %2 rows in the old catalogue, but %3 in the new one."_s.arg(table.name)
                               .arg(rows)
                               .arg(counted));
}

} // namespace

QString copyCatalogue(const QString& old, const QString& part) {
    JetFile source(old);
    const std::vector<jet::TableDef> tables = store::tableDefs();
    SQLite::Database made(part.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    jet::prepareConnection(made);
    jet::createTables(made, tables);
    QString lines, notes;
    qint64 all = 0;
    SQLite::Transaction transaction(made);
    for (const jet::TableDef& table : tables) {
        JetTable from = source.table(table.name);
        const Plan plan = planOf(from, table);
        qint64 rows = 0;
        notes += copyRows(from, made, table, plan, rows) + leftOut(from, plan);
        if (plan.key >= 0) keepNumbering(made, table, from.lastNumber());
        requireRows(made, table, rows);
        lines += u"%1%2 rows\n"_s.arg(table.name, -20).arg(rows, 8);
        all += rows;
    }
    transaction.commit();
    return lines +
           u"%1%2 rows, as many as in the old catalogue, table by table\n"_s.arg(u"Together"_s, -20).arg(all, 8) +
           notes + leftOut(source, tables);
}

} // namespace zv::tool
