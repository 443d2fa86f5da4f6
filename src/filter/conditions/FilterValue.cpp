#include "filter/conditions/FilterValue.h"

#include "filter/FilterTexts.h"
#include "filter/conditions/FilterDays.h"
#include "sql/Literals.h"

#include <QtCore/QRegularExpression>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const QString listSeparators = uR"(,，、;；\t\r\n\x{2028}\x{2029})"_s; // in the syntax of regular expressions

// Keeps the digits as typed, so that none of a long number is lost.
std::optional<QString> plainNumber(const QString &typed)
{
    static const QRegularExpression form(uR"(\A\+?(-?[0-9]+(?:\.[0-9]+)?(?:[eE][-+]?[0-9]+)?)\z)"_s);
    const auto match = form.match(narrow(typed).replace(u'−', u'-'));
    return match.hasMatch() ? std::optional(match.captured(1)) : std::nullopt;
}

std::optional<FilterValue> readNumber(const Dialect &dialect, const QString &typed)
{
    const auto number = plainNumber(typed);
    if (!number) {
        const QString literal = numberWordLiteral(dialect, narrow(typed));
        return literal.isEmpty() ? std::nullopt : std::optional(FilterValue{.literal = literal});
    }
    const double rank = number->toDouble();
    return FilterValue{.literal = *number, .rank = rank, .lastRank = rank};
}

std::optional<bool> plainBoolean(const QString &typed)
{
    static const QStringList yes{u"true"_s, u"yes"_s, u"1"_s, u"-1"_s, u"真"_s};
    static const QStringList no{u"false"_s, u"no"_s, u"0"_s, u"假"_s};
    const QString text = narrow(typed).toLower();
    const bool isTrue = FilterTexts::Yes.is(text) || yes.contains(text);
    if (!isTrue && !FilterTexts::No.is(text) && !no.contains(text))
        return std::nullopt;
    return isTrue;
}

std::optional<FilterValue> readBoolean(const QString &typed)
{
    const auto isTrue = plainBoolean(typed);
    return isTrue ? std::optional(FilterValue{.isTrue = *isTrue}) : std::nullopt;
}

struct TypedTime
{
    QTime time;    // invalid if the text is not a time
    QString finer; // decimals after the milliseconds, which a database can store

    bool isMidnight() const { return time == QTime(0, 0) && finer.isEmpty(); }
};

TypedTime readTime(const QString &text)
{
    // No database stores more than nine decimals of a second.
    static const QRegularExpression form(
        uR"(\A([0-9]{1,2}):([0-9]{2})(?::([0-9]{2})(?:\.(?=[0-9]{1,9}\z)([0-9]{1,3})([0-9]*?)0*)?)?\z)"_s);
    const auto match = form.match(text);
    if (!match.hasMatch())
        return {};
    return {QTime(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt(),
                  match.captured(4).leftJustified(3, u'0').toInt()),
            match.captured(5)};
}

QString plainTime(const TypedTime &typed)
{
    const bool hasFraction = typed.time.msec() != 0 || !typed.finer.isEmpty();
    return typed.time.toString(hasFraction ? u"HH:mm:ss.zzz"_s : u"HH:mm:ss"_s) + typed.finer;
}

double rankOf(const QDateTime &moment)
{
    return static_cast<double>(moment.toMSecsSinceEpoch());
}

struct MomentParts
{
    QDate day;    // invalid if the text does not begin with a date
    QString time; // the rest of the text, without the zone
    QString zone; // an offset such as +08 or -03:30, if there is one
};

MomentParts splitMoment(const QString &typed)
{
    static const QRegularExpression form(
        uR"(\A([^ T]*)(?:[ T]+(.*?) ?([Zz]|[-+][0-9]{2}(?::?[0-9]{2}){0,2})?)?\z)"_s);
    const auto match = form.match(narrow(typed).replace(u'−', u'-'));
    // Relative days and months are never a single day.
    const auto days = readDays(match.captured(1), {});
    const bool isDay = days && days->first.addDays(1) == days->end;
    const QString zone = match.captured(3);
    return {isDay ? days->first : QDate(), match.captured(2),
            zone.compare(u'Z', Qt::CaseInsensitive) == 0 ? u"+00"_s : zone};
}

