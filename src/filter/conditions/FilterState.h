#pragma once

#include "filter/conditions/FilterOperator.h"

#include <QtCore/QJsonArray>

namespace KOVAVSFDataGridLib {

// What a row of the builder holds, in the words that were typed: relative days stay relative.
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
    int negatedOpens = 0; // as in FilterSql::Term

    bool operator==(const FilterRowState &) const = default;
};

using FilterState = QList<FilterRowState>;

// As it is kept in files. What can't be read as rows gives nothing.
QJsonArray toJson(const FilterState &state);
std::optional<FilterState> filterStateOf(const QJsonValue &json);

} // namespace KOVAVSFDataGridLib
