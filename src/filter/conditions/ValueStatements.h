#pragma once

#include "filter/conditions/FilterCondition.h"

namespace KOVAVSFDataGridLib {

// The statements that read the values of a field from some records. Moments are read as their days, as far as
// the engine is known; an unknown one gives the moments themselves.
class ValueStatements
{
public:
    // `search` is a text that the values contain; all values where it is empty.
    ValueStatements(const Dialect &dialect, const FilterField &field, FilterSql::Records records,
                    const QString &search = {});

    // At most `count` values in order, and the number of records that have each of them.
    QString counted(int count) const;
    // At most `count` values of a few records.
    QString sample(int count) const;
    // How many values there are.
    QString countOfValues() const;
    // The number of records without a value; for a text, without any character.
    QString countOfEmpty() const;

private:
    QString from(const QString &condition) const;

    const Dialect m_dialect;
    const FilterSql::Records m_records;
    QString m_value;    // as it is read
    QString m_hasValue; // conditions
    QString m_isEmpty;
};

} // namespace KOVAVSFDataGridLib
