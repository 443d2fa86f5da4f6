#pragma once

#include <QtCore/QStringView>

namespace KOVAVSFDataGridLib {

// Functions that combine several rows to one, on any engine. In any letter case.
bool isAggregateFunction(QStringView name);

// PostgreSQL's functions that give several rows for each row that they are listed for.
bool isRowFunction(QStringView name);

} // namespace KOVAVSFDataGridLib
