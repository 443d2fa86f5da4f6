#pragma once

#include <QtCore/QString>

struct sqlite3;

namespace ADODB::SqliteDigest {

// An SQL function of any number of values that tells rows apart: 16 bytes, the same for the same values of
// the same types. It lets a result carry what a whole row was without carrying the row.
QString name();
void install(sqlite3 *db);

} // namespace ADODB::SqliteDigest
