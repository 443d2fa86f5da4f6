#include "ado/providers/access/AccessFunctions.h"

#include "ado/DateText.h"
#include "ado/ValueText.h"
#include "ado/providers/access/AccessCall.h"
#include "ado/providers/access/AccessDialect.h"
#include "ado/providers/access/AccessFormat.h"
#include "ado/providers/access/AccessValue.h"

#include <QtCore/QDateTime>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace ADODB::AccessFunctions {

namespace {

constexpr qint64 yes = -1; // as Access has it

bool hasNull(const AccessCall &call)
{
    for (int i = 0; i < call.count(); ++i) {
        if (call.isNull(i))
            return true;
    }
    return false;
}

// A function that gives Null as soon as one argument is Null.
template<void (*Function)(AccessCall &)>
void strict(AccessCall &call)
{
    if (!hasNull(call))
        Function(call);
}

QDateTime momentOf(const AccessCall &call, int index)
{
    const QByteArray text =
        call.isText(index) ? call.text(index).toUtf8() : AccessValue::dateText(call.real(index));
    const QDateTime moment = DateText::moment(text);
    return moment.isValid() ? moment
                            : DateText::moment(AccessDialect::dateText(QString::fromUtf8(text)).toUtf8());
}

// Nothing, and so Null, for what is no date.
void answerMoment(AccessCall &call, const QDateTime &moment)
{
    if (moment.isValid())
        call.answer(ValueText(moment));
}

// ---- texts

void concatenate(AccessCall &call)
{
    QString text;
    bool isNull = true;
    for (int i = 0; i < call.count(); ++i) {
        isNull = isNull && call.isNull(i);
        text += call.text(i);
    }
    if (!isNull)
        call.answer(text);
}

void len(AccessCall &call)
{
    call.answer(qint64{call.text(0).size()});
}

void mid(AccessCall &call)
{
    const qint64 start = call.integer(1);
    const qint64 count = call.count() > 2 ? call.integer(2) : -1;
    if (start < 1 || (call.count() > 2 && count < 0))
        return call.fail("Mid");
    call.answer(call.text(0).mid(start - 1, count));
}

void left(AccessCall &call)
{
    call.answer(call.text(0).left(std::max<qint64>(call.integer(1), 0)));
}

void right(AccessCall &call)
{
    call.answer(call.text(0).right(std::max<qint64>(call.integer(1), 0)));
}

void upper(AccessCall &call)
{
    call.answer(call.text(0).toUpper());
}

void lower(AccessCall &call)
{
    call.answer(call.text(0).toLower());
}

void inStr(AccessCall &call)
{
    const int text = call.count() == 2 ? 0 : 1;
    const qint64 start = text == 0 ? 1 : call.integer(0);
    call.answer(qint64{call.text(text).indexOf(call.text(text + 1), std::max<qint64>(start, 1) - 1,
                                               Qt::CaseInsensitive)} +
                1);
}

// ---- dates

void now(AccessCall &call)
{
    const QDateTime moment = QDateTime::currentDateTime();
    call.answer(moment.toString(u"yyyy-MM-dd HH:mm:ss"_s));
}

void today(AccessCall &call)
{
    call.answer(QDate::currentDate().toString(u"yyyy-MM-dd 00:00:00"_s));
}

void dateSerial(AccessCall &call)
{
    // Months and days outside their range count on into the next ones.
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
    case Interval::Week: // the one with January 1 is the first
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

// ---- numbers and conversions

void floorOf(AccessCall &call)
{
    call.answer(std::floor(call.real(0)));
}

void truncate(AccessCall &call)
{
    call.answer(std::trunc(call.real(0)));
}

void sign(AccessCall &call)
{
    const double number = call.real(0);
    call.answer(qint64{number > 0} - qint64{number < 0});
}

void root(AccessCall &call)
{
    call.answer(std::sqrt(call.real(0)));
}

// Halves go to the even neighbour, as Access rounds.
void toInteger(AccessCall &call)
{
    call.answer(static_cast<qint64>(std::nearbyint(std::clamp(call.real(0), -0x1p62, 0x1p62))));
}

void toDouble(AccessCall &call)
{
    call.answer(call.real(0));
}

void toCurrency(AccessCall &call)
{
    constexpr double units = 10'000;
    call.answer(std::nearbyint(call.real(0) * units) / units);
}

void toText(AccessCall &call)
{
    call.answer(call.text(0));
}

void toBoolean(AccessCall &call)
{
    call.answer(call.real(0) != 0 ? yes : qint64{0});
}

void nz(AccessCall &call)
{
    if (!call.isNull(0))
        call.answerArgument(0);
    else if (call.count() > 1)
        call.answerArgument(1);
    else
        call.answer(u""_s);
}

void isNull(AccessCall &call)
{
    call.answer(call.isNull(0) ? yes : qint64{0});
}

} // namespace

void install(sqlite3 *db)
{
    constexpr int changing = 0; // from one call to the next
    AccessCall::offer<concatenate>(db, "access_concat", -1);
    AccessCall::offer<strict<len>>(db, "Len", 1);
    AccessCall::offer<strict<mid>>(db, "Mid", 2);
    AccessCall::offer<strict<mid>>(db, "Mid", 3);
    AccessCall::offer<strict<left>>(db, "Left", 2);
    AccessCall::offer<strict<right>>(db, "Right", 2);
    AccessCall::offer<strict<upper>>(db, "UCase", 1);
    AccessCall::offer<strict<lower>>(db, "LCase", 1);
    AccessCall::offer<strict<inStr>>(db, "InStr", 2);
    AccessCall::offer<strict<inStr>>(db, "InStr", 3);
    AccessCall::offer<now>(db, "Now", 0, changing);
    AccessCall::offer<today>(db, "Date", 0, changing);
    AccessCall::offer<strict<part<Interval::Year>>>(db, "Year", 1);
    AccessCall::offer<strict<part<Interval::Month>>>(db, "Month", 1);
    AccessCall::offer<strict<part<Interval::Day>>>(db, "Day", 1);
    AccessCall::offer<strict<part<Interval::Hour>>>(db, "Hour", 1);
    AccessCall::offer<strict<part<Interval::Minute>>>(db, "Minute", 1);
    AccessCall::offer<strict<part<Interval::Second>>>(db, "Second", 1);
    AccessCall::offer<strict<part<Interval::Weekday>>>(db, "Weekday", 1);
    AccessCall::offer<strict<datePart>>(db, "DatePart", 2);
    AccessCall::offer<strict<dateSerial>>(db, "DateSerial", 3);
    AccessCall::offer<strict<dateValue>>(db, "DateValue", 1);
    AccessCall::offer<strict<toDate>>(db, "CDate", 1);
    AccessCall::offer<strict<format>>(db, "Format", 2);
    AccessCall::offer<strict<floorOf>>(db, "Int", 1);
    AccessCall::offer<strict<truncate>>(db, "Fix", 1);
    AccessCall::offer<strict<sign>>(db, "Sgn", 1);
    AccessCall::offer<strict<root>>(db, "Sqr", 1);
    AccessCall::offer<strict<toInteger>>(db, "CInt", 1);
    AccessCall::offer<strict<toInteger>>(db, "CLng", 1);
    AccessCall::offer<strict<toDouble>>(db, "CDbl", 1);
    AccessCall::offer<strict<toDouble>>(db, "CSng", 1);
    AccessCall::offer<strict<toDouble>>(db, "Val", 1);
    AccessCall::offer<strict<toCurrency>>(db, "CCur", 1);
    AccessCall::offer<strict<toText>>(db, "CStr", 1);
    AccessCall::offer<strict<toBoolean>>(db, "CBool", 1);
    AccessCall::offer<nz>(db, "Nz", 1);
    AccessCall::offer<nz>(db, "Nz", 2);
    AccessCall::offer<isNull>(db, "IsNull", 1);
}

} // namespace ADODB::AccessFunctions
