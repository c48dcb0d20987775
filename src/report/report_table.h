// The table of the report: its rows, its columns, and where they stand.
#pragma once

#include "store/working_memory.h"

namespace zv::report {

/// One row for each kind of record: the head of its labels' names.
struct ReportRow {
    QStringView prefix;
    store::Kind kind;
};

inline constexpr ReportRow ReportRows[] = {
    {u"LabCom", store::Kind::Compositor}, {u"LabObra", store::Kind::Obra},       {u"LabOrq", store::Kind::Orquesta},
    {u"LabDir", store::Kind::Director},   {u"LabInt", store::Kind::Interprete},  {u"LabSop", store::Kind::Soporte},
    {u"LabGra", store::Kind::Grabacion},  {u"LabIns", store::Kind::Instrumento}, {u"LabAgr", store::Kind::Agrupacion},
    {u"LabEve", store::Kind::Evento},     {u"LabEsc", store::Kind::Escenario},   {u"LabPub", store::Kind::Publicacion},
    {u"LabEmi", store::Kind::Emisora},    {u"LabInte", store::Kind::Internet},
};
inline constexpr QStringView SumPrefix = u"LabSuma", ProductPrefix = u"LabRxC";
inline constexpr int ReportRowCount = static_cast<int>(std::size(ReportRows));
static_assert(ReportRowCount == store::KindCount);

/// What the cells of a column hold.
enum class Content {
    Counter, ///< a counter of the working memory
    Fields,  ///< the fixed number of fields of the kind
    Ticks,   ///< number of ticks that the List screen left
    Order,   ///< order number of the record on display
};

/// One column. A column of fixed numbers has no suffix: nobody looks for its labels.
struct ReportColumn {
    QStringView suffix; ///< tail of its labels' names
    QStringView heading, tip;
    int left, width; ///< twips; figures end 45 before the right edge
    Content content = Content::Counter;
    qint32 store::KindMemory::*counter = nullptr;
};

/// The columns by name, as the loading of the report fills them.
enum ColumnId {
    NumRegTotal,
    FieldsTotal,
    NumRegNuevos,
    NumRegEliminados,
    NumRegSeleccion,
    NumFiltros,
    FieldsSeleccion,
    NumRegSeleccion1,
    NumFiltros1,
    NumCampos,
    Orden,
    ColumnCount
};

inline constexpr ReportColumn ReportColumns[] = {
    {u"NumRegTotal", u"R", u"Total No. of Records", 2520, 870, Content::Counter, &store::KindMemory::Cont},
    {u"", u"F", u"No. of Fields per Record", 3405, 525, Content::Fields},
    {u"NumRegNuevos", u"R", u"No. of New Records", 4065, 750, Content::Counter, &store::KindMemory::ContNew},
    {u"NumRegEliminados", u"R", u"No. of Removed Records", 4950, 750, Content::Counter, &store::KindMemory::ContEli},
    {u"NumRegSeleccion", u"R", u"No. of Selected Records", 5835, 750, Content::Counter, &store::KindMemory::ContSel},
    {u"NumFiltros", u"Fl", u"No. of Selected Filters", 6600, 450, Content::Counter, &store::KindMemory::ContFil},
    {u"", u"F", u"No. of Fields per Selected Record", 7065, 480, Content::Fields},
    {u"NumRegSeleccion1", u"R", u"No. of Listed Records", 7680, 750, Content::Counter, &store::KindMemory::ContSel},
    {u"NumFiltros1", u"Fl", u"No. of Listed Filters", 8445, 450, Content::Counter, &store::KindMemory::ContFil},
    {u"NumCampos", u"F", u"No. of Fields per Listed Record", 8910, 480, Content::Ticks},
    {u"Orden", u"R", u"Order No. of the Record", 9525, 600, Content::Order},
};
static_assert(std::size(ReportColumns) == ColumnCount);

/// Columns under one heading.
struct ReportGroup {
    QStringView heading;
    ColumnId first, last;

    constexpr int left() const { return ReportColumns[first].left; }
    constexpr int width() const { return ReportColumns[last].left + ReportColumns[last].width - left(); }
};

inline constexpr ReportGroup ReportGroups[] = {
    {u"Total", NumRegTotal, FieldsTotal},
    {u"New", NumRegNuevos, NumRegNuevos},
    {u"Removed", NumRegEliminados, NumRegEliminados},
    {u"Selection", NumRegSeleccion, FieldsSeleccion},
    {u"Listed", NumRegSeleccion1, NumCampos},
    {u"Order", Orden, Orden},
};

/// A figure under the sums: records of a column times fields of another, over a group of columns.
struct ReportProduct {
    int group;
    ColumnId records, fields;
};

inline constexpr ReportProduct ReportProducts[] = {
    {0, NumRegTotal, FieldsTotal},
    {3, NumRegSeleccion, FieldsSeleccion},
    {4, NumRegSeleccion1, NumCampos},
};
inline constexpr int ProductCount = static_cast<int>(std::size(ReportProducts));

} // namespace zv::report
