#pragma once

#include <QtCore/QString>

namespace KovaTest {

struct JourneyEngine;

// Spreads a table with the key id, and its rows, over the databases of an engine that spreads; the table
// keeps its name. The second of these databases is reached through `secondPort`, if one is given.
void spreadTable(const JourneyEngine &engine, const QString &table, int secondPort = 0);

} // namespace KovaTest
