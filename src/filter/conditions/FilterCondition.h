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
    QString caption; // as shown to the user
    QString written; // its form in SQL
    FieldClass fieldClass = FieldClass::Text;
    std::optional<FloatSize> floatSize = {}; // for floating point numbers
    bool isComputed = false;                 // not from a table column
    bool isUntyped = false;                  // in SQLite: each value has its own type
    bool isMoney = false;                    // a number with the database's money type
    bool hasOrder = true;                    // its values can be sorted, counted and listed
};

// The operators that make sense for a field, the common ones first.
QList<FilterOperator> operatorsFor(const FilterField &field);

// The contents of one row of the builder.
struct FilterChoice
{
    FilterField field;
    FilterOperator op = FilterOperator::Equals;
    QString value = {};
    QString lastValue = {}; // for "between"
    bool isNegated = false;
    // Whether records without a value are included if the given values are excluded.
    bool includesNull = true;

    // Whether the given values are excluded: by the operator, or by negating one that includes them.
    bool leavesOut() const { return isNegative(op) != isNegated; }
    // Whether includesNull has a meaning.
    bool asksForNull() const { return leavesOut() && positiveOf(op) != FilterOperator::IsEmpty; }
};

// What conditions are written for.
struct FilterScope
{
    QDate today = QDate::currentDate();
    // The records that operators compare with each other. Without them, a condition that needs them is an
    // error.
    std::optional<FilterSql::Records> records = {};
};

// A condition, or a one-line reason why there is none.
struct FilterCondition
{
    QString sql;
    QString fault;
    bool isLastValueAtFault = false; // and not the only or first one
};

FilterCondition conditionOf(const Dialect &dialect, const FilterChoice &choice,
                            const FilterScope &scope = {});
// Selects exactly the records that the other condition doesn't.
FilterCondition complementOf(const Dialect &dialect, const FilterChoice &choice,
                             const FilterScope &scope = {});

} // namespace KOVAVSFDataGridLib