// The zone's offset from UTC.
int secondsOf(const QString &zone)
{
    const QString digits = zone.sliced(1).remove(u':').leftJustified(6, u'0');
    const int seconds = digits.left(2).toInt() * 3600 + digits.mid(2, 2).toInt() * 60 + digits.mid(4).toInt();
    return zone.startsWith(u'-') ? -seconds : seconds;
}

std::optional<FilterValue> readMoment(const Dialect &dialect, const QString &typed, QDate today)
{
    if (const auto days = readDays(typed, today)) {
        return FilterValue{.literal = dateLiteral(dialect, days->first),
                           .nextDay = dateLiteral(dialect, days->end),
                           .rank = rankOf(days->first.startOfDay(Qt::UTC)),
                           .lastRank = rankOf(days->end.startOfDay(Qt::UTC)) - 1};
    }
    const auto [day, time, zone] = splitMoment(typed);
    const TypedTime typedTime = readTime(time);
    if (!day.isValid() || !typedTime.time.isValid())
        return std::nullopt;
    QDateTime moment(day, typedTime.time, Qt::UTC);
    if (!zone.isEmpty()) {
        const QString literal = zonedMomentLiteral(dialect, moment, typedTime.finer, zone);
        if (literal.isEmpty())
            return std::nullopt;
        moment = moment.addSecs(-secondsOf(zone));
        return FilterValue{.literal = literal, .rank = rankOf(moment), .lastRank = rankOf(moment)};
    }
    return FilterValue{.literal = momentLiteral(dialect, moment, typedTime.finer),
                       .rank = rankOf(moment),
                       .lastRank = rankOf(moment)};
}

// A date, possibly with a time and a zone.
std::optional<QString> plainMoment(const QString &typed, QDate today)
{
    const auto days = readDays(typed, today);
    if (days && days->first.addDays(1) == days->end)
        return days->first.toString(Qt::ISODate);
    const auto [day, time, zone] = splitMoment(typed);
    const TypedTime typedTime = readTime(time);
    if (days || !day.isValid() || !typedTime.time.isValid())
        return std::nullopt;
    return day.toString(Qt::ISODate) + u' ' + plainTime(typedTime) + zone;
}

std::optional<FilterValue> readDate(const Dialect &dialect, const QString &typed, QDate today)
{
    auto days = readDays(typed, today);
    if (!days) {
        const auto [day, time, zone] = splitMoment(typed);
        if (!day.isValid() || !zone.isEmpty() || time.isEmpty() || !readTime(time).isMidnight())
            return std::nullopt;
        days = {day, day.addDays(1)};
    }
    const bool isOneDay = days->first.addDays(1) == days->end;
    return FilterValue{.literal = dateLiteral(dialect, days->first),
                       .nextDay = isOneDay ? QString() : dateLiteral(dialect, days->end),
                       .rank = static_cast<double>(days->first.toJulianDay()),
                       .lastRank = static_cast<double>(days->end.toJulianDay() - 1)};
}

std::optional<FilterValue> readTimeOfDay(const Dialect &dialect, const QString &typed)
{
    const auto [time, finer] = readTime(narrow(typed));
    if (!time.isValid()) {
        const QString literal = durationLiteral(dialect, narrow(typed).replace(u'−', u'-'));
        return literal.isEmpty() ? std::nullopt : std::optional(FilterValue{.literal = literal});
    }
    return FilterValue{.literal = timeLiteral(dialect, time, finer),
                       .rank = static_cast<double>(time.msecsSinceStartOfDay()),
                       .lastRank = static_cast<double>(time.msecsSinceStartOfDay())};
}

} // namespace

