// Makes a catalogue with the same number of rows in all 14 tables of records, always the same for the same number.
#pragma once

#include <QString>

namespace zv::bench {

/// Names of a few words, notes of about 300 bytes, works with 4 to 40 timed movements; the last work has 150.
void fillCatalogue(const QString& path, int rows);

} // namespace zv::bench
