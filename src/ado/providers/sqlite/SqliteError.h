#pragma once

#include <QtCore/QString>

struct sqlite3;

namespace ADODB {

// Throws the Error for a result code that SQLite has just answered on `db`, with SQLite's own words in it.
[[noreturn]] void throwSqliteError(sqlite3 *db, int code);

} // namespace ADODB
