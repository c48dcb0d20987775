#include "store/select_rows.h"

namespace zv::store {

std::vector<FieldRow> fieldRows(const KindInfo& kind) {
    std::vector<FieldRow> rows;
    for (const Field& field : kind.fields) {
        if (field.listed.isEmpty() || field.value == Value::Picture) continue;
        const bool numeric = field.value == Value::Year || field.value == Value::Number;
        if (field.identifier && !kind.nameRows.empty())
            for (const QStringView& caption : kind.nameRows)
                rows.push_back({caption.toString(), field.column.toString(), numeric});
        else
            rows.push_back({field.listed.toString(), field.column.toString(), numeric});
    }
    return rows;
}

std::vector<FieldRow> orderRows(const KindInfo& kind) {
    if (!kind.onlyOrder.empty()) return {{kind.onlyOrder[0].toString(), {}}};
    std::vector<FieldRow> rows = fieldRows(kind);
    std::erase_if(rows, [](const FieldRow& row) { return row.column == u"Notas"; });
    return rows;
}

std::vector<CriterionRow> orderDirections(const KindInfo& kind) {
    if (!kind.onlyOrder.empty()) return {{kind.onlyOrder[1], NoOrder}};
    return {std::begin(OrderCriteria), std::end(OrderCriteria)};
}

} // namespace zv::store
