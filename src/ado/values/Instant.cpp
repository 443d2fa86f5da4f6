#include "ado/values/Instant.h"

#include <QtCore/QDateTime>

#include <limits>

namespace ADODB {

namespace {

constexpr qint64 secondsOfDay = 24 * 60 * 60;

qint64 secondsAt(const QDate &day)
{
    return (day.toJulianDay() - QDate(1970, 1, 1).toJulianDay()) * secondsOfDay;
}

Instant instantAt(const QDate &day, const QTime &clock)
{
    const int milliseconds = clock.msecsSinceStartOfDay();
    return {day.isValid(),
            (day.isValid() ? secondsAt(day) : 0) + milliseconds / 1000,
            milliseconds % 1000 * 1'000'000,
            {}};
}

// Reads a text from its beginning. A part that is not there leaves the position unchanged.
class Reader
{
public:
    explicit Reader(QByteArrayView text) : m_rest(text.trimmed()) {}

    bool isAtEnd() const { return m_rest.isEmpty(); }

    bool passed(QByteArrayView expected)
    {
        if (!m_rest.startsWith(expected))
            return false;
        m_rest = m_rest.sliced(expected.size());
        return true;
    }

    bool passedAtEnd(QByteArrayView expected)
    {
        if (!m_rest.endsWith(expected))
            return false;
        m_rest.chop(expected.size());
        return true;
    }

    // A number of `least` to `most` digits; -1 if there is none.
    int number(qsizetype least, qsizetype most)
    {
        qsizetype count = 0;
        int value = 0;
        while (count < most && count < m_rest.size() && m_rest[count] >= '0' && m_rest[count] <= '9')
            value = value * 10 + (m_rest[count++] - '0');
        if (count < least)
            return -1;
        m_rest = m_rest.sliced(count);
        return value;
    }

    // yyyy-MM-dd, with up to six digits of the year
    std::optional<QDate> date(bool isBeforeChrist)
    {
        const QByteArrayView begin = m_rest;
        const int year = number(4, 6);
        const int month = passed("-") ? number(2, 2) : -1;
        const int day = passed("-") ? number(2, 2) : -1;
        const bool isRead = year > 0 && month > 0 && day > 0;
        const QDate date = isRead ? QDate(isBeforeChrist ? -year : year, month, day) : QDate();
        if (date.isValid())
            return date;
        m_rest = begin;
        return {};
    }

    // HH:mm[:ss[.f]]. Without a day, it can be a span of time: -HHH:mm.
    bool clock(Instant &instant)
    {
        const bool isNegative = !instant.hasDay && passed("-");
        const int hours = number(2, instant.hasDay ? 2 : 3);
        const int minutes = passed(":") ? number(2, 2) : -1;
        if (hours < 0 || minutes < 0 || minutes > 59 || (instant.hasDay && hours > 23))
            return false;
        int seconds = 0;
        if (passed(":")) {
            seconds = number(2, 2);
            if (seconds < 0 || seconds > 59)
                return false;
            if (passed(".") && !fraction(instant))
                return false;
        }
        const qint64 all = (hours * 60 + minutes) * 60 + seconds;
        instant.seconds += isNegative ? -all : all;
        if (isNegative && instant.nanoseconds > 0) {
            --instant.seconds;
            instant.nanoseconds = 1'000'000'000 - instant.nanoseconds;
        }
        return true;
    }

    // Z, +HH, +HHmm, +HH:mm or +HH:mm:ss, with an optional space before it
    bool zone(Instant &instant)
    {
        passed(" ");
        if (passed("Z")) {
            instant.offset = 0;
            return true;
        }
        const bool isWest = passed("-");
        if (!isWest && !passed("+"))
            return false;
        const int hours = number(2, 2);
        if (hours < 0)
            return false;
        int offset = hours * 60 * 60;
        for (const int unit : {60, 1}) {
            if (isAtEnd())
                break;
            passed(":");
            const int part = number(2, 2);
            if (part < 0)
                return false;
            offset += part * unit;
        }
        instant.offset = isWest ? -offset : offset;
        return true;
    }

private:
    bool fraction(Instant &instant)
    {
        const qsizetype before = m_rest.size();
        instant.nanoseconds = number(1, 9);
        if (instant.nanoseconds < 0)
            return false;
        for (qsizetype digits = before - m_rest.size(); digits < 9; ++digits)
            instant.nanoseconds *= 10;
        while (number(1, 1) >= 0) // finer ones are left out
            ;
        return true;
    }

    QByteArrayView m_rest;
};

} // namespace

std::optional<Instant> Instant::of(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QDate:
        return instantAt(value.toDate(), QTime(0, 0));
    case QMetaType::QTime:
        return instantAt(QDate(), value.toTime());
    case QMetaType::QDateTime:
        // What is shown counts, whatever the time zone is called.
        return instantAt(value.toDate(), value.toTime());
    case QMetaType::QString:
        return ofText(value.toString().toUtf8());
    default:
        return {};
    }
}

std::optional<Instant> Instant::ofText(QByteArrayView text)
{
    if (text == "infinity")
        return Instant{true, std::numeric_limits<qint64>::max(), 0, {}};
    if (text == "-infinity")
        return Instant{true, std::numeric_limits<qint64>::min(), 0, {}};

    Reader reader(text);
    const bool isBeforeChrist = reader.passedAtEnd(" BC");
    Instant instant;
    if (const auto date = reader.date(isBeforeChrist)) {
        instant.hasDay = true;
        instant.seconds = secondsAt(*date);
    }
    const bool hasClock = !instant.hasDay || reader.passed(" ") || reader.passed("T");
    if (hasClock && !reader.clock(instant))
        return {};
    if (!reader.isAtEnd() && !(hasClock && reader.zone(instant)))
        return {};
    return reader.isAtEnd() && (instant.hasDay || !isBeforeChrist) ? std::optional(instant) : std::nullopt;
}

int Instant::compare(const Instant &other) const
{
    const auto order = [](auto left, auto right) { return left < right ? -1 : right < left ? 1 : 0; };
    const int bySeconds = order(seconds - offset.value_or(0), other.seconds - other.offset.value_or(0));
    return bySeconds != 0 ? bySeconds : order(nanoseconds, other.nanoseconds);
}

} // namespace ADODB
