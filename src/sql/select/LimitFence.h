#pragma once

#include "sql/Engine.h"
#include "sql/select/SelectParts.h"

#include <QtCore/QString>

// Some engines let what stands around a SELECT in brackets choose among more records than it gives: SQLite
// sorts before it takes the first ones of a SELECT without a sort, and MariaDB looks for a condition in each
// SELECT that is united before it takes the first records of all of them. MariaDB also moves a condition into
// a SELECT that is grouped or united: there it finds the names of the grouping ambiguous where two columns
// have one name, and compares what JSON_EXTRACT finds without its quotes. A limit that takes all of them
// keeps an engine from it.
namespace KOVAVSFDataGridLib {

// Whether that can happen to a SELECT among these tokens,
// nested or not, that has no such limit around it.
bool needsFence(const SqlScanner &statement, TextRange tokens, Engine engine);

// Whether these tokens begin with a subquery that has such a limit.
bool isFenced(const SqlScanner &statement, TextRange source, Engine engine);

// The SELECT, with line breaks around it, inside another one that has such a limit.
QString fenced(const QString &select, Engine engine);

} // namespace KOVAVSFDataGridLib
