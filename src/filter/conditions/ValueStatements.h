#pragma once

#include "filter/conditions/FilterCondition.h"

namespace KOVAVSFDataGridLib {

// The statements that read the values of a field from some records. For timestamps, only the dates are read
// if the engine is known; an unknown engine returns the timestamps.
class ValueStatements
{
public:
    // `search` is a text that the values must contain; if it is empty, all values are read.
    ValueStatements(const Dialect &dialect, const FilterField &field, FilterSql::Records records,
                    const QString &search = {});

    // At most `count` values in order, with the number of records that have each of them.
    QString counted(int count) const;
    // At most `count` values, from some of the records.
    QString sample(int count) const;
    // The number of values.
    QString countOfValues() const;
    // The number of records without a value; for texts, also empty ones.
    QString countOfEmpty() const;

private:
    QString from(const QString &condition) const;

    const Dialect m_dialect;
    const FilterSql::Records m_records;
    QString m_value;    // the expression that is read
    QString m_hasValue; // conditions
    QString m_isEmpty;
};

} // namespace KOVAVSFDataGridLib
