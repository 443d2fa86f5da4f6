#pragma once

#include "filter/conditions/FilterOperator.h"
#include "filter/conditions/FilterSql.h"
#include "sql/Engine.h"
#include "sql/Literals.h"

#include <optional>

#include <QtCore/QDate>

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
    bool isMoney = false;                    // a number that is an amount of money to the database
};

// What one row of the builder says.
struct FilterChoice
{
    FilterField field;
    FilterOperator op = FilterOperator::Equals;
    QString value = {};
    QString lastValue = {}; // of "between"
    bool isNegated = false;
    // Whether records without a value are selected too, where the values named are left out.
    bool includesNull = true;

    // Whether the values named are left out: by the operator, or by the negation of one that selects them.
    bool leavesOut() const { return isNegative(op) != isNegated; }
    // Whether includesNull has a meaning.
    bool asksForNull() const { return leavesOut() && positiveOf(op) != FilterOperator::IsEmpty; }
};

// What conditions are written for.
struct FilterScope
{
    QDate today = QDate::currentDate();
    // The records that operators compare with each other. Without them, a condition that needs them is at
    // fault.
    std::optional<FilterSql::Records> records = {};
};

// A condition, or in one line why there is none.
struct FilterCondition
{
    QString sql;
    QString fault;
    bool isLastValueAtFault = false; // rather than the only or the first one
};

FilterCondition conditionOf(const Dialect &dialect, const FilterChoice &choice,
                            const FilterScope &scope = {});
// Selects exactly the records that the other one doesn't.
FilterCondition complementOf(const Dialect &dialect, const FilterChoice &choice,
                             const FilterScope &scope = {});

} // namespace KOVAVSFDataGridLib
