// The command that makes a new catalogue from a genuine old one.
#pragma once

#include <QString>

namespace zv::tool {

/// Reads the Jet file `old`, which is not changed, and makes the catalogue `file` with all tables and rows, keys kept.
/// Tells on the output what was copied, on the error channel what went wrong. The new catalogue bears its name only
/// when it is whole and on the disk; one that is there already is left as it is. Returns the status of the process.
int convertCatalogue(const QString& old, const QString& file);

} // namespace zv::tool
