#include "filter/conditions/BuiltFilter.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const QString rowsKey = u"rows"_s;
const QString conditionKey = u"condition"_s;

} // namespace

QJsonObject toJson(const BuiltFilter &filter)
{
    if (!filter.condition.isEmpty())
        return {{conditionKey, filter.condition}};
    return {{rowsKey, toJson(filter.rows)}};
}

std::optional<BuiltFilter> builtFilterOf(const QJsonValue &json)
{
    if (const QString condition = json[conditionKey].toString(); !condition.isEmpty())
        return BuiltFilter{.condition = condition};
    if (auto rows = filterStateOf(json[rowsKey]))
        return BuiltFilter{.rows = *std::move(rows)};
    return std::nullopt;
}

} // namespace KOVAVSFDataGridLib
