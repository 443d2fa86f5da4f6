#include "filter/conditions/FilterCondition.h"

#include "filter/FilterTexts.h"
#include "filter/conditions/FilterValue.h"
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
    const bool isRange = !value.nextDay.isEmpty();
    switch (op) {
    case FilterOperator::NotEquals:
        return isRange ? u"(%1 < %2 OR %1 >= %3)"_s.arg(field, value.literal, value.nextDay)
                       : field + " <> "_L1 + value.literal;
    case FilterOperator::Greater:
        return field + (isRange ? " >= "_L1 + value.nextDay : " > "_L1 + value.literal);
    case FilterOperator::Less:
        return field + " < "_L1 + value.literal;
    case FilterOperator::AtLeast:
        return field + " >= "_L1 + value.literal;
    case FilterOperator::AtMost:
        return field + (isRange ? " < "_L1 + value.nextDay : " <= "_L1 + value.literal);
    default:
        return equals(field, value);
    }
}

// Writes one choice, whose field is already in its form for comparisons.
class Writer
{
public:
    Writer(const Dialect &dialect, const FilterChoice &choice, const FilterScope &scope)
        : m_dialect(dialect), m_choice(choice), m_scope(scope), m_op(positiveOf(choice.op))
    {
    }

    // The condition for the operator's positive form.
    FilterCondition positive() const
    {
        if (comparesRecords(m_op))
            return amongRecords();
        if (m_op == FilterOperator::Between)
            return between();
        if (m_op == FilterOperator::InList)
            return inList();
        const auto value = read(m_choice.value);
        if (!value)
            return faultOf(m_choice.value);
        return {m_choice.field.fieldClass == FieldClass::Boolean ? isTrue(m_dialect, field(), value->isTrue)
                                                                 : single(*value),
                {}};
    }

    // The opposite, for records that have a value.
    FilterCondition negative() const
    {
        FilterCondition selected = positive();
        if (!selected.fault.isEmpty())
            return selected;
        if (m_op != FilterOperator::Equals)
            return {"NOT ("_L1 + selected.sql + u')', {}};
        const FilterValue value = read(m_choice.value).value_or(FilterValue());
        return {m_choice.field.fieldClass == FieldClass::Boolean
                    ? isTrue(m_dialect, field(), !value.isTrue)
                    : compared(FilterOperator::NotEquals, value, m_choice.value),
                {}};
    }

private:
    const QString &field() const { return m_choice.field.written; }

    std::optional<FilterValue> read(const QString &typed) const { return read(m_choice.field, typed); }

    std::optional<FilterValue> read(const FilterField &field, const QString &typed) const
    {
        if (typed.isEmpty())
            return std::nullopt;
        auto value = readFilterValue(m_dialect, field.fieldClass, typed, m_scope.today);
        // Fractions and computed numbers are rarely exactly what is shown.
        const bool isWhole =
            value && !value->literal.contains(u'.') && !value->literal.contains(u'e', Qt::CaseInsensitive);
        if (value && field.floatSize && (!isWhole || field.isComputed))
            value->shownAlike = rangeShownAs(value->literal, *field.floatSize, m_dialect.engine);
        return value;
    }

    // In SQLite every number is less than any text. So in an untyped field, a number is compared with each
    // value in the type of that value.
    QString compared(FilterOperator op, const FilterValue &value, const QString &typed) const
    {
        if (!m_choice.field.isUntyped)
            return compare(field(), op, value);
        const FilterField asNumber{m_choice.field.caption, field(), FieldClass::Number, FloatSize::Double,
                                   true};
        const auto number = read(asNumber, typed);
        return number ? u"CASE typeof(%1) WHEN 'text' THEN %2 ELSE %3 END"_s.arg(
                            field(), compare(field(), op, value), compare(field(), op, *number))
                      : compare(field(), op, value);
    }

    FilterCondition faultOf(const QString &typed, bool isLastValue = false) const
    {
        return {{}, whyNoFilterValue(m_choice.field.fieldClass, typed), isLastValue};
    }

    QString single(const FilterValue &value) const
    {
        switch (m_op) {
        case FilterOperator::Contains:
            return like(m_dialect, field(), m_choice.value, Anchor::None);
        case FilterOperator::BeginsWith:
            return like(m_dialect, field(), m_choice.value, Anchor::Begin);
        case FilterOperator::EndsWith:
            return like(m_dialect, field(), m_choice.value, Anchor::End);
        case FilterOperator::Greater:
        case FilterOperator::AtLeast:
            return numberLimit().isEmpty()
                       ? compared(m_op, value, m_choice.value)
                       : u'(' + compared(m_op, value, m_choice.value) + " AND "_L1 + numberLimit() + u')';
        default:
            return compared(m_op, value, m_choice.value);
        }
    }

    FilterCondition between() const
    {
        const auto first = read(m_choice.value);
        const auto last = read(m_choice.lastValue);
        if (!first)
            return faultOf(m_choice.value);
        if (!last)
            return faultOf(m_choice.lastValue, true);
        if (first->rank && last->lastRank && *last->lastRank < *first->rank)
            return {{}, FilterTexts::EndBeforeStart, true};
        return {u'(' + compared(FilterOperator::AtLeast, *first, m_choice.value) + " AND "_L1 +
                    compared(FilterOperator::AtMost, *last, m_choice.lastValue) + u')',
                {}};
    }

