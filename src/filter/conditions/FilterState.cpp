#include "filter/conditions/FilterState.h"

#include "filter/conditions/FilterSql.h"

#include <QtCore/QJsonObject>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QJsonObject toJson(const FilterRowState &row)
{
    QJsonObject json{{u"field"_s, row.field}, {u"operator"_s, nameOf(row.op)}};
    const auto add = [&json](const QString &name, const QJsonValue &value, const QJsonValue &usual) {
        if (value != usual)
            json.insert(name, value);
    };
    add(u"value"_s, row.value, QString());
    add(u"lastValue"_s, row.lastValue, QString());
    add(u"not"_s, row.isNegated, false);
    add(u"withNull"_s, row.includesNull, true);
    add(u"open"_s, row.opens, 0);
    add(u"close"_s, row.closes, 0);
    add(u"or"_s, row.orNext, false);
    add(u"openNot"_s, row.negatedOpens, 0);
    return json;
}

std::optional<FilterRowState> rowOf(const QJsonValue &json)
{
    const auto op = operatorNamed(json[u"operator"_s].toString());
    if (!op || !json[u"field"_s].isString())
        return std::nullopt;
    const int opens = std::clamp(json[u"open"_s].toInt(0), 0, FilterSql::mostBrackets);
    return FilterRowState{.field = json[u"field"_s].toString(),
                          .op = *op,
                          .value = json[u"value"_s].toString(),
                          .lastValue = json[u"lastValue"_s].toString(),
                          .isNegated = json[u"not"_s].toBool(false),
                          .includesNull = json[u"withNull"_s].toBool(true),
                          .opens = opens,
                          .closes = std::clamp(json[u"close"_s].toInt(0), 0, FilterSql::mostBrackets),
                          .orNext = json[u"or"_s].toBool(false),
                          .negatedOpens = json[u"openNot"_s].toInt(0) & ((1 << opens) - 1)};
}

} // namespace

QJsonArray toJson(const FilterState &state)
{
    QJsonArray json;
    for (const FilterRowState &row : state)
        json.append(toJson(row));
    return json;
}

std::optional<FilterState> filterStateOf(const QJsonValue &json)
{
    constexpr qsizetype mostRows = 200; // more than anybody builds
    const QJsonArray rows = json.toArray();
    if (rows.isEmpty() || rows.size() > mostRows)
        return std::nullopt;
    FilterState state;
    for (const QJsonValue each : rows) {
        const auto row = rowOf(each);
        if (!row)
            return std::nullopt;
        state.append(*row);
    }
    return state;
}

} // namespace KOVAVSFDataGridLib
