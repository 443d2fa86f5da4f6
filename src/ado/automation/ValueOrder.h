#pragma once

#include <QtCore/QVariant>

namespace ADODB {

// Compares two values of one field: less than 0, 0 or greater than 0. Null comes first, then numbers and
// Booleans by value, dates and times by time, texts (case-insensitive), bytes. Values of different kinds are
// ordered by kind. With `numeric`, texts that are numbers are compared as such: decimals are texts.
int compareValues(const QVariant &left, const QVariant &right, bool numeric);

} // namespace ADODB
