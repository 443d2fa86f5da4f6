#include "ado/values/DateText.h"

#include <algorithm>

namespace ADODB::DateText {

namespace {

// The number that `count` digits represent; -1 if not all of them are digits.
int digits(QByteArrayView text, qsizetype from, qsizetype count)
{
    int number = 0;
    for (qsizetype i = from; i < from + count; ++i) {
        if (text[i] < '0' || text[i] > '9')
            return -1;
        number = number * 10 + (text[i] - '0');
    }
    return number;
}

// The milliseconds of a decimal fraction; -1 if it is not one or is more precise.
int milliseconds(QByteArrayView decimals)
{
    const qsizetype used = std::min<qsizetype>(decimals.size(), 3);
    int number = used == 0 ? -1 : digits(decimals, 0, used);
    for (qsizetype i = used; number >= 0 && i < 3; ++i)
        number *= 10;
    const auto rest = decimals.sliced(used);
    return std::all_of(rest.begin(), rest.end(), [](char c) { return c == '0'; }) ? number : -1;
}

// Whether the text is `held` characters that QTime can represent and up to six more decimals.
bool hasFinerDecimals(QByteArrayView text, qsizetype held)
{
    constexpr qsizetype further = 6;
    return text.size() > held && text.size() <= held + further && text[held - 4] == '.' &&
           digits(text, held, text.size() - held) >= 0;
}

// hh, hhmm, hh:mm or hh:mm:ss
bool isOffsetOf(QByteArrayView text)
{
    const bool hasColons = text.size() > 2 && text[2] == ':';
    const bool isLong = hasColons && text.size() == 8;
    if (text.size() != 2 && text.size() != (hasColons ? 5 : 4) && !isLong)
        return false;
    const qsizetype minutes = hasColons ? 3 : 2;
    return digits(text, 0, 2) >= 0 && (text.size() == 2 || digits(text, minutes, 2) >= 0) &&
           (!isLong || (text[5] == ':' && digits(text, 6, 2) >= 0));
}

} // namespace

QDate date(QByteArrayView text)
{
    if (text.size() != 10 || text[4] != '-' || text[7] != '-')
        return {};
    const int year = digits(text, 0, 4);
    const int month = digits(text, 5, 2);
    const int day = digits(text, 8, 2);
    return year > 0 && month > 0 && day > 0 ? QDate(year, month, day) : QDate();
}

QTime time(QByteArrayView text)
{
    const bool withSeconds = text.size() >= 8;
    const bool withFraction = text.size() > 8;
    if ((text.size() != 5 && !withSeconds) || text[2] != ':' || (withSeconds && text[5] != ':') ||
        (withFraction && text[8] != '.'))
        return {};
    const int hour = digits(text, 0, 2);
    const int minute = digits(text, 3, 2);
    const int second = withSeconds ? digits(text, 6, 2) : 0;
    const int fraction = withFraction ? milliseconds(text.sliced(9)) : 0;
    return QTime::isValid(hour, minute, second, fraction) ? QTime(hour, minute, second, fraction) : QTime();
}

QDateTime moment(QByteArrayView text)
{
    const QDate day = date(text.first(std::min<qsizetype>(text.size(), 10)));
    if (!day.isValid())
        return {};
    if (text.size() == 10)
        return {day, QTime(0, 0), Qt::UTC};
    const QTime clock = text[10] == ' ' || text[10] == 'T' ? time(text.sliced(11)) : QTime();
    return clock.isValid() ? QDateTime(day, clock, Qt::UTC) : QDateTime();
}

bool isFinerTime(QByteArrayView text)
{
    constexpr qsizetype held = sizeof("HH:mm:ss.zzz") - 1;
    return hasFinerDecimals(text, held) && time(text.first(held)).isValid();
}

bool isFinerMoment(QByteArrayView text)
{
    constexpr qsizetype held = sizeof("yyyy-MM-dd HH:mm:ss.zzz") - 1;
    return hasFinerDecimals(text, held) && moment(text.first(held)).isValid();
}

bool isZonedMoment(QByteArrayView text)
{
    constexpr qsizetype shortest = sizeof("yyyy-MM-dd HH:mm") - 1;
    const auto isSign = [](char c) { return c == '+' || c == '-' || c == 'Z'; };
    const auto sign = std::find_if(text.begin() + std::min(shortest, text.size()), text.end(), isSign);
    if (sign == text.end())
        return false;
    const qsizetype at = sign - text.begin();
    const QByteArrayView zone = text.sliced(at + 1);
    const QByteArrayView local = text.first(at - (text[at - 1] == ' ' ? 1 : 0));
    const bool isOffset = *sign == 'Z' ? zone.isEmpty() : isOffsetOf(zone);
    return isOffset && (moment(local).isValid() || isFinerMoment(local));
}

} // namespace ADODB::DateText
