#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>

// Which tables and views a database has.
namespace KOVAVSFDataGridLib {

// The statement that lists them. Its columns: the schema, empty where a statement needs none; the name;
// "view" for a view.
QString statementOfTables(Engine engine);

// Whether such a name is one of the engine's own tables, which the statement lists too.
bool isTableOfSystem(Engine engine, const QString &name);

// Whether the names of two tables can differ in case alone, even if they are written without quotes.
bool canTablesDifferInCase(Engine engine);

} // namespace KOVAVSFDataGridLib
