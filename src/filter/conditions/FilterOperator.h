#pragma once

#include "filter/conditions/FieldClass.h"

#include <QtCore/QList>
#include <QtCore/QString>

#include <optional>

namespace KOVAVSFDataGridLib {

enum class FilterOperator {
    Equals,
    NotEquals,
    Greater,
    Less,
    AtLeast,
    AtMost,
    Between,
    InList,
    Contains,
    BeginsWith,
    EndsWith,
    IsEmpty,
    IsNotEmpty,
    NotContains,
    NotBeginsWith,
    NotEndsWith,
    NotInList,
    NotBetween,
    Duplicated, // the value occurs in several records
    Top,        // one of the N largest values; for texts, the first ones in order
    Bottom      // one of the N smallest values; for texts, the last ones
};

// The operators that make sense for a class of fields, the common ones first.
QList<FilterOperator> operatorsFor(FieldClass fieldClass);

// The number of values to type: 0, 1 or 2. A list is one text.
int valueCount(FilterOperator op);

// Whether it compares a record with all others, which must therefore be known.
bool comparesRecords(FilterOperator op);

// Whether its value is a number of values instead of a field value.
bool takesCount(FilterOperator op);

// The operator that selects the other records, if there is one. The negative one is the one that excludes the
// given values.
bool isNegative(FilterOperator op);
FilterOperator positiveOf(FilterOperator op);

// Its name for the user.
QString captionOf(FilterOperator op);

// A name for files that doesn't depend on the language, and the reverse.
QString nameOf(FilterOperator op);
std::optional<FilterOperator> operatorNamed(const QString &name);

} // namespace KOVAVSFDataGridLib
