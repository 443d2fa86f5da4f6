#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// Whether some database behind the grid (SQLite, Oracle, SQL Server, PostgreSQL, MariaDB) takes the plain
// name for a word of its language, in any letter case. Some databases know fewer such words; enclosing one of
// the others does no harm.
bool IsReservedWord(const QString &name);

} // namespace KOVAVSFDataGridLib
