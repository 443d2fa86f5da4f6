#include "ado/values/FieldText.h"

#include "ado/ValueText.h"
#include "ado/values/FieldValue.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace ADODB {

namespace {

void appendAsValue(QByteArray &utf8, const RawValue &raw, DataTypeEnum type)
{
    utf8 += ValueText(FieldValue::fromRaw(raw, type)).toUtf8();
}

void appendInteger(QByteArray &utf8, qint64 value)
{
    std::array<char, 20> digits;
    const auto end = std::to_chars(digits.begin(), digits.end(), value).ptr;
    utf8.append(digits.data(), end - digits.data());
}

// Whatever the shortest text that reads back as the number says in at most 15 digits, rounding to 15 digits
// says as well. False for the few numbers that need more, and those written with an exponent.
bool appendShortReal(QByteArray &utf8, double value)
{
    const double size = std::abs(value);
    if (value == 0) {
        utf8 += '0'; // the negative zero too
        return true;
    }
    if (!(size >= 1e-4 && size < 1e15))
        return false;
    std::array<char, 32> text;
    const auto [end, error] = std::to_chars(text.begin(), text.end(), value, std::chars_format::fixed);
    if (error != std::errc())
        return false;
    // Zeros before the first digit are counted too, which at worst takes the long way.
    const auto digits = std::count_if(text.data(), end, [](char c) { return c >= '0' && c <= '9'; });
    if (digits > std::numeric_limits<double>::digits10)
        return false;
    utf8.append(text.data(), end - text.data());
    return true;
}

bool hasDigits(QByteArrayView text, qsizetype from, int count)
{
    return std::all_of(text.begin() + from, text.begin() + from + count,
                       [](char c) { return c >= '0' && c <= '9'; });
}

int twoDigits(QByteArrayView text, qsizetype from)
{
    return (text[from] - '0') * 10 + (text[from + 1] - '0');
}

// A day that every month has, of a year that needs no second look.
bool isPlainDate(QByteArrayView text)
{
    if (!hasDigits(text, 0, 4) || text[4] != '-' || !hasDigits(text, 5, 2) || text[7] != '-' ||
        !hasDigits(text, 8, 2) || text[0] == '0')
        return false;
    const int month = twoDigits(text, 5);
    const int day = twoDigits(text, 8);
    return month >= 1 && month <= 12 && day >= 1 && day <= 28;
}

bool isPlainTime(QByteArrayView text)
{
    return hasDigits(text, 0, 2) && text[2] == ':' && hasDigits(text, 3, 2) && text[5] == ':' &&
           hasDigits(text, 6, 2) && twoDigits(text, 0) < 24 && twoDigits(text, 3) < 60 &&
           twoDigits(text, 6) < 60;
}

// Whether the type shows this text as it is. False only means that it takes a closer look.
bool isShownAsStored(QByteArrayView text, DataTypeEnum type)
{
    switch (type) {
    case adBoolean:
        return false;
    case adDBDate:
        return text.size() == 10 && isPlainDate(text);
    case adDBTime:
        return text.size() == 8 && isPlainTime(text);
    case adDate:
    case adDBTimeStamp:
        return text.size() == 19 && isPlainDate(text) && text[10] == ' ' && isPlainTime(text.sliced(11));
    default:
        return text.isValidUtf8();
    }
}

} // namespace

void appendText(QByteArray &utf8, const RawValue &raw, DataTypeEnum type)
{
    switch (raw.kind) {
    case RawValue::Kind::Null:
        return;
    case RawValue::Kind::Integer:
        if (type == adBoolean)
            break;
        return appendInteger(utf8, raw.integer);
    case RawValue::Kind::Real:
        if (type == adSingle || !appendShortReal(utf8, raw.real))
            break;
        return;
    case RawValue::Kind::Text:
        if (!isShownAsStored(raw.bytes, type))
            break;
        utf8 += raw.bytes;
        return;
    case RawValue::Kind::Blob:
        break;
    }
    appendAsValue(utf8, raw, type);
}

} // namespace ADODB
