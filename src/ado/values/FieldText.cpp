#include "ado/values/FieldText.h"

#include "ado/ValueText.h"
#include "ado/values/FieldValue.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace ADODB {

namespace {

void appendAsValue(QByteArray &utf8, const RawValue &raw, DataTypeEnum type)
{
    utf8 += ValueText(FieldValue::fromRaw(raw, type)).toUtf8();
}

constexpr auto digitPairs = [] {
    std::array<char, 200> pairs{};
    for (std::size_t i = 0; i < 100; ++i) {
        pairs[2 * i] = static_cast<char>('0' + i / 10);
        pairs[2 * i + 1] = static_cast<char>('0' + i % 10);
    }
    return pairs;
}();

char *writePair(char *to, quint32 value)
{
    std::memcpy(to, &digitPairs[std::size_t{2} * value], 2);
    return to + 2;
}

// Less than 10,000, without zeros in front.
char *writeFew(char *to, quint32 value)
{
    if (value >= 100)
        return writePair(writeFew(to, value / 100), value % 100);
    if (value >= 10)
        return writePair(to, value);
    *to = static_cast<char>('0' + value);
    return to + 1;
}

// Less than 10,000, with zeros in front.
char *writeFour(char *to, quint32 value)
{
    return writePair(writePair(to, value / 100), value % 100);
}

char *writeUnsigned(char *to, quint64 value)
{
    constexpr quint64 four = 10000;
    constexpr quint64 eight = four * four;
    if (value < four)
        return writeFew(to, static_cast<quint32>(value));
    if (value < eight) {
        const auto small = static_cast<quint32>(value);
        return writeFour(writeFew(to, small / four), small % four);
    }
    const auto end = static_cast<quint32>(value % eight);
    return writeFour(writeFour(writeUnsigned(to, value / eight), end / four), end % four);
}

char *writeInteger(char *to, qint64 value)
{
    auto size = static_cast<quint64>(value);
    if (value < 0) {
        *to++ = '-';
        size = 0 - size;
    }
    return writeUnsigned(to, size);
}

// Most numbers have at most four decimals. An integer through 10,000 that gives exactly this number says it
// in at most 15 digits, and rounding to 15 digits can say nothing else. Null for any other number.
char *writeDecimal(char *to, double value)
{
    constexpr double power = 10000;
    constexpr double limit = 1e15;
    const double scaled = std::abs(value) * power;
    if (!(scaled < limit))
        return nullptr;
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): the next line refuses a wrong one
    const auto whole = static_cast<qint64>(scaled + 0.5);
    if (static_cast<double>(whole) / power != std::abs(value))
        return nullptr;
    if (value < 0)
        *to++ = '-';
    to = writeUnsigned(to, static_cast<quint64>(whole) / 10000);
    const auto decimals = static_cast<quint32>(static_cast<quint64>(whole) % 10000);
    if (decimals == 0)
        return to;
    *to = '.';
    char *end = writeFour(to + 1, decimals);
    while (end[-1] == '0')
        --end;
    return end;
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

bool isTextType(DataTypeEnum type)
{
    return type != adBoolean && type != adDBDate && type != adDBTime && type != adDate &&
           type != adDBTimeStamp;
}

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
