#pragma once

#include "filter/FieldClass.h"

#include <QtCore/QList>
#include <QtCore/QString>

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
    IsNotEmpty
};

// Those that make sense for a field's class, the usual ones first.
QList<FilterOperator> operatorsFor(FieldClass fieldClass);

// How many values are to be typed: 0, 1 or 2. A list is one text.
int valueCount(FilterOperator op);

// As the user reads it.
QString captionOf(FilterOperator op);

} // namespace KOVAVSFDataGridLib
