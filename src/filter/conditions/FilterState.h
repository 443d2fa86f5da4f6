#pragma once

#include "filter/conditions/FilterOperator.h"

#include <QtCore/QJsonArray>

namespace KOVAVSFDataGridLib {

// The contents of a row of the builder, as typed: relative days stay relative.
struct FilterRowState
{
    QString field = {}; // by its caption
    FilterOperator op = FilterOperator::Equals;
    QString value = {};
    QString lastValue = {};
    bool isNegated = false;
    bool includesNull = true;
    int opens = 0;
    int closes = 0;
    bool orNext = false;
    int negatedOpens = 0; // see FilterSql::Term

    bool operator==(const FilterRowState &) const = default;
};

using FilterState = QList<FilterRowState>;

// The form for files. Reading invalid data returns no value.
QJsonArray toJson(const FilterState &state);
std::optional<FilterState> filterStateOf(const QJsonValue &json);

} // namespace KOVAVSFDataGridLib
