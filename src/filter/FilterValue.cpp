#include "filter/FilterValue.h"

#include "filter/FilterTexts.h"
#include "sql/Literals.h"

#include <QtCore/QRegularExpression>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QString narrow(const QString &typed)
{
    return typed.normalized(QString::NormalizationForm_KC).trimmed();
}

std::optional<FilterValue> readNumber(const QString &typed)
{
    static const QRegularExpression form(uR"(\A\+?(-?[0-9]+(?:\.[0-9]+)?(?:[eE][-+]?[0-9]+)?)\z)"_s);
    const auto match = form.match(narrow(typed).replace(u'−', u'-'));
    if (!match.hasMatch())
        return std::nullopt;
    // Written as typed, so that no digit of a long number is lost.
    return FilterValue{.literal = match.captured(1), .rank = match.captured(1).toDouble()};
}

std::optional<FilterValue> readBoolean(const QString &typed)
{
    static const QStringList yes{FilterTexts::Yes, u"true"_s, u"yes"_s, u"1"_s, u"-1"_s, u"真"_s};
    static const QStringList no{FilterTexts::No, u"false"_s, u"no"_s, u"0"_s, u"假"_s};
    const QString text = narrow(typed).toLower();
    if (!yes.contains(text) && !no.contains(text))
        return std::nullopt;
    return FilterValue{.isTrue = yes.contains(text)};
}

// Invalid when the text is no day.
QDate readDate(const QString &text)
{
    static const QRegularExpression form(
        uR"(\A([0-9]{4})(?:[-/.年]([0-9]{1,2})[-/.月]([0-9]{1,2})日?|([0-9]{2})([0-9]{2}))\z)"_s);
    const auto match = form.match(text);
    const int first = match.lastCapturedIndex() == 5 ? 4 : 2;
    return match.hasMatch() ? QDate(match.captured(1).toInt(), match.captured(first).toInt(),
                                    match.captured(first + 1).toInt())
                            : QDate();
}

QTime readTime(const QString &text)
{
    static const QRegularExpression form(
        uR"(\A([0-9]{1,2}):([0-9]{2})(?::([0-9]{2})(?:\.([0-9]{1,3}))?)?\z)"_s);
    const auto match = form.match(text);
    return match.hasMatch()
               ? QTime(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt(),
                       match.captured(4).leftJustified(3, u'0').toInt())
               : QTime();
}

double rankOf(const QDateTime &moment)
{
    return static_cast<double>(moment.toMSecsSinceEpoch());
}

struct DayAndRest
{
    QDate day; // invalid when the text does not begin with one
    QString rest;
};

DayAndRest splitMoment(const QString &typed)
{
    static const QRegularExpression form(u"\\A([^ T]*)(?:[ T]+(.*))?\\z"_s);
    const auto match = form.match(narrow(typed));
    return {readDate(match.captured(1)), match.captured(2)};
}

std::optional<FilterValue> readMoment(const Dialect &dialect, const QString &typed)
{
    const auto [day, rest] = splitMoment(typed);
    if (!day.isValid())
        return std::nullopt;
    if (rest.isEmpty()) {
        return FilterValue{.literal = dateLiteral(dialect, day),
                           .nextDay = dateLiteral(dialect, day.addDays(1)),
                           .rank = rankOf(day.startOfDay(Qt::UTC))};
    }
    const QTime time = readTime(rest);
    if (!time.isValid())
        return std::nullopt;
    const QDateTime moment(day, time, Qt::UTC);
    return FilterValue{.literal = momentLiteral(dialect, moment), .rank = rankOf(moment)};
}

std::optional<FilterValue> readDay(const Dialect &dialect, const QString &typed)
{
    const auto [day, rest] = splitMoment(typed);
    if (!day.isValid() || (!rest.isEmpty() && readTime(rest) != QTime(0, 0)))
        return std::nullopt;
    return FilterValue{.literal = dateLiteral(dialect, day), .rank = static_cast<double>(day.toJulianDay())};
}

std::optional<FilterValue> readTimeOfDay(const Dialect &dialect, const QString &typed)
{
    const QTime time = readTime(narrow(typed));
    if (!time.isValid())
        return std::nullopt;
    return FilterValue{.literal = timeLiteral(dialect, time),
                       .rank = static_cast<double>(time.msecsSinceStartOfDay())};
}

} // namespace

std::optional<FilterValue> readFilterValue(const Dialect &dialect, FieldClass fieldClass,
                                           const QString &typed)
{
    switch (fieldClass) {
    case FieldClass::Text:
        return FilterValue{.literal = textWithoutClauses(dialect, typed)};
    case FieldClass::Number:
        return readNumber(typed);
    case FieldClass::Boolean:
        return readBoolean(typed);
    case FieldClass::Date:
        return readDay(dialect, typed);
    case FieldClass::Time:
        return readTimeOfDay(dialect, typed);
    case FieldClass::Moment:
        return readMoment(dialect, typed);
    case FieldClass::Other:
        return std::nullopt;
    }
    Q_UNREACHABLE();
}

QDate dayOf(const QString &typed)
{
    return splitMoment(typed).day;
}

bool hasTimeOfDay(const QString &typed)
{
    const auto [day, rest] = splitMoment(typed);
    const QTime time = readTime(rest);
    return day.isValid() && time.isValid() && time != QTime(0, 0);
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
    static const QRegularExpression item(uR"-(\s*(?:"((?:[^"]|"")*)"|([^,，]*?))\s*(?:[,，]|\z))-"_s);
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
    const bool isPlain =
        !value.contains(u',') && !value.contains(u'，') && !value.contains(u'"') && value.trimmed() == value;
    return isPlain ? value : u'"' + QString(value).replace(u'"', "\"\""_L1) + u'"';
}

} // namespace KOVAVSFDataGridLib
