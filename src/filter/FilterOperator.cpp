#include "filter/FilterOperator.h"

#include "filter/FilterTexts.h"

namespace KOVAVSFDataGridLib {

QList<FilterOperator> operatorsFor(FieldClass fieldClass)
{
    using enum FilterOperator;
    switch (fieldClass) {
    case FieldClass::Text:
        return {Equals,  NotEquals, Contains, BeginsWith, EndsWith, InList,    Between,
                Greater, Less,      AtLeast,  AtMost,     IsEmpty,  IsNotEmpty};
    case FieldClass::Boolean:
        return {Equals, NotEquals, IsEmpty, IsNotEmpty};
    case FieldClass::Other:
        return {IsEmpty, IsNotEmpty};
    default:
        return {Equals, NotEquals, Greater, Less, AtLeast, AtMost, Between, InList, IsEmpty, IsNotEmpty};
    }
}

int valueCount(FilterOperator op)
{
    if (op == FilterOperator::IsEmpty || op == FilterOperator::IsNotEmpty)
        return 0;
    return op == FilterOperator::Between ? 2 : 1;
}

QString captionOf(FilterOperator op)
{
    return FilterTexts::Operators[static_cast<std::size_t>(op)];
}

} // namespace KOVAVSFDataGridLib