    FilterCondition inList() const
    {
        QStringList literals;
        QStringList ranges;
        for (const QString &item : splitFilterList(m_choice.value)) {
            const auto value = read(item);
            if (!value)
                return faultOf(item);
            if (m_choice.field.isUntyped)
                ranges.append(compared(FilterOperator::Equals, *value, item));
            else if (value->nextDay.isEmpty() && value->shownAlike.isEmpty())
                literals.append(value->literal);
            else
                ranges.append(equals(field(), *value));
        }
        if (!literals.isEmpty())
            ranges.prepend(field() + " IN ("_L1 + literals.join(", "_L1) + u')');
        if (ranges.isEmpty())
            return {{}, FilterTexts::NoValue};
        return {ranges.size() == 1 ? ranges.constFirst() : u'(' + ranges.join(" OR "_L1) + u')', {}};
    }

    FilterCondition amongRecords() const
    {
        if (!m_scope.records)
            return {{}, FilterTexts::NoRecords};
        if (!takesCount(m_op))
            return {FilterSql::isDuplicated(field(), *m_scope.records), {}};
        const auto count = readFilterCount(m_choice.value);
        if (!count)
            return {{},
                    m_choice.value.trimmed().isEmpty() ? FilterTexts::NoValue
                                                       : FilterTexts::NoCount.arg(m_choice.value)};
        // "Top" means the first texts in order, but the largest numbers.
        const bool areTexts = m_choice.field.fieldClass == FieldClass::Text;
        const bool isDescending = (m_op == FilterOperator::Top) != areTexts;
        FilterSql::Records records = *m_scope.records;
        if (const QString limit = numberLimit(); !limit.isEmpty())
            records.condition =
                records.condition.isEmpty() ? limit : u'(' + records.condition + ") AND "_L1 + limit;
        return {FilterSql::isAmongFirst(m_dialect, field(), records, {*count, isDescending, areTexts}), {}};
    }

    // If texts are larger than numbers, a value that is larger than a number must still be a number.
    QString numberLimit() const
    {
        return m_choice.field.fieldClass == FieldClass::Number ? beforeTexts(m_dialect, field()) : QString();
    }

    const Dialect &m_dialect;
    const FilterChoice &m_choice;
    const FilterScope &m_scope;
    const FilterOperator m_op;
};

QString isEmpty(const Dialect &dialect, const FilterField &field, bool wanted)
{
    if (field.fieldClass != FieldClass::Text)
        return field.written + (wanted ? " IS NULL"_L1 : " IS NOT NULL"_L1);
    return wanted ? isEmptyText(dialect, field.written) : isNotEmptyText(dialect, field.written);
}

// Whether it compares with the shown values, and not with what is before or after them.
bool isByValue(FilterOperator op)
{
    op = positiveOf(op);
    return op == FilterOperator::Equals || op == FilterOperator::InList ||
           (comparesRecords(op) && !takesCount(op));
}

} // namespace

QList<FilterOperator> operatorsFor(const FilterField &field)
{
    QList<FilterOperator> operators = operatorsFor(field.fieldClass);
    if (!field.hasOrder)
        operators.removeIf(comparesRecords);
    return operators;
}

FilterCondition conditionOf(const Dialect &dialect, const FilterChoice &asked, const FilterScope &scope)
{
    if (asked.field.written.isEmpty())
        return {{}, FilterTexts::NoField};
    if (positiveOf(asked.op) == FilterOperator::IsEmpty)
        return {isEmpty(dialect, asked.field, !asked.leavesOut()), {}};
    FilterChoice choice = asked;
    if (choice.field.fieldClass == FieldClass::Date && daysHaveTimes(dialect) &&
        (hasTimeOfDay(choice.value) || hasTimeOfDay(choice.lastValue)))
        choice.field.fieldClass = FieldClass::Moment;
    if (choice.field.fieldClass == FieldClass::Date)
        choice.field.written = isByValue(choice.op) ? dateOperand(dialect, choice.field.written)
                                                    : dayOperand(dialect, choice.field.written);
    else if (choice.field.fieldClass == FieldClass::Moment)
        choice.field.written = momentOperand(dialect, choice.field.written);
    else if (choice.field.isMoney)
        choice.field.written = moneyOperand(dialect.engine, choice.field.written);
    const Writer writer(dialect, choice, scope);
    if (!choice.leavesOut())
        return writer.positive();
    FilterCondition condition = writer.negative();
    // To a database, Null is not unequal to anything, but to the user it differs from the excluded value.
    if (condition.fault.isEmpty() && choice.includesNull)
        condition.sql = u'(' + condition.sql + " OR "_L1 + asked.field.written + " IS NULL)"_L1;
    return condition;
}

FilterCondition complementOf(const Dialect &dialect, const FilterChoice &choice, const FilterScope &scope)
{
    FilterChoice opposite = choice;
    opposite.isNegated = !choice.isNegated;
    opposite.includesNull = true;
    FilterCondition condition = conditionOf(dialect, opposite, scope);
    const bool leavesNullOut = choice.asksForNull() && !choice.includesNull;
    if (condition.fault.isEmpty() && leavesNullOut)
        condition.sql = u'(' + condition.sql + " OR "_L1 + choice.field.written + " IS NULL)"_L1;
    return condition;
}

} // namespace KOVAVSFDataGridLib
