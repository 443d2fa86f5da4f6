#pragma once

#include <QtCore/QString>

// Translates Access's SQL where it differs from SQLite's.
namespace ADODB::AccessDialect {

// Which wildcards LIKE uses: ADO's (% and _) or those of Access's own user interface (* and ?).
enum class Patterns { Ado, Access };

// Replaces `#1/31/2020#`, `a & b`, `a + b`, `a - b`, `a / b`, TOP n [PERCENT], True, False, Mod, ALIKE, `T!A`
// and text functions with their equivalents in SQLite. All else is unchanged.
QString toSqlite(const QString &sql, Patterns patterns = Patterns::Ado);

} // namespace ADODB::AccessDialect
