#include "filter/conditions/FilterDays.h"

#include "filter/FilterTexts.h"

#include <QtCore/QRegularExpression>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

std::optional<DayRange> rangeOf(QDate first, QDate end)
{
    return first.isValid() && end.isValid() ? std::optional(DayRange{first, end}) : std::nullopt;
}

std::optional<DayRange> dayFrom(QDate day)
{
    return rangeOf(day, day.addDays(1));
}

std::optional<DayRange> monthsFrom(QDate first, int months)
{
    return rangeOf(first, first.addMonths(months));
}

QDate monthOf(QDate day)
{
    return {day.year(), day.month(), 1};
}

std::optional<DayRange> weekOf(QDate day)
{
    const QDate monday = day.addDays(1 - day.dayOfWeek());
    return rangeOf(monday, monday.addDays(7));
}

std::optional<DayRange> quarterOf(QDate day)
{
    constexpr int months = 3;
    return monthsFrom({day.year(), (day.month() - 1) / months * months + 1, 1}, months);
}

std::optional<DayRange> yearOf(int year)
{
    return rangeOf({year, 1, 1}, {year + 1, 1, 1});
}

// The days that a word means. Synonyms and the English words are accepted in every language.
struct RelativeWord
{
    Text word;
    QStringList others;
    std::optional<DayRange> (*days)(QDate today);
};

const std::vector<RelativeWord> &relativeWords()
{
    static const std::vector<RelativeWord> words{
        {FilterTexts::Today, {u"今日"_s, u"today"_s}, [](QDate today) { return dayFrom(today); }},
        {FilterTexts::Yesterday,
         {u"昨日"_s, u"yesterday"_s},
         [](QDate today) { return dayFrom(today.addDays(-1)); }},
        {FilterTexts::ThisWeek, {u"这周"_s, u"this week"_s}, [](QDate today) { return weekOf(today); }},
        {FilterTexts::LastWeek,
         {u"上个周"_s, u"last week"_s},
         [](QDate today) { return weekOf(today.addDays(-7)); }},
        {FilterTexts::ThisMonth,
         {u"这个月"_s, u"this month"_s},
         [](QDate today) { return monthsFrom(monthOf(today), 1); }},
        {FilterTexts::LastMonth,
         {u"上个月"_s, u"last month"_s},
         [](QDate today) { return monthsFrom(monthOf(today).addMonths(-1), 1); }},
        {FilterTexts::ThisQuarter,
         {u"本季度"_s, u"this quarter"_s},
         [](QDate today) { return quarterOf(today); }},
        {FilterTexts::ThisYear,
         {u"本年"_s, u"this year"_s},
         [](QDate today) { return yearOf(today.year()); }},
        {FilterTexts::LastYear,
         {u"上年"_s, u"last year"_s},
         [](QDate today) { return yearOf(today.year() - 1); }},
    };
    return words;
}

// N days up to and including today.
std::optional<DayRange> readLastDays(const QString &text, QDate today)
{
    static const QRegularExpression form(
        u"\\A(?:(?:最近|近) *([0-9]{1,5}) *天|last +([0-9]{1,5}) +days?)\\z"_s,
        QRegularExpression::CaseInsensitiveOption);
    const auto match = form.match(text);
    const int days = match.captured(match.lastCapturedIndex()).toInt();
    if (days < 1)
        return std::nullopt;
    return rangeOf(today.addDays(1 - days), today.addDays(1));
}

std::optional<DayRange> readRelative(const QString &text, QDate today)
{
    for (const RelativeWord &word : relativeWords()) {
        if (word.word.is(text) || word.others.contains(text.toLower()))
            return word.days(today);
    }
    return readLastDays(text, today);
}

std::optional<DayRange> readMonth(const QString &text, QDate today)
{
    static const QRegularExpression form(
        uR"(\A(?:([0-9]{4})(?:[-/.]([0-9]{1,2})|年([0-9]{1,2})月)|([0-9]{1,2})月)\z)"_s);
    const auto match = form.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const QString year = match.captured(1);
    const int month = (match.captured(2) + match.captured(3) + match.captured(4)).toInt();
    return monthsFrom({year.isEmpty() ? today.year() : year.toInt(), month, 1}, 1);
}

std::optional<DayRange> readYear(const QString &text)
{
    static const QRegularExpression form(u"\\A([0-9]{4})年?\\z"_s);
    const auto match = form.match(text);
    return match.hasMatch() ? yearOf(match.captured(1).toInt()) : std::nullopt;
}

std::optional<DayRange> readDay(const QString &text)
{
    static const QRegularExpression form(
        uR"(\A([0-9]{4})(?:[-/.年]([0-9]{1,2})[-/.月]([0-9]{1,2})日?|([0-9]{2})([0-9]{2}))\z)"_s);
    const auto match = form.match(text);
    const int first = match.lastCapturedIndex() == 5 ? 4 : 2;
    return match.hasMatch() ? dayFrom({match.captured(1).toInt(), match.captured(first).toInt(),
                                       match.captured(first + 1).toInt()})
                            : std::nullopt;
}

} // namespace

QString narrow(const QString &typed)
{
    return typed.normalized(QString::NormalizationForm_KC).trimmed();
}

std::optional<DayRange> readDays(const QString &typed, QDate today)
{
    const QString text = narrow(typed);
    if (const auto day = readDay(text))
        return day;
    if (const auto month = readMonth(text, today))
        return month;
    if (const auto year = readYear(text))
        return year;
    return readRelative(text, today);
}

QStringList relativeDayWords()
{
    QStringList words;
    for (const RelativeWord &word : relativeWords())
        words.append(word.word());
    return words << FilterTexts::LastDays.arg(7) << FilterTexts::LastDays.arg(30);
}

} // namespace KOVAVSFDataGridLib
