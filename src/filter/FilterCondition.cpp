#include "filter/FilterCondition.h"

#include "filter/FilterSql.h"
#include "filter/FilterTexts.h"
#include "filter/FilterValue.h"
#include "sql/Like.h"
#include "sql/Literals.h"
#include "sql/Predicates.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QString equals(const QString &field, const FilterValue &value)
{
    if (!value.shownAlike.isEmpty())
        return u"%1 BETWEEN %2 AND %3"_s.arg(field, value.shownAlike.from, value.shownAlike.to);
    if (value.nextDay.isEmpty())
        return field + " = "_L1 + value.literal;
    return u"(%1 >= %2 AND %1 < %3)"_s.arg(field, value.literal, value.nextDay);
}

QString compareFloat(const QString &field, FilterOperator op, const FilterValue &value)
{
    const NumberRange &range = value.shownAlike;
    switch (op) {
    case FilterOperator::NotEquals:
        return u"%1 NOT BETWEEN %2 AND %3"_s.arg(field, range.from, range.to);
    case FilterOperator::Greater:
        return field + " > "_L1 + range.to;
    case FilterOperator::Less:
        return field + " < "_L1 + range.from;
    case FilterOperator::AtLeast:
        return field + " >= "_L1 + range.from;
    case FilterOperator::AtMost:
        return field + " <= "_L1 + range.to;
    default:
        return equals(field, value);
    }
}

QString compare(const QString &field, FilterOperator op, const FilterValue &value)
{
    if (!value.shownAlike.isEmpty())
        return compareFloat(field, op, value);
    const bool isDay = !value.nextDay.isEmpty();
    switch (op) {
    case FilterOperator::NotEquals:
        return isDay ? u"(%1 < %2 OR %1 >= %3)"_s.arg(field, value.literal, value.nextDay)
                     : field + " <> "_L1 + value.literal;
    case FilterOperator::Greater:
        return field + (isDay ? " >= "_L1 + value.nextDay : " > "_L1 + value.literal);
    case FilterOperator::Less:
        return field + " < "_L1 + value.literal;
    case FilterOperator::AtLeast:
        return field + " >= "_L1 + value.literal;
    case FilterOperator::AtMost:
        return field + (isDay ? " < "_L1 + value.nextDay : " <= "_L1 + value.literal);
    default:
        return equals(field, value);
    }
}

// A fraction, or a computed number, is hardly ever exactly what is shown.
std::optional<FilterValue> valueOf(const Dialect &dialect, const FilterField &field, const QString &typed)
{
    auto value = readFilterValue(dialect, field.fieldClass, typed);
    const bool isWhole =
        value && !value->literal.contains(u'.') && !value->literal.contains(u'e', Qt::CaseInsensitive);
    if (value && field.floatSize && (!isWhole || field.isComputed))
        value->shownAlike = rangeShownAs(value->literal, *field.floatSize, dialect.engine);
    return value;
}

// SQLite takes every number for less than any text, so that a number is compared as what each value is.
QString compareUntyped(const Dialect &dialect, const FilterField &field, FilterOperator op,
                       const FilterValue &text, const QString &typed)
{
    const FilterField asNumber{field.caption, field.written, FieldClass::Number, FloatSize::Double, true};
    const auto number = valueOf(dialect, asNumber, typed);
    if (!number)
        return compare(field.written, op, text);
    return u"CASE typeof(%1) WHEN 'text' THEN %2 ELSE %3 END"_s.arg(
        field.written, compare(field.written, op, text), compare(field.written, op, *number));
}

FilterCondition between(const Dialect &dialect, const FilterChoice &choice)
{
    const auto first = valueOf(dialect, choice.field, choice.value);
    const auto last = valueOf(dialect, choice.field, choice.lastValue);
    if (!first || choice.value.isEmpty())
        return {{}, whyNoFilterValue(choice.field.fieldClass, choice.value)};
    if (!last || choice.lastValue.isEmpty())
        return {{}, whyNoFilterValue(choice.field.fieldClass, choice.lastValue), true};
    // A day ends a moment before the next one.
    constexpr double millisecondsToDayEnd = 24 * 60 * 60 * 1000 - 1;
    const double lastExtent = last->nextDay.isEmpty() ? 0 : millisecondsToDayEnd;
    if (first->rank && last->rank && *last->rank + lastExtent < *first->rank)
        return {{}, FilterTexts::EndBeforeStart, true};
    const auto bound = [&](FilterOperator op, const FilterValue &value, const QString &typed) {
        return choice.field.isUntyped ? compareUntyped(dialect, choice.field, op, value, typed)
                                      : compare(choice.field.written, op, value);
    };
    return {u'(' + bound(FilterOperator::AtLeast, *first, choice.value) + " AND "_L1 +
                bound(FilterOperator::AtMost, *last, choice.lastValue) + u')',
            {}};
}

