#include "ado/automation/ValueOrder.h"

#include "ado/values/Instant.h"
#include "ado/values/NumericTypes.h"

#include <algorithm>

namespace ADODB {

namespace {

enum class Kind { Null, Number, Time, Text, Bytes };

Kind kindOf(const QVariant &value, ComparedAs as)
{
    if (as == ComparedAs::Numbers && value.typeId() == QMetaType::QString) {
        bool isNumber = false;
        value.toDouble(&isNumber);
        return isNumber ? Kind::Number : Kind::Text;
    }
    if (as == ComparedAs::Times && value.typeId() == QMetaType::QString)
        return Instant::of(value) ? Kind::Time : Kind::Text;
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return Kind::Null;
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return Kind::Number;
    case QMetaType::QDate:
    case QMetaType::QTime:
    case QMetaType::QDateTime:
        return Kind::Time;
    case QMetaType::QByteArray:
        return Kind::Bytes;
    default:
        return Kind::Text;
    }
}

template<typename T>
int compared(const T &left, const T &right)
{
    return left < right ? -1 : right < left ? 1 : 0;
}

bool isWhole(const QVariant &value)
{
    return value.typeId() == QMetaType::Bool || value.typeId() == QMetaType::Int ||
           value.typeId() == QMetaType::LongLong;
}

// A decimal without sign, exponent and insignificant zeros; empty if it is written in another way.
struct Digits
{
    explicit Digits(QStringView text) : isNegative(text.startsWith(u'-'))
    {
        if (isNegative || text.startsWith(u'+'))
            text = text.sliced(1);
        const qsizetype point = text.indexOf(u'.');
        whole = point < 0 ? text : text.first(point);
        fraction = point < 0 ? QStringView() : text.sliced(point + 1);
        while (whole.startsWith(u'0'))
            whole = whole.sliced(1);
        while (fraction.endsWith(u'0'))
            fraction.chop(1);
        const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
        isPlain = std::all_of(whole.begin(), whole.end(), isDigit) &&
                  std::all_of(fraction.begin(), fraction.end(), isDigit);
    }
    int comparedTo(const Digits &other) const
    {
        if (isNegative != other.isNegative)
            return isNegative ? -1 : 1;
        const int size = compared(whole.size(), other.whole.size());
        const int digits = size != 0 ? size : whole.compare(other.whole);
        const int order = digits != 0 ? digits : fraction.compare(other.fraction);
        return isNegative ? -order : order;
    }

    bool isNegative;
    bool isPlain = false;
    QStringView whole;
    QStringView fraction;
};

int compareNumbers(const QVariant &left, const QVariant &right)
{
    if (isWhole(left) && isWhole(right))
        return compared(left.toLongLong(), right.toLongLong());
    // A double has 15 digits, so values that are equal as doubles are compared digit by digit.
    const int order = compared(left.toDouble(), right.toDouble());
    if (order != 0 || left.typeId() != QMetaType::QString || right.typeId() != QMetaType::QString)
        return order;
    const QString leftText = left.toString();
    const QString rightText = right.toString();
    const Digits leftDigits(leftText);
    const Digits rightDigits(rightText);
    return leftDigits.isPlain && rightDigits.isPlain ? leftDigits.comparedTo(rightDigits) : 0;
}

int compareTimes(const QVariant &left, const QVariant &right)
{
    return Instant::of(left)->compare(*Instant::of(right));
}

} // namespace

ComparedAs comparedAs(DataTypeEnum type)
{
    switch (type) {
    case adDate:
    case adDBDate:
    case adDBTime:
    case adDBTimeStamp:
        return ComparedAs::Times;
    default:
        return isNumericType(type) ? ComparedAs::Numbers : ComparedAs::Stored;
    }
}

int compareValues(const QVariant &left, const QVariant &right, ComparedAs as)
{
    const Kind kind = kindOf(left, as);
    const Kind rightKind = kindOf(right, as);
    if (kind != rightKind)
        return compared(kind, rightKind);
    switch (kind) {
    case Kind::Null:
        return 0;
    case Kind::Number:
        return compareNumbers(left, right);
    case Kind::Time:
        return compareTimes(left, right);
    case Kind::Text:
        return left.toString().compare(right.toString(), Qt::CaseInsensitive);
    case Kind::Bytes:
        return compared(left.toByteArray(), right.toByteArray());
    }
    Q_UNREACHABLE();
}

} // namespace ADODB
