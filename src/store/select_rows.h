// Rows of the lists of the Select screens: the fields of a kind, the criteria, the orderings. The printed list tells
// the order in the same words.
#pragma once

#include "store/schema.h"
#include <QString>

namespace zv::store {

/// A row of the list of fields: its words, its column, and whether its value is compared as a number.
struct FieldRow {
    QString caption;
    QString column;
    bool numeric = false;
};

/// The fields on offer for a filter, without the placeholder row.
std::vector<FieldRow> fieldRows(const KindInfo& kind);
/// The fields on offer for the ordering, without the placeholder row: notes can be filtered but not ordered by.
std::vector<FieldRow> orderRows(const KindInfo& kind);

struct CriterionRow {
    QStringView caption;
    QStringView text; ///< in the statement
};

inline constexpr CriterionRow Criteria[] = {
    {u"Same as", u" = "},      {u"Contains", u" LIKE "}, {u"Does not contain", u" NOT LIKE "},
    {u"Smaller than", u" < "}, {u"Bigger than", u" > "},
};
/// Stands for no ordering: the records come in the table's own order.
inline constexpr QStringView NoOrder = u"Nada";
inline constexpr CriterionRow OrderCriteria[] = {
    {u"Ascending", u" ASC"},
    {u"Descending", u" DESC"},
    {u"Historical", NoOrder},
};

/// The directions on offer for the ordering.
std::vector<CriterionRow> orderDirections(const KindInfo& kind);

inline constexpr QStringView FieldPlaceholder = u"              FIELD";
inline constexpr QStringView CriterionPlaceholder = u"            CRITERIA";
inline constexpr QStringView ValuePlaceholder = u"          FILTER Value";

inline constexpr int MaxFilters = 20;

} // namespace zv::store
