#pragma once

#include <QtCore/QString>

// The SQL of Access, where it differs from SQLite's.
namespace ADODB::AccessDialect {

// The statement with `#1/31/2020#`, `a & b`, TOP n, DISTINCTROW, True, False, Mod, `T!A` and Left() and
// Right() as SQLite writes them; all else is left as it is.
QString toSqlite(const QString &sql);

// The date between two #, as AccessValue writes dates; empty when it is none. Month before day, as everywhere
// in Access's SQL, unless the year comes first.
QString dateText(QStringView literal);

} // namespace ADODB::AccessDialect
