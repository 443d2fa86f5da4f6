#include "filter/conditions/FilterOperator.h"

#include "filter/FilterTexts.h"

#include <algorithm>
#include <iterator>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// In the order of FilterOperator.
constexpr QStringView names[] = {
    u"equals",     u"notEquals",   u"greater",       u"less",        u"atLeast",   u"atMost",
    u"between",    u"inList",      u"contains",      u"beginsWith",  u"endsWith",  u"isEmpty",
    u"isNotEmpty", u"notContains", u"notBeginsWith", u"notEndsWith", u"notInList", u"notBetween",
    u"duplicated", u"top",         u"bottom"};

} // namespace

QList<FilterOperator> operatorsFor(FieldClass fieldClass)
{
    using enum FilterOperator;
    switch (fieldClass) {
    case FieldClass::Text:
        return {Equals,        NotEquals,   Contains,  BeginsWith, EndsWith,   InList,     Between,
                Greater,       Less,        AtLeast,   AtMost,     IsEmpty,    IsNotEmpty, NotContains,
                NotBeginsWith, NotEndsWith, NotInList, NotBetween, Duplicated, Top,        Bottom};
    case FieldClass::Boolean:
        return {Equals, NotEquals, IsEmpty, IsNotEmpty};
    case FieldClass::Other:
        return {IsEmpty, IsNotEmpty};
    default:
        return {Equals,  NotEquals,  Greater,   Less,       AtLeast,    AtMost, Between, InList,
                IsEmpty, IsNotEmpty, NotInList, NotBetween, Duplicated, Top,    Bottom};
    }
}

int valueCount(FilterOperator op)
{
    using enum FilterOperator;
    if (op == IsEmpty || op == IsNotEmpty || op == Duplicated)
        return 0;
    return positiveOf(op) == Between ? 2 : 1;
}

bool comparesRecords(FilterOperator op)
{
    return op == FilterOperator::Duplicated || takesCount(op);
}

bool takesCount(FilterOperator op)
{
    return op == FilterOperator::Top || op == FilterOperator::Bottom;
}

bool isNegative(FilterOperator op)
{
    return positiveOf(op) != op;
}

FilterOperator positiveOf(FilterOperator op)
{
    using enum FilterOperator;
    switch (op) {
    case NotEquals:
        return Equals;
    case NotContains:
        return Contains;
    case NotBeginsWith:
        return BeginsWith;
    case NotEndsWith:
        return EndsWith;
    case NotInList:
        return InList;
    case NotBetween:
        return Between;
    case IsNotEmpty:
        return IsEmpty;
    default:
        return op;
    }
}

QString captionOf(FilterOperator op)
{
    return FilterTexts::Operators[static_cast<std::size_t>(op)];
}

QString nameOf(FilterOperator op)
{
    return names[static_cast<std::size_t>(op)].toString();
}

std::optional<FilterOperator> operatorNamed(const QString &name)
{
    const auto *const found = std::ranges::find(names, QStringView(name));
    if (found == std::end(names))
        return std::nullopt;
    return static_cast<FilterOperator>(found - std::begin(names));
}

} // namespace KOVAVSFDataGridLib
