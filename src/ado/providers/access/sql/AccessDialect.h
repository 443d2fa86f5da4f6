#pragma once

#include <QtCore/QString>

// The SQL of Access, where it differs from SQLite's.
namespace ADODB::AccessDialect {

// Whose patterns stand behind LIKE: those of ADO (% and _) or those of Access's own windows (* and ?).
enum class Patterns { Ado, Access };

// The statement with `#1/31/2020#`, `a & b`, `a + b`, `a - b`, `a / b`, TOP n [PERCENT], True,
// False, Mod, ALIKE, `T!A` and functions of texts as SQLite writes them; all else is left as it is.
QString toSqlite(const QString &sql, Patterns patterns = Patterns::Ado);

} // namespace ADODB::AccessDialect
