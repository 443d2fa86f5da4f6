#pragma once

#include "ado/Enums.h"

#include <QtCore/QVariant>

namespace ADODB {

enum class ComparedAs { Stored, Numbers, Times };
// How the values of a field of this type are compared.
ComparedAs comparedAs(DataTypeEnum type);

// Compares two values of one field: less than 0, 0 or greater than 0. Null comes first, then numbers and
// Booleans by value, dates and times by time, texts (case-insensitive), bytes. Values of different kinds are
// ordered by kind. With Numbers, texts that are numbers are compared as such: decimals are texts. With Times,
// texts that are times are: those with microseconds, a time zone and the like are texts.
int compareValues(const QVariant &left, const QVariant &right, ComparedAs as);

} // namespace ADODB
