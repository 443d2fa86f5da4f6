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

char *writeInteger(char *to, qint64 value)
{
    return std::to_chars(to, to + longestNumber, value).ptr;
}

// Most numbers have a few decimals. An integer through a power of ten that gives exactly this number says it
// in at most 15 digits, and rounding to 15 digits can say nothing else.
char *writeDecimal(char *to, double value)
{
    static constexpr std::array<double, 5> powers{1, 10, 100, 1000, 10000};
    constexpr double limit = 1e15;
    for (std::size_t decimals = 0; decimals < powers.size(); ++decimals) {
        const double scaled = value * powers[decimals];
        if (!(std::abs(scaled) < limit))
            return nullptr;
        const auto whole = static_cast<qint64>(scaled < 0 ? scaled - 0.5 : scaled + 0.5);
        if (static_cast<double>(whole) / powers[decimals] != value)
            continue;
        if (decimals == 0)
            return writeInteger(to, whole);
        if (value < 0)
            *to++ = '-';
        const auto size = static_cast<quint64>(std::abs(whole));
        const auto power = static_cast<quint64>(powers[decimals]);
        to = std::to_chars(to, to + longestNumber, size / power).ptr;
        *to = '.';
        quint64 fraction = size % power;
        for (char *digit = to + decimals; digit > to; --digit, fraction /= 10)
            *digit = static_cast<char>('0' + fraction % 10);
        return to + 1 + decimals;
    }
    return nullptr;
}

// If the shortest text that reads back as the number has at most 15 digits, rounding to 15 digits gives the
// same. Returns null for the few numbers that need more, and for those written with an exponent.
char *writeShortReal(char *to, double value)
{
    const double size = std::abs(value);
    if (value == 0) {
        *to = '0'; // also for -0
        return to + 1;
    }
    if (!(size >= 1e-4 && size < 1e15))
        return nullptr;
    if (char *const end = writeDecimal(to, value))
        return end;
    const auto [end, error] = std::to_chars(to, to + longestNumber, value, std::chars_format::fixed);
    if (error != std::errc())
        return nullptr;
    // Leading zeros are counted too; at worst, this takes the slow path.
    const auto digits = std::count_if(to, end, [](char c) { return c >= '0' && c <= '9'; });
    return digits > std::numeric_limits<double>::digits10 ? nullptr : end;
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

// A day that exists in every month, in a year that needs no further check.
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

} // namespace

// False only means that it takes a closer look.
bool isShownAsStored(QByteArrayView text, DataTypeEnum type, bool isAscii)
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
        return isAscii || text.isValidUtf8();
    }
}

char *writeNumber(char *to, const RawValue &raw, DataTypeEnum type)
{
    switch (raw.kind) {
    case RawValue::Kind::Null:
        return to;
    case RawValue::Kind::Integer:
        return type == adBoolean ? nullptr : writeInteger(to, raw.integer);
    case RawValue::Kind::Real:
        return type == adSingle ? nullptr : writeShortReal(to, raw.real);
    default:
        return nullptr;
    }
}

void appendText(QByteArray &utf8, const RawValue &raw, DataTypeEnum type)
{
    if (raw.kind == RawValue::Kind::Text && isShownAsStored(raw.bytes, type)) {
        utf8 += raw.bytes;
        return;
    }
    std::array<char, longestNumber> number;
    if (const char *const end = writeNumber(number.data(), raw, type))
        utf8.append(number.data(), end - number.data());
    else
        appendAsValue(utf8, raw, type);
}

} // namespace ADODB
