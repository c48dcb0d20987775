// Copies the rows of an old catalogue into a new file.
#pragma once

#include <QString>

namespace zv::tool {

/// Makes the new file `part` (there may be none of that name) from the Jet file `old`. Returns lines that tell how many
/// rows each table has and what else the user should know. ConvertError or SQLite::Exception where it fails; the caller
/// removes the half-made file.
QString copyCatalogue(const QString& old, const QString& part);

} // namespace zv::tool
