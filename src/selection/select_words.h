// The fixed rows of the lists of every Select screen.
#pragma once

#include <QStringView>

namespace zv::selection {

struct CriterionRow {
    QStringView caption;
    QStringView text; ///< in the statement
};

inline constexpr CriterionRow Criteria[] = {
    {u"Same as", u" = "},      {u"Contains", u" LIKE "}, {u"Does not contain", u" NOT LIKE "},
    {u"Smaller than", u" < "}, {u"Bigger than", u" > "},
};
/// "Nada" stands for no ordering: the records come in the table's own order.
inline constexpr CriterionRow OrderCriteria[] = {
    {u"Ascending", u" ASC"},
    {u"Descending", u" DESC"},
    {u"Historical", u"Nada"},
};
inline constexpr int HistoricalRow = 2;

inline constexpr QStringView FieldPlaceholder = u"              FIELD";
inline constexpr QStringView CriterionPlaceholder = u"            CRITERIA";
inline constexpr QStringView ValuePlaceholder = u"          FILTER Value";

inline constexpr int MaxFilters = 20;

} // namespace zv::selection
