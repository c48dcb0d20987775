// Runs a statement: the keys of its rows, in its order.
#pragma once

#include "platform/jet/database.h"
#include "platform/jet/key_list.h"
#include "platform/jet/parser.h"

namespace zv::jet {

/// Reads all that is needed within one moment of the file. Without an ORDER BY the keys rise; rows that an ordering
/// finds equal stand by rising keys, whatever its direction. Null comes first ascending and last descending.
KeyList runStatement(Database& database, const Statement& statement);

} // namespace zv::jet
