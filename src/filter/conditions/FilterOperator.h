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
    Top,        // among the N largest values; of texts, those that come first in their order
    Bottom      // among the N smallest values; of texts, the last ones
};

// Those that make sense for a field's class, the usual ones first.
QList<FilterOperator> operatorsFor(FieldClass fieldClass);

// How many values are to be typed: 0, 1 or 2. A list is one text.
int valueCount(FilterOperator op);

// Whether it compares with all other records, for which they must be known.
bool comparesRecords(FilterOperator op);

// Whether its value is a number of values rather than one of the field's.
bool takesCount(FilterOperator op);

// The operator that selects what this one doesn't, where there is one: it is negative when it leaves out the
// values that it names.
bool isNegative(FilterOperator op);
FilterOperator positiveOf(FilterOperator op);

// As the user reads it.
QString captionOf(FilterOperator op);

// A name for files that doesn't change with the texts, and the operator of such a name.
QString nameOf(FilterOperator op);
std::optional<FilterOperator> operatorNamed(const QString &name);

} // namespace KOVAVSFDataGridLib