std::optional<FilterValue> readFilterValue(const Dialect &dialect, FieldClass fieldClass,
                                           const QString &typed, QDate today)
{
    switch (fieldClass) {
    case FieldClass::Text:
        return FilterValue{.literal = textWithoutClauses(dialect, typed)};
    case FieldClass::Number:
        return readNumber(dialect, typed);
    case FieldClass::Boolean:
        return readBoolean(typed);
    case FieldClass::Date:
        return readDate(dialect, typed, today);
    case FieldClass::Time:
        return readTimeOfDay(dialect, typed);
    case FieldClass::Moment:
        return readMoment(dialect, typed, today);
    case FieldClass::Other:
        return std::nullopt;
    }
    Q_UNREACHABLE();
}

std::optional<QString> plainValue(FieldClass fieldClass, const QString &typed, QDate today)
{
    switch (fieldClass) {
    case FieldClass::Text:
        return typed;
    case FieldClass::Number:
        return plainNumber(typed);
    case FieldClass::Boolean:
        if (const auto isTrue = plainBoolean(typed))
            return *isTrue ? u"True"_s : u"False"_s;
        return std::nullopt;
    case FieldClass::Date:
    case FieldClass::Moment:
        return plainMoment(typed, today);
    case FieldClass::Time: {
        const TypedTime time = readTime(narrow(typed));
        return time.time.isValid() ? std::optional(plainTime(time)) : std::nullopt;
    }
    case FieldClass::Other:
        return std::nullopt;
    }
    Q_UNREACHABLE();
}

QString valueInWords(FieldClass fieldClass, const QString &typed)
{
    const auto isTrue = fieldClass == FieldClass::Boolean ? plainBoolean(typed) : std::nullopt;
    if (!isTrue)
        return typed;
    return *isTrue ? FilterTexts::Yes : FilterTexts::No;
}

std::optional<int> readFilterCount(const QString &typed)
{
    bool isNumber = false;
    const int count = narrow(typed).toInt(&isNumber);
    return isNumber && count >= 1 ? std::optional(count) : std::nullopt;
}

QDate dayOf(const QString &typed)
{
    return splitMoment(typed).day;
}

bool hasTimeOfDay(const QString &typed)
{
    const MomentParts parts = splitMoment(typed);
    const TypedTime typedTime = readTime(parts.time);
    return parts.day.isValid() && typedTime.time.isValid() && !typedTime.isMidnight();
}

QString whyNoFilterValue(FieldClass fieldClass, const QString &typed)
{
    if (typed.trimmed().isEmpty())
        return FilterTexts::NoValue;
    switch (fieldClass) {
    case FieldClass::Number:
        return FilterTexts::NoNumber.arg(typed);
    case FieldClass::Boolean:
        return FilterTexts::NoBoolean.arg(typed);
    case FieldClass::Date:
        return FilterTexts::NoDate.arg(typed);
    case FieldClass::Time:
        return FilterTexts::NoTime.arg(typed);
    default:
        return FilterTexts::NoMoment.arg(typed);
    }
}

QStringList splitFilterList(const QString &typed)
{
    static const QRegularExpression item(
        uR"-(\s*(?:"((?:[^"]|"")*)"|([^%1]*?))[^\S\t\r\n]*(?:[%1]|\z))-"_s.arg(listSeparators));
    QStringList values;
    for (auto found = item.globalMatch(typed); found.hasNext();) {
        const auto match = found.next();
        QString value = match.captured(1).replace("\"\""_L1, "\""_L1) + match.captured(2);
        if (!value.isEmpty())
            values.append(value);
    }
    return values;
}

QString filterListItem(const QString &value)
{
    static const QRegularExpression special(uR"([%1"])"_s.arg(listSeparators));
    const bool isPlain = !value.contains(special) && value.trimmed() == value;
    return isPlain ? value : u'"' + QString(value).replace(u'"', "\"\""_L1) + u'"';
}

} // namespace KOVAVSFDataGridLib
