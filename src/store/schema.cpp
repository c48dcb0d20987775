#include "store/schema.h"

#include "store/schema_kinds.h"

namespace zv::store {

using namespace Qt::StringLiterals;

namespace {

jet::ColumnDef columnDef(const Field& field) {
    switch (field.value) {
    case Value::Key: return {field.column.toString(), jet::ColumnKind::Key};
    case Value::Number:
    case Value::Year: return {field.column.toString(), jet::ColumnKind::Number};
    case Value::Text: return {field.column.toString(), jet::ColumnKind::Text, field.limit};
    case Value::Memo:
    case Value::Picture: break;
    }
    return {field.column.toString(), jet::ColumnKind::Memo};
}

} // namespace

int KindInfo::indexOf(QStringView column) const {
    for (std::size_t i = 0; i < fields.size(); ++i)
        if (fields[i].column == column) return static_cast<int>(i);
    return -1;
}

QString KindInfo::selectAll() const { return u"SELECT * FROM "_s + table.toString(); }

const KindInfo& info(Kind kind) { return description::Kinds[static_cast<int>(kind)]; }

std::span<const KindInfo> kinds() { return description::Kinds; }

const KindInfo& kindOfTab(int form, int tab) {
    for (const KindInfo& kind : description::Kinds)
        if (kind.form == form && kind.tab == tab) return kind;
    Q_UNREACHABLE();
}

std::span<const LinkInfo> links() { return description::Links; }

std::vector<jet::TableDef> tableDefs() {
    std::vector<jet::TableDef> defs;
    for (const KindInfo& kind : kinds()) {
        jet::TableDef def{kind.table.toString(), {}};
        for (const Field& field : kind.fields) def.columns.push_back(columnDef(field));
        defs.push_back(std::move(def));
    }
    for (const LinkInfo& link : links()) {
        jet::TableDef def{link.table.toString(), {}};
        for (const Field& field : link.fields) {
            def.columns.push_back(columnDef(field));
            def.columns.back().indexed = true;
        }
        defs.push_back(std::move(def));
    }
    return defs;
}

} // namespace zv::store
