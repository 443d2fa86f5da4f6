#pragma once

#include <QtCore/QString>

struct sqlite3;

namespace ADODB {

// Throws the Error for a result code that SQLite just returned on `db`, including SQLite's message.
[[noreturn]] void throwSqliteError(sqlite3 *db, int code);

} // namespace ADODB
