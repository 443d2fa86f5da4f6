#include "filter/conditions/BuiltFilter.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const QString rowsKey = u"rows"_s;
const QString conditionKey = u"condition"_s;
const QString keptKey = u"kept"_s;

constexpr qsizetype mostKept = 200; // more than anybody has

} // namespace

QJsonObject toJson(const BuiltFilter &filter)
{
    QJsonObject json;
    if (!filter.condition.isEmpty())
        json.insert(conditionKey, filter.condition);
    else if (!filter.rows.isEmpty())
        json.insert(rowsKey, toJson(filter.rows));
    if (!filter.kept.isEmpty())
        json.insert(keptKey, QJsonArray::fromStringList(filter.kept));
    return json;
}

std::optional<BuiltFilter> builtFilterOf(const QJsonValue &json)
{
    BuiltFilter filter{.condition = json[conditionKey].toString()};
    const QJsonArray kept = json[keptKey].toArray();
    if (kept.size() > mostKept)
        return std::nullopt;
    for (const QJsonValue each : kept) {
        if (each.toString().trimmed().isEmpty())
            return std::nullopt;
        filter.kept.append(each.toString());
    }
    if (filter.condition.isEmpty()) {
        auto rows = filterStateOf(json[rowsKey]);
        if (!rows && (filter.kept.isEmpty() || !json[rowsKey].isUndefined()))
            return std::nullopt;
        filter.rows = std::move(rows).value_or(FilterState());
    }
    return filter;
}

} // namespace KOVAVSFDataGridLib
