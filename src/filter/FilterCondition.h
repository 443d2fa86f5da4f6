#pragma once

#include "filter/FilterOperator.h"
#include "sql/Engine.h"
#include "sql/Literals.h"

#include <optional>

namespace KOVAVSFDataGridLib {

struct FilterField
{
    QString caption; // as the user reads it
    QString written; // as it stands in a statement
    FieldClass fieldClass = FieldClass::Text;
    std::optional<FloatSize> floatSize = {}; // of a number that is a float
    bool isComputed = false;                 // from no column of a table
    bool isUntyped = false;                  // of SQLite: each value has a type of its own
};

// What one row of the builder says.
struct FilterChoice
{
    FilterField field;
    FilterOperator op = FilterOperator::Equals;
    QString value;
    QString lastValue; // of "between"
};

// A condition, or in one line why there is none.
struct FilterCondition
{
    QString sql;
    QString fault;
    bool isLastValueAtFault = false; // rather than the only or the first one
};

FilterCondition conditionOf(const Dialect &dialect, const FilterChoice &choice);

} // namespace KOVAVSFDataGridLib
