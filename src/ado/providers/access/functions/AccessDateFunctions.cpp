#include "ado/providers/access/functions/AccessDateFunctions.h"

#include "ado/ValueText.h"
#include "ado/providers/access/file/AccessValue.h"
#include "ado/providers/access/functions/AccessCall.h"
#include "ado/providers/access/functions/AccessFormat.h"
#include "ado/providers/access/sql/AccessDateLiteral.h"
#include "ado/values/DateText.h"

#include <QtCore/QDateTime>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB::AccessDateFunctions {

namespace {

QDateTime momentOf(const AccessCall &call, int index)
{
    const QByteArray text =
        call.isText(index) ? call.text(index).toUtf8() : AccessValue::dateText(call.real(index));
    const QDateTime moment = DateText::moment(text);
    return moment.isValid() ? moment
                            : DateText::moment(AccessDateLiteral::text(QString::fromUtf8(text)).toUtf8());
}

// Sets no result, so the function returns Null, if the moment is not valid.
void answerMoment(AccessCall &call, const QDateTime &moment)
{
    if (moment.isValid())
        call.answer(ValueText(moment));
}

void now(AccessCall &call)
{
    const QDateTime moment = QDateTime::currentDateTime();
    call.answer(moment.toString(u"yyyy-MM-dd HH:mm:ss"_s));
}

void clock(AccessCall &call)
{
    call.answer(QTime::currentTime().toString(u"1899-12-30 HH:mm:ss"_s));
}

void today(AccessCall &call)
{
    call.answer(QDate::currentDate().toString(u"yyyy-MM-dd 00:00:00"_s));
}

void dateSerial(AccessCall &call)
{
    // Months and days outside their range carry over into the next or previous ones.
    const QDate first(static_cast<int>(call.integer(0)), 1, 1);
    const QDate day = first.addMonths(static_cast<int>(call.integer(1) - 1)).addDays(call.integer(2) - 1);
    answerMoment(call, QDateTime(day, QTime(0, 0), Qt::UTC));
}

void toDate(AccessCall &call)
{
    answerMoment(call, momentOf(call, 0));
}

void dateValue(AccessCall &call)
{
    answerMoment(call, QDateTime(momentOf(call, 0).date(), QTime(0, 0), Qt::UTC));
}

void timeSerial(AccessCall &call)
{
    constexpr double secondsOfDay = 86'400;
    call.answerDate((call.real(0) * 3600 + call.real(1) * 60 + call.real(2)) / secondsOfDay);
}

void timeValue(AccessCall &call)
{
    answerMoment(call, QDateTime(QDate(1899, 12, 30), momentOf(call, 0).time(), Qt::UTC));
}

void isDate(AccessCall &call)
{
    call.answer(!call.isNull(0) && call.isText(0) && momentOf(call, 0).isValid() ? qint64{-1} : qint64{0});
}

int weekday(QDate date)
{
    return date.dayOfWeek() % 7 + 1; // Sunday is 1
}

enum class Interval { None, Year, Quarter, Month, DayOfYear, Day, Weekday, Week, Hour, Minute, Second };

Interval intervalOf(const QString &text)
{
    struct Name
    {
        QLatin1StringView text;
        Interval interval;
    };
    static constexpr Name names[] = {{"yyyy"_L1, Interval::Year}, {"q"_L1, Interval::Quarter},
                                     {"m"_L1, Interval::Month},   {"y"_L1, Interval::DayOfYear},
                                     {"d"_L1, Interval::Day},     {"w"_L1, Interval::Weekday},
                                     {"ww"_L1, Interval::Week},   {"h"_L1, Interval::Hour},
                                     {"n"_L1, Interval::Minute},  {"s"_L1, Interval::Second}};
    const auto *found = std::find_if(std::begin(names), std::end(names), [&](const Name &name) {
        return text.compare(name.text, Qt::CaseInsensitive) == 0;
    });
    return found == std::end(names) ? Interval::None : found->interval;
}

int partOf(const QDateTime &moment, Interval interval)
{
    const QDate date = moment.date();
    switch (interval) {
    case Interval::Year:
        return date.year();
    case Interval::Quarter:
        return (date.month() + 2) / 3;
    case Interval::Month:
        return date.month();
    case Interval::DayOfYear:
        return date.dayOfYear();
    case Interval::Day:
        return date.day();
    case Interval::Weekday:
        return weekday(date);
    case Interval::Week: // week 1 contains January 1
        return (date.dayOfYear() + weekday(QDate(date.year(), 1, 1)) - 2) / 7 + 1;
    case Interval::Hour:
        return moment.time().hour();
    case Interval::Minute:
        return moment.time().minute();
    case Interval::Second:
        return moment.time().second();
    case Interval::None:
        break;
    }
    return 0;
}

void answerPart(AccessCall &call, int argument, Interval interval)
{
    const QDateTime moment = momentOf(call, argument);
    if (interval == Interval::None)
        call.fail("DatePart");
    else if (moment.isValid())
        call.answer(qint64{partOf(moment, interval)});
}

template<Interval Part>
void part(AccessCall &call)
{
    answerPart(call, 0, Part);
}

void datePart(AccessCall &call)
{
    answerPart(call, 1, intervalOf(call.text(0)));
}

QDateTime later(const QDateTime &moment, Interval interval, qint64 count)
{
    const auto months = static_cast<int>(std::clamp<qint64>(count, -200'000, 200'000));
    switch (interval) {
    case Interval::Year:
        return moment.addMonths(12 * months);
    case Interval::Quarter:
        return moment.addMonths(3 * months);
    case Interval::Month:
        return moment.addMonths(months);
    case Interval::DayOfYear:
    case Interval::Day:
    case Interval::Weekday:
        return moment.addDays(count);
    case Interval::Week:
        return moment.addDays(7 * count);
    case Interval::Hour:
        return moment.addSecs(3600 * count);
    case Interval::Minute:
        return moment.addSecs(60 * count);
    case Interval::Second:
        return moment.addSecs(count);
    case Interval::None:
        break;
    }
    return {};
}

// The number of interval boundaries between the moments; for Weekday, the number of whole weeks.
qint64 between(const QDateTime &first, const QDateTime &last, Interval interval)
{
    const auto months = [](QDate date) { return qint64{date.year()} * 12 + date.month() - 1; };
    const auto sundays = [](QDate date) { return date.toJulianDay() + 1; }; // divided by 7: Sundays so far
    const auto seconds = [&](qint64 size) {
        return last.toSecsSinceEpoch() / size - first.toSecsSinceEpoch() / size;
    };
    switch (interval) {
    case Interval::Year:
        return last.date().year() - first.date().year();
    case Interval::Quarter:
        return months(last.date()) / 3 - months(first.date()) / 3;
    case Interval::Month:
        return months(last.date()) - months(first.date());
    case Interval::DayOfYear:
    case Interval::Day:
        return first.date().daysTo(last.date());
    case Interval::Weekday:
        return first.date().daysTo(last.date()) / 7;
    case Interval::Week:
        return sundays(last.date()) / 7 - sundays(first.date()) / 7;
    case Interval::Hour:
        return seconds(3600);
    case Interval::Minute:
        return seconds(60);
    case Interval::Second:
        return seconds(1);
    case Interval::None:
        break;
    }
    return 0;
}

void dateAdd(AccessCall &call)
{
    const Interval interval = intervalOf(call.text(0));
    const auto count = static_cast<qint64>(std::clamp(call.real(1), -1e11, 1e11));
    if (interval == Interval::None)
        return call.fail("DateAdd");
    const QDateTime moment = momentOf(call, 2);
    const QDateTime result = moment.isValid() ? later(moment, interval, count) : QDateTime();
    if (result.isValid() && result.date().year() >= 1 && result.date().year() <= 9999)
        answerMoment(call, result);
}

void dateDiff(AccessCall &call)
{
    const Interval interval = intervalOf(call.text(0));
    const QDateTime first = momentOf(call, 1);
    const QDateTime last = momentOf(call, 2);
    if (interval == Interval::None)
        call.fail("DateDiff");
    else if (first.isValid() && last.isValid())
        call.answer(between(first, last, interval));
}

void format(AccessCall &call)
{
    const QString pattern = call.text(1);
    const QDateTime moment = call.isText(0) ? momentOf(call, 0) : QDateTime();
    if (moment.isValid())
        call.answer(AccessFormat::date(moment, pattern));
    else if (!call.isText(0))
        call.answer(AccessFormat::number(call.real(0), pattern));
    else
        call.answerArgument(0);
}

} // namespace

