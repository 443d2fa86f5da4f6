#include "ado/providers/access/functions/AccessFormat.h"

#include "ado/ValueText.h"

#include <QtCore/QLocale>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB::AccessFormat {

namespace {

struct Named
{
    QLatin1StringView name;
    QLatin1StringView pattern;
};

QString resolved(const QString &pattern, const Named *first, const Named *last)
{
    const Named *found = std::find_if(first, last, [&](const Named &named) {
        return pattern.compare(named.name, Qt::CaseInsensitive) == 0;
    });
    return found == last ? pattern : QString(found->pattern);
}

QString partText(const QDateTime &moment, QChar letter, qsizetype count, bool isBehindHour)
{
    const QLocale english = QLocale::c();
    const QString digits(count > 1 ? 2 : 1, letter);
    switch (letter.unicode()) {
    case u'y':
        return moment.toString(count > 2 ? u"yyyy"_s : u"yy"_s);
    case u'm':
        if (isBehindHour)
            return moment.toString(digits);
        return english.toString(moment, QString(std::min<qsizetype>(count, 4), u'M'));
    case u'd':
        return english.toString(moment, QString(std::min<qsizetype>(count, 4), u'd'));
    case u'h':
        return moment.toString(QString(digits.size(), u'H'));
    case u'n':
        return moment.toString(QString(digits.size(), u'm'));
    default:
        return moment.toString(digits);
    }
}

} // namespace

QString date(const QDateTime &moment, const QString &given)
{
    static constexpr Named names[] = {{"Short Date"_L1, "yyyy-mm-dd"_L1},
                                      {"Medium Date"_L1, "dd-mmm-yy"_L1},
                                      {"Long Date"_L1, "dddd, mmmm d, yyyy"_L1},
                                      {"Short Time"_L1, "hh:nn"_L1},
                                      {"Long Time"_L1, "hh:nn:ss"_L1}};
    const QString pattern = resolved(given, std::begin(names), std::end(names));
    QString text;
    bool isBehindHour = false;
    for (qsizetype i = 0; i < pattern.size();) {
        const QChar letter = pattern.at(i).toLower();
        qsizetype end = i + 1;
        while (end < pattern.size() && pattern.at(end).toLower() == letter)
            ++end;
        if (u"ymdhns"_s.contains(letter)) {
            text += partText(moment, letter, end - i, isBehindHour);
            isBehindHour = letter == u'h';
        } else {
            text += pattern.mid(i, end - i);
        }
        i = end;
    }
    return text;
}

QString number(double value, const QString &given)
{
    static constexpr Named names[] = {{"Fixed"_L1, "0.00"_L1},
                                      {"Standard"_L1, "#,##0.00"_L1},
                                      {"Currency"_L1, "#,##0.00"_L1},
                                      {"Percent"_L1, "0.00%"_L1}};
    const QString pattern = resolved(given, std::begin(names), std::end(names));
    const auto isDigit = [](QChar c) { return c == u'0' || c == u'#'; };
    const auto isPart = [&](QChar c) { return isDigit(c) || c == u'.' || c == u','; };
    const auto first = std::find_if(pattern.begin(), pattern.end(), isDigit);
    if (first == pattern.end())
        return ValueText(value);
    const auto last = std::find_if_not(first, pattern.end(), isPart);
    const QString digits(first, last - first);
    const qsizetype point = digits.indexOf(u'.');
    const qsizetype decimals = point < 0 ? 0 : digits.size() - point - 1;
    const qsizetype wanted = point < 0 ? 0 : digits.mid(point + 1).lastIndexOf(u'0') + 1;

    QLocale locale = QLocale::c();
    locale.setNumberOptions(digits.contains(u',') ? QLocale::DefaultNumberOptions
                                                  : QLocale::OmitGroupSeparator);
    QString text =
        locale.toString(pattern.contains(u'%') ? value * 100 : value, 'f', static_cast<int>(decimals));
    for (qsizetype spare = decimals - wanted; spare > 0 && text.endsWith(u'0'); --spare)
        text.chop(1);
    if (text.endsWith(u'.'))
        text.chop(1);
    // Zeros before the decimal point set the minimum number of digits.
    const qsizetype whole = digits.left(point < 0 ? digits.size() : point).count(u'0');
    const qsizetype shownWhole = text.indexOf(u'.') < 0 ? text.size() : text.indexOf(u'.');
    if (!digits.contains(u',') && value >= 0 && shownWhole < whole)
        text.prepend(QString(whole - shownWhole, u'0'));
    return QString(pattern.begin(), first - pattern.begin()) + text + QString(last, pattern.end() - last);
}

} // namespace ADODB::AccessFormat
