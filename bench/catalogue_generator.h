// Makes a large catalogue with text as people write it, always the same for the same numbers.
#pragma once

#include "platform/jet/table_def.h"

namespace zv::bench {

/// As many tables as told, all with the columns of composers; the first is named Compositor.
std::vector<jet::TableDef> composerTables(int tables);

/// Writes a catalogue of those tables with that many rows in each: names with accents, notes of about 300 bytes, one in
/// twenty with the word "opera". Every 97th key is missing, as after years of use.
void generateCatalogue(const QString& path, const std::vector<jet::TableDef>& tables, int rows);

} // namespace zv::bench
