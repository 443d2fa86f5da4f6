#pragma once

#include "sql/Engine.h"
#include "sql/select/SelectParts.h"

#include <QtCore/QString>

// Some engines apply an outer clause inside a limited subquery and so select from more records than it
// returns: SQLite sorts before it takes the first records of an unsorted SELECT, and MariaDB applies a
// condition to each SELECT of a union before it takes the first records of the union. Another limit, one that
// includes all records, prevents that.
namespace KOVAVSFDataGridLib {

// Whether that can happen to a SELECT among these tokens,
// nested or not, that has no such limit around it.
bool needsFence(const SqlScanner &statement, TextRange tokens, Engine engine);

// Whether these tokens begin with a subquery that has such a limit.
bool isFenced(const SqlScanner &statement, TextRange source, Engine engine);

// The SELECT, with line breaks around it, inside another one that has such a limit.
QString fenced(const QString &select, Engine engine);

} // namespace KOVAVSFDataGridLib
