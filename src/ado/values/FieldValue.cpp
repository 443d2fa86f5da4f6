#include "ado/values/FieldValue.h"

#include "ado/ValueText.h"
#include "ado/values/DateText.h"
#include "ado/values/Utf8.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace ADODB::FieldValue {

namespace {

enum class Shape { Integer, BigInteger, Real, Boolean, Date, Time, Moment, Text, Binary, Any };

Shape shapeOf(DataTypeEnum type)
{
    switch (type) {
    case adSmallInt:
    case adInteger:
    case adTinyInt:
    case adUnsignedTinyInt:
    case adUnsignedSmallInt:
    case adUnsignedInt:
        return Shape::Integer;
    case adBigInt:
    case adUnsignedBigInt:
        return Shape::BigInteger;
    case adSingle:
    case adDouble:
    case adCurrency:
    case adDecimal:
    case adNumeric:
    case adVarNumeric:
        return Shape::Real;
    case adBoolean:
        return Shape::Boolean;
    case adDBDate:
        return Shape::Date;
    case adDBTime:
        return Shape::Time;
    case adDate:
    case adDBTimeStamp:
        return Shape::Moment;
    case adBSTR:
    case adChar:
    case adWChar:
    case adVarChar:
    case adVarWChar:
    case adLongVarChar:
    case adLongVarWChar:
        return Shape::Text;
    case adBinary:
    case adVarBinary:
    case adLongVarBinary:
        return Shape::Binary;
    default:
        return Shape::Any;
    }
}

QVariant asStored(const RawValue &raw)
{
    switch (raw.kind) {
    case RawValue::Kind::Null:
        return {};
    case RawValue::Kind::Integer:
        if (raw.integer == static_cast<int>(raw.integer))
            return static_cast<int>(raw.integer);
        return raw.integer;
    case RawValue::Kind::Real:
        return raw.real;
    case RawValue::Kind::Text:
        return textFromUtf8(raw.bytes);
    case RawValue::Kind::Blob:
        return raw.bytes.toByteArray();
    }
    Q_UNREACHABLE();
}

bool sameWord(QByteArrayView text, QByteArrayView word)
{
    return qstrnicmp(text.data(), text.size(), word.data(), word.size()) == 0;
}

// An invalid result means that the text has another form.
QVariant readText(QByteArrayView text, Shape shape)
{
    const auto validOrNone = [](const auto &value) { return value.isValid() ? QVariant(value) : QVariant(); };
    switch (shape) {
    case Shape::Boolean:
        if (sameWord(text, "true") || text == QByteArrayView("1"))
            return true;
        if (sameWord(text, "false") || text == QByteArrayView("0"))
            return false;
        return {};
    case Shape::Date: {
        const QDateTime moment = DateText::moment(text);
        return text.size() == 10 ? validOrNone(moment.date()) : validOrNone(moment);
    }
    case Shape::Time:
        return validOrNone(DateText::time(text));
    case Shape::Moment:
        return validOrNone(DateText::moment(text));
    default:
        return {};
    }
}

QVariant toInteger(const QVariant &value, bool *ok)
{
    if (value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float) {
        const double real = value.toDouble();
        // 2^63 itself is the first double that no longer fits.
        *ok = std::trunc(real) == real && real >= -0x1p63 && real < 0x1p63;
        return *ok ? QVariant(static_cast<qlonglong>(real)) : QVariant();
    }
    if (value.typeId() == QMetaType::QString)
        return value.toString().trimmed().toLongLong(ok);
    return value.toLongLong(ok);
}

// Whether a type keeps all digits of a decimal, which a double does not.
bool isExact(DataTypeEnum type)
{
    return type == adNumeric || type == adDecimal || type == adVarNumeric;
}

bool hasMoreDigitsThanADouble(const QString &number)
{
    constexpr auto exact = std::numeric_limits<double>::digits10;
    return std::count_if(number.begin(), number.end(), [](QChar c) { return c.isDigit(); }) > exact;
}

QVariant toReal(const QVariant &value, DataTypeEnum type, bool *ok)
{
    // A whole number is kept as an integer, so that it keeps all its digits.
    QVariant whole = toInteger(value, ok);
    if (*ok)
        return whole;
    if (value.typeId() != QMetaType::QString)
        return value.toDouble(ok);
    const QString text = value.toString().trimmed();
    const double real = text.toDouble(ok);
    return isExact(type) && hasMoreDigitsThanADouble(text) ? QVariant(text) : QVariant(real);
}

QVariant narrow(const QVariant &integer)
{
    return asStored(RawValue::fromInteger(integer.toLongLong()));
}

} // namespace

bool isText(DataTypeEnum type)
{
    return shapeOf(type) == Shape::Text;
}

QVariant fromRaw(const RawValue &raw, DataTypeEnum type)
{
    const Shape shape = shapeOf(type);
    if (raw.kind == RawValue::Kind::Integer) {
        if (shape == Shape::Boolean)
            return raw.integer != 0;
        if (shape == Shape::BigInteger)
            return raw.integer;
    } else if (raw.kind == RawValue::Kind::Real && type == adSingle) {
        return static_cast<float>(raw.real); // shown with the digits of a float
    } else if (raw.kind == RawValue::Kind::Text) {
        if (QVariant value = readText(raw.bytes, shape); value.isValid())
            return value;
    }
    return asStored(raw);
}

QVariant convert(const QVariant &value, DataTypeEnum type, bool *ok)
{
    *ok = true;
    if (value.isNull() && value.typeId() != QMetaType::QString && value.typeId() != QMetaType::QByteArray)
        return {};
    const Shape shape = shapeOf(type);
    switch (shape) {
    case Shape::Integer: {
        const QVariant integer = toInteger(value, ok);
        return *ok ? narrow(integer) : integer;
    }
    case Shape::BigInteger:
        return toInteger(value, ok);
    case Shape::Real:
        return toReal(value, type, ok);
    case Shape::Boolean: {
        if (value.typeId() == QMetaType::Bool)
            return value;
        QVariant read = readText(ValueText(value).toUtf8(), shape);
        if (read.isValid())
            return read;
        return toInteger(value, ok).toLongLong() != 0;
    }
    case Shape::Date:
        if (value.typeId() == QMetaType::QDateTime)
            return value.toDateTime().date();
        break;
    case Shape::Time:
        if (value.typeId() == QMetaType::QDateTime)
            return value.toDateTime().time();
        break;
    case Shape::Moment:
        break;
    case Shape::Text:
        *ok = value.typeId() != QMetaType::QByteArray;
        return ValueText(value);
    case Shape::Binary:
        *ok = value.typeId() == QMetaType::QByteArray;
        return value;
    case Shape::Any:
        return value;
    }
    const QByteArray text = ValueText(value).trimmed().toUtf8();
    QVariant read = readText(text, shape);
    if (read.isValid())
        return read;
    const bool isFiner = (shape == Shape::Time && DateText::isFinerTime(text)) ||
                         (shape == Shape::Moment && DateText::isFinerMoment(text));
    if (isFiner)
        read = QString::fromUtf8(text);
    *ok = isFiner;
    return read;
}

QVariant toStorage(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
    case QMetaType::Nullptr:
        return {};
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return value.toLongLong();
    case QMetaType::Double:
    case QMetaType::Float:
        return value.toDouble();
    case QMetaType::QByteArray:
        return value;
    default:
        return ValueText(value);
    }
}

} // namespace ADODB::FieldValue
