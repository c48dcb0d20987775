// What the engine knows of a table beyond what stands in the file: kinds of column and lengths of text.
#pragma once

#include <QString>
#include <vector>

namespace zv::jet {

enum class ColumnKind {
    Key,    ///< assigned by the engine, rising
    Number, ///< compared as a number
    Text,   ///< text of at most `size` characters
    Memo    ///< long text; no ordering
};

struct ColumnDef {
    QString name;
    ColumnKind kind;
    int size = 0;         ///< longest text in UTF-16 units; 0 for no limit
    bool indexed = false; ///< rows are looked up by this column: new files get an index on it
};

struct TableDef {
    QString name;
    std::vector<ColumnDef> columns;
};

} // namespace zv::jet