FilterCondition inList(const Dialect &dialect, const FilterChoice &choice)
{
    QStringList literals;
    QStringList days;
    for (const QString &item : splitFilterList(choice.value)) {
        const auto value = valueOf(dialect, choice.field, item);
        if (!value)
            return {{}, whyNoFilterValue(choice.field.fieldClass, item)};
        if (choice.field.isUntyped)
            days.append(compareUntyped(dialect, choice.field, FilterOperator::Equals, *value, item));
        else if (value->nextDay.isEmpty() && value->shownAlike.isEmpty())
            literals.append(value->literal);
        else
            days.append(equals(choice.field.written, *value));
    }
    if (!literals.isEmpty())
        days.prepend(choice.field.written + " IN ("_L1 + literals.join(", "_L1) + u')');
    if (days.isEmpty())
        return {{}, FilterTexts::NoValue};
    return {days.size() == 1 ? days.constFirst() : u'(' + days.join(" OR "_L1) + u')', {}};
}

QString isEmpty(const Dialect &dialect, const FilterField &field, bool wanted)
{
    if (field.fieldClass != FieldClass::Text)
        return field.written + (wanted ? " IS NULL"_L1 : " IS NOT NULL"_L1);
    return wanted ? isEmptyText(dialect, field.written) : isNotEmptyText(dialect, field.written);
}

} // namespace

FilterCondition conditionOf(const Dialect &dialect, const FilterChoice &asked)
{
    FilterChoice choice = asked;
    // SQLite's days can have a time as well.
    if (choice.field.fieldClass == FieldClass::Date && dialect.engine == Engine::SQLite && !dialect.isOdbc &&
        (hasTimeOfDay(choice.value) || hasTimeOfDay(choice.lastValue)))
        choice.field.fieldClass = FieldClass::Moment;
    const bool asksForValue = choice.op != FilterOperator::IsEmpty && choice.op != FilterOperator::IsNotEmpty;
    if (asksForValue && choice.field.fieldClass == FieldClass::Date)
        choice.field.written = dateOperand(dialect, choice.field.written);
    else if (asksForValue && choice.field.fieldClass == FieldClass::Moment)
        choice.field.written = momentOperand(dialect, choice.field.written);
    const FilterField &field = choice.field;
    if (field.written.isEmpty())
        return {{}, FilterTexts::NoField};
    switch (choice.op) {
    case FilterOperator::IsEmpty:
    case FilterOperator::IsNotEmpty:
        return {isEmpty(dialect, field, choice.op == FilterOperator::IsEmpty), {}};
    case FilterOperator::Between:
        return between(dialect, choice);
    case FilterOperator::InList:
        return inList(dialect, choice);
    default:
        break;
    }
    const auto value = valueOf(dialect, field, choice.value);
    if (!value || choice.value.isEmpty())
        return {{}, whyNoFilterValue(field.fieldClass, choice.value)};
    if (field.fieldClass == FieldClass::Boolean) {
        const bool wanted = value->isTrue == (choice.op == FilterOperator::Equals);
        return {isTrue(dialect, field.written, wanted), {}};
    }
    switch (choice.op) {
    case FilterOperator::Contains:
        return {like(dialect, field.written, choice.value, Anchor::None), {}};
    case FilterOperator::BeginsWith:
        return {like(dialect, field.written, choice.value, Anchor::Begin), {}};
    case FilterOperator::EndsWith:
        return {like(dialect, field.written, choice.value, Anchor::End), {}};
    default:
        return {field.isUntyped ? compareUntyped(dialect, field, choice.op, *value, choice.value)
                                : compare(field.written, choice.op, *value),
                {}};
    }
}

} // namespace KOVAVSFDataGridLib
