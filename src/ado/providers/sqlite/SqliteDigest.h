#pragma once

#include <QtCore/QString>

struct sqlite3;

namespace ADODB::SqliteDigest {

// The name of an SQL function that hashes any number of values to 16 bytes: equal values of equal types have
// the same hash. A result can contain this instead of a whole row, to recognize the row later.
QString name();
void install(sqlite3 *db);

} // namespace ADODB::SqliteDigest
