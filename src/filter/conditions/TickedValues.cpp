#include "filter/conditions/TickedValues.h"

#include "filter/FilterTexts.h"
#include "filter/conditions/FilterValue.h"

#include <QtCore/QJsonArray>

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const QString leftOutKey = u"leftOut"_s;
const QString valuesKey = u"values"_s;
const QString nullKey = u"null"_s;

bool isList(const FilterField &field, const QStringList &values)
{
    return values.size() > 1 || hasDays(field.fieldClass);
}

// The records with one of the values.
FilterCondition namedOf(const Dialect &dialect, const FilterField &field, const TickedValues &ticked,
                        const FilterScope &scope)
{
    if (field.fieldClass == FieldClass::Boolean && ticked.values.size() > 1)
        return conditionOf(dialect, {.field = field, .op = FilterOperator::IsNotEmpty}, scope);
    if (isList(field, ticked.values))
        return conditionOf(dialect, {.field = field, .op = FilterOperator::InList, .value = listOf(ticked)},
                           scope);
    return conditionOf(
        dialect, {.field = field, .op = FilterOperator::Equals, .value = ticked.values.constFirst()}, scope);
}

FilterCondition withoutNamed(const Dialect &dialect, const FilterField &field, const TickedValues &ticked,
                             const FilterScope &scope)
{
    if (isList(field, ticked.values) || ticked.hasNull == false) {
        FilterCondition named = namedOf(dialect, field, ticked, scope);
        if (named.fault.isEmpty() && ticked.hasNull == false) {
            const FilterChoice empty{.field = field, .op = FilterOperator::IsEmpty};
            named.sql += " OR "_L1 + conditionOf(dialect, empty, scope).sql;
        }
        if (named.fault.isEmpty())
            named.sql = "NOT ("_L1 + named.sql + u')';
        return named;
    }
    return conditionOf(dialect,
                       {.field = field,
                        .op = FilterOperator::NotEquals,
                        .value = ticked.values.constFirst(),
                        .includesNull = false},
                       scope);
}

// A number field that can contain texts: the values are compared as texts.
FilterField fieldOf(const Dialect &dialect, const FilterField &field, const TickedValues &ticked)
{
    FilterField made = field;
    const bool hasTexts = field.fieldClass == FieldClass::Number && hasUntypedFields(dialect.engine) &&
                          !std::ranges::all_of(ticked.values, isNumberText);
    if (hasTexts) {
        made.fieldClass = FieldClass::Text;
        made.isUntyped = true;
    }
    return made;
}

} // namespace

FilterCondition conditionOf(const Dialect &dialect, const FilterField &tickedField,
                            const TickedValues &ticked, const FilterScope &scope)
{
    const FilterField field = fieldOf(dialect, tickedField, ticked);
    if (ticked.isEverything())
        return {};
    if (ticked.isNothing())
        return {{}, FilterTexts::NothingTicked};
    const FilterCondition empty =
        conditionOf(dialect, {.field = field, .op = FilterOperator::IsEmpty}, scope);
    if (ticked.values.isEmpty()) {
        return ticked.areLeftOut
                   ? conditionOf(dialect, {.field = field, .op = FilterOperator::IsNotEmpty}, scope)
                   : empty;
    }
    FilterCondition condition = ticked.areLeftOut ? withoutNamed(dialect, field, ticked, scope)
                                                  : namedOf(dialect, field, ticked, scope);
    // Null is in no list and not unequal to anything.
    if (condition.fault.isEmpty() && ticked.hasNull == true)
        condition.sql = u'(' + condition.sql + " OR "_L1 + empty.sql + u')';
    return condition;
}

QString listOf(const TickedValues &ticked)
{
    QStringList items;
    for (const QString &value : ticked.values)
        items.append(filterListItem(value));
    return items.join(", "_L1);
}

QJsonObject toJson(const TickedValues &ticked)
{
    QJsonObject json{{leftOutKey, ticked.areLeftOut}, {valuesKey, QJsonArray::fromStringList(ticked.values)}};
    if (ticked.hasNull)
        json.insert(nullKey, *ticked.hasNull);
    return json;
}

TickedValues tickedValuesOf(const QJsonObject &json)
{
    TickedValues ticked{.areLeftOut = json[leftOutKey].toBool(true)};
    for (const QJsonValue value : json[valuesKey].toArray())
        ticked.values.append(value.toString());
    if (json[nullKey].isBool())
        ticked.hasNull = json[nullKey].toBool();
    return ticked;
}

} // namespace KOVAVSFDataGridLib
