#pragma once

#include "sql/Engine.h"

#include <QtCore/QVariant>

namespace KOVAVSFDataGridLib {

// A value as an SQL literal for this database: NULL for Null, bytes in the engine's hexadecimal form, and
// dates in a form that programs without ODBC understand too.
QString sqlValue(const Dialect &dialect, const QVariant &value);

} // namespace KOVAVSFDataGridLib