void install(sqlite3 *db)
{
    constexpr int changing = 0; // not deterministic
    AccessCall::offer<now>(db, "Now", 0, changing);
    AccessCall::offer<today>(db, "Date", 0, changing);
    AccessCall::offer<clock>(db, "Time", 0, changing);
    AccessCall::offer<AccessCall::strict<part<Interval::Year>>>(db, "Year", 1);
    AccessCall::offer<AccessCall::strict<part<Interval::Month>>>(db, "Month", 1);
    AccessCall::offer<AccessCall::strict<part<Interval::Day>>>(db, "Day", 1);
    AccessCall::offer<AccessCall::strict<part<Interval::Hour>>>(db, "Hour", 1);
    AccessCall::offer<AccessCall::strict<part<Interval::Minute>>>(db, "Minute", 1);
    AccessCall::offer<AccessCall::strict<part<Interval::Second>>>(db, "Second", 1);
    AccessCall::offer<AccessCall::strict<part<Interval::Weekday>>>(db, "Weekday", 1);
    AccessCall::offer<AccessCall::strict<datePart>>(db, "DatePart", 2);
    AccessCall::offer<AccessCall::strict<dateAdd>>(db, "DateAdd", 3);
    AccessCall::offer<AccessCall::strict<dateDiff>>(db, "DateDiff", 3);
    AccessCall::offer<AccessCall::strict<dateSerial>>(db, "DateSerial", 3);
    AccessCall::offer<AccessCall::strict<timeSerial>>(db, "TimeSerial", 3);
    AccessCall::offer<AccessCall::strict<dateValue>>(db, "DateValue", 1);
    AccessCall::offer<AccessCall::strict<timeValue>>(db, "TimeValue", 1);
    AccessCall::offer<AccessCall::strict<toDate>>(db, "CDate", 1);
    AccessCall::offer<isDate>(db, "IsDate", 1);
    AccessCall::offer<AccessCall::strict<format>>(db, "Format", 2);
}

} // namespace ADODB::AccessDateFunctions
