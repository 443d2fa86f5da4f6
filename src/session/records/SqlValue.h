#pragma once

#include "sql/Engine.h"

#include <QtCore/QVariant>

namespace KOVAVSFDataGridLib {

// A value as a statement for this database writes it: a Null is NULL, bytes are the engine's form of
// hexadecimal digits, dates are such that tools other than ODBC's read them as well.
QString sqlValue(const Dialect &dialect, const QVariant &value);

} // namespace KOVAVSFDataGridLib
