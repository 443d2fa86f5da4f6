#include "ado/providers/access/file/AccessValue.h"

#include "ado/values/DateText.h"

#include <QtCore/QDateTime>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace ADODB::AccessValue {

namespace {

using AccessBytes::number;

constexpr double dayInMilliseconds = 86'400'000;
const QDate firstDay(1899, 12, 30);

RawValue fromText(QByteArray text, QByteArray &storage)
{
    storage = std::move(text);
    return RawValue::fromText(storage);
}

// `digits` has at least one digit and no sign.
RawValue fromDecimal(QByteArray digits, int scale, bool isNegative, QByteArray &storage)
{
    constexpr qsizetype digitsOfDouble = 15;
    if (digits.size() <= scale)
        digits.prepend(scale + 1 - digits.size(), '0');
    QByteArrayView fraction = QByteArrayView(digits).last(scale);
    while (fraction.endsWith('0'))
        fraction.chop(1);
    QByteArray text = (isNegative ? "-" : "") + digits.first(digits.size() - scale);
    bool isInteger = fraction.isEmpty();
    if (isInteger) {
        const qint64 integer = text.toLongLong(&isInteger);
        if (isInteger)
            return RawValue::fromInteger(integer);
    }
    const qsizetype leading =
        std::find_if(digits.begin(), digits.end(), [](char c) { return c != '0'; }) - digits.begin();
    if (!fraction.isEmpty())
        text += '.' + fraction.toByteArray();
    if (digits.size() - scale + fraction.size() - leading <= digitsOfDouble)
        return RawValue::fromReal(text.toDouble());
    return fromText(std::move(text), storage);
}

RawValue currency(QByteArrayView field, QByteArray &storage)
{
    constexpr int scale = 4;
    const auto units = number<qint64>(field, 0);
    const auto magnitude = units < 0 ? 0 - static_cast<quint64>(units) : static_cast<quint64>(units);
    return fromDecimal(QByteArray::number(magnitude), scale, units < 0, storage);
}

// A sign and 128 bits in four words, most significant word first.
RawValue numeric(QByteArrayView field, int scale, QByteArray &storage)
{
    constexpr int words = 4;
    std::array<quint32, words> magnitude{};
    for (int i = 0; i < words; ++i)
        magnitude[static_cast<std::size_t>(i)] = number<quint32>(field, 1 + 4 * i);
    QByteArray digits;
    while (std::any_of(magnitude.begin(), magnitude.end(), [](quint32 word) { return word != 0; })) {
        quint64 rest = 0;
        for (quint32 &word : magnitude) {
            rest = rest << 32 | word;
            word = static_cast<quint32>(rest / 10);
            rest %= 10;
        }
        digits.prepend(static_cast<char>('0' + rest));
    }
    const bool isNegative = number<quint8>(field, 0) != 0;
    return fromDecimal(digits.isEmpty() ? "0" : digits, scale, isNegative, storage);
}

// The double with the same shortest decimal text: 0.05 stays 0.05 and not 0.0500000007450581.
double widened(float value)
{
    std::array<char, 32> text{};
    const auto written = std::to_chars(text.data(), text.data() + text.size(), value);
    double wide = value;
    std::from_chars(text.data(), written.ptr, wide);
    return wide;
}

RawValue date(double days, QByteArray &storage)
{
    QByteArray text = dateText(days);
    return text.isEmpty() ? RawValue::fromReal(days) : fromText(std::move(text), storage);
}

QByteArray guidText(QByteArrayView field)
{
    std::array<char, 39> text{};
    const auto byte = [&](qsizetype at) { return static_cast<unsigned>(number<quint8>(field, at)); };
    std::snprintf(text.data(), text.size(), "{%08X-%04X-%04X-%02X%02X-%02X%02X%02X%02X%02X%02X}",
                  number<quint32>(field, 0), static_cast<unsigned>(number<quint16>(field, 4)),
                  static_cast<unsigned>(number<quint16>(field, 6)), byte(8), byte(9), byte(10), byte(11),
                  byte(12), byte(13), byte(14), byte(15));
    return text.data();
}

} // namespace

RawValue fromFlag(bool flag)
{
    return RawValue::fromInteger(flag ? -1 : 0);
}

QByteArray dateText(double days)
{
    constexpr double limit = 3'700'000; // after the year 9999
    if (!(std::abs(days) < limit))
        return {};
    // The time of day counts forward, also before 1899.
    const double whole = std::trunc(days);
    const auto milliseconds = std::llround(std::abs(days - whole) * dayInMilliseconds);
    const QDateTime moment =
        QDateTime(firstDay.addDays(static_cast<qint64>(whole)), QTime(0, 0), Qt::UTC).addMSecs(milliseconds);
    const QDate day = moment.date();
    if (day.year() < 1 || day.year() > 9999)
        return {};
    const QTime time = moment.time();
    std::array<char, 80> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", day.year(), day.month(),
                  day.day(), time.hour(), time.minute(), time.second());
    QByteArray written(text.data());
    if (time.msec() != 0) {
        written += '.' + QByteArray::number(1000 + time.msec()).sliced(1);
        while (written.endsWith('0'))
            written.chop(1);
    }
    return written;
}

std::optional<double> days(QByteArrayView dateText)
{
    constexpr qsizetype sizeWithoutFraction = 19;
    const QDateTime moment = dateText.size() < sizeWithoutFraction ? QDateTime() : DateText::moment(dateText);
    if (!moment.isValid())
        return {};
    const double time = moment.time().msecsSinceStartOfDay() / dayInMilliseconds;
    const auto whole = static_cast<double>(firstDay.daysTo(moment.date()));
    return whole < 0 ? whole - time : whole + time;
}

RawValue fromField(QByteArrayView field, const AccessColumn &column, const AccessFile &file,
                   QByteArray &storage)
{
    switch (column.type) {
    case AccessType::Byte:
        return RawValue::fromInteger(number<quint8>(field, 0));
    case AccessType::Integer:
        return RawValue::fromInteger(number<qint16>(field, 0));
    case AccessType::LongInteger:
    case AccessType::Complex:
        return RawValue::fromInteger(number<qint32>(field, 0));
    case AccessType::LargeNumber:
        return RawValue::fromInteger(number<qint64>(field, 0));
    case AccessType::Currency:
        return currency(field, storage);
    case AccessType::Numeric:
        return numeric(field, column.scale, storage);
    case AccessType::Single:
        return RawValue::fromReal(widened(number<float>(field, 0)));
    case AccessType::Double:
        return RawValue::fromReal(number<double>(field, 0));
    case AccessType::DateTime:
        return date(number<double>(field, 0), storage);
    case AccessType::Text:
        return fromText(file.text(field), storage);
    case AccessType::Memo:
        return fromText(file.text(file.longValue(field)), storage);
    case AccessType::Guid:
        return fromText(guidText(field), storage);
    case AccessType::OleObject:
        storage = file.longValue(field);
        return RawValue::fromBlob(storage);
    case AccessType::YesNo: // not stored as a field
    case AccessType::Binary:
        break;
    }
    return RawValue::fromBlob(field);
}

} // namespace ADODB::AccessValue
