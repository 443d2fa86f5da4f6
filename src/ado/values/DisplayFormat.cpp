#include "ado/values/DisplayFormat.h"

#include "ado/Texts.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace ADODB {

using namespace Qt::StringLiterals;

namespace {

const QString yesNo = u"是/否"_s;
const QString box = u"☑/☐"_s;

// Digit by digit, because a decimal may have more digits than a double.
void round(QString &whole, QString &fraction, int decimals)
{
    if (fraction.size() <= decimals) {
        fraction += QString(decimals - fraction.size(), u'0');
        return;
    }
    const bool isUp = fraction.at(decimals) >= u'5';
    fraction.truncate(decimals);
    if (!isUp)
        return;
    QString digits = whole + fraction;
    qsizetype place = digits.size() - 1;
    while (place >= 0 && digits.at(place) == u'9')
        digits[place--] = u'0';
    if (place >= 0)
        digits[place] = QChar(digits.at(place).unicode() + 1);
    else
        digits.prepend(u'1');
    whole = digits.chopped(decimals);
    fraction = digits.last(decimals);
}

// What a number lacks to have that many decimals; nothing for a text that is none, or has them.
struct Lack
{
    bool isPoint = false;
    qsizetype zeros = 0;
};

// Most cells of a grid go through this, so they are read once.
template<typename Character>
Lack lackOf(const Character *text, qsizetype size, int decimals)
{
    qsizetype point = -1;
    for (qsizetype i = size > 0 && text[0] == '-' ? 1 : 0; i < size; ++i) {
        if (text[i] == '.' && point < 0)
            point = i;
        else if (text[i] < '0' || text[i] > '9')
            return {};
    }
    if (size == 0 || text[size - 1] < '0')
        return {};
    const qsizetype missing = decimals - (point < 0 ? 0 : size - point - 1);
    return missing > 0 ? Lack{point < 0, missing} : Lack();
}

QString padded(const QString &text, int decimals)
{
    const Lack lack = lackOf(text.utf16(), text.size(), decimals);
    return lack.zeros == 0 ? text : text + (lack.isPoint ? u"."_s : QString()) + QString(lack.zeros, u'0');
}

QString withThousands(const QString &whole)
{
    QString grouped;
    for (qsizetype i = 0; i < whole.size(); ++i) {
        if (i > 0 && (whole.size() - i) % 3 == 0)
            grouped += u',';
        grouped += whole.at(i);
    }
    return grouped;
}

QString asTruth(const QString &text, const QString &yes, const QString &no)
{
    if (text == "True"_L1 || text == "1"_L1 || text == "-1"_L1)
        return yes;
    return text == "False"_L1 || text == "0"_L1 ? no : text;
}

} // namespace

std::optional<DisplayFormat> DisplayFormat::fromText(const QString &text)
{
    if (text.isEmpty())
        return DisplayFormat();
    if (text == yesNo)
        return DisplayFormat{.truth = Truth::YesNo};
    if (text == box)
        return DisplayFormat{.truth = Truth::Box};
    static const QRegularExpression number(u"\\A(#,##)?(?:0(?:\\.(0{1,%1}))?)?\\z"_s.arg(mostDecimals));
    const QRegularExpressionMatch match = number.match(text);
    if (!match.hasMatch())
        return std::nullopt;
    const bool hasThousands = match.capturedLength(1) > 0;
    const bool hasDecimals = text.contains(u'0');
    return DisplayFormat{hasThousands, hasDecimals ? static_cast<int>(match.capturedLength(2)) : -1};
}

QString DisplayFormat::toText() const
{
    if (truth != Truth::Word)
        return truth == Truth::YesNo ? yesNo : box;
    QString text = hasThousands ? u"#,##"_s : QString();
    if (decimals >= 0)
        text += u'0';
    if (decimals > 0)
        text += u'.' + QString(decimals, u'0');
    return text;
}

QString DisplayFormat::applied(const QString &text) const
{
    if (truth == Truth::YesNo)
        return asTruth(text, Texts::yes, Texts::no);
    if (truth == Truth::Box)
        return asTruth(text, box.first(1), box.last(1));
    if (isNone())
        return text;
    if (!hasThousands && decimals < 0)
        return padded(text, leastDecimals);
    static const QRegularExpression number(u"\\A(-?)([0-9]+)(?:\\.([0-9]+))?([eE][-+]?[0-9]+)?\\z"_s);
    QRegularExpressionMatch match = number.match(text);
    if (!match.hasMatch())
        return text;
    if (match.capturedLength(4) > 0) {
        constexpr double largest = 1e15; // below this, all integer digits of a double are exact
        const double value = text.toDouble();
        if (decimals < 0 || value > largest || value < -largest)
            return text;
        match = number.match(QString::number(value, 'f', decimals));
    }
    QString whole = match.captured(2);
    QString fraction = match.captured(3);
    if (decimals >= 0)
        round(whole, fraction, decimals);
    else
        fraction = fraction.leftJustified(leastDecimals, u'0');
    const auto isZero = [](QChar digit) { return digit == u'0'; };
    const bool isNothing = std::ranges::all_of(whole, isZero) && std::ranges::all_of(fraction, isZero);
    return (isNothing ? QString() : match.captured(1)) + (hasThousands ? withThousands(whole) : whole) +
           (fraction.isEmpty() ? QString() : u'.' + fraction);
}

void DisplayFormat::pad(QByteArray &text) const
{
    const Lack lack = lackOf(text.constData(), text.size(), leastDecimals);
    if (lack.isPoint)
        text.append('.');
    text.append(lack.zeros, '0');
}

} // namespace ADODB
