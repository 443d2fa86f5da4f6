#pragma once

#include <QtCore/QVariant>

namespace ADODB {

// The order of two values of one field: less than 0, 0 or greater than 0. Null comes first; then numbers and
// Booleans by their value, dates and times by time, texts without case, bytes. Values of different kinds are
// ordered by kind. With `numeric`, texts that are numbers are numbers: decimals come as texts.
int compareValues(const QVariant &left, const QVariant &right, bool numeric);

} // namespace ADODB
