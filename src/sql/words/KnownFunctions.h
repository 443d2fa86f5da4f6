#pragma once

#include <QtCore/QStringView>

namespace KOVAVSFDataGridLib {

// Aggregate functions of any engine. Case-insensitive.
bool isAggregateFunction(QStringView name);

// PostgreSQL's set-returning functions, which produce several rows for each row.
bool isRowFunction(QStringView name);

} // namespace KOVAVSFDataGridLib
