#include "ado/providers/access/sql/AccessOrder.h"

#include "ado/providers/access/sql/AccessCollation.h"

#include <algorithm>

namespace ADODB {

namespace {

QLocale localeOf(quint16 language)
{
    switch (language) {
    case 0x0804:
    case 0x1004:
        return {QLocale::Chinese, QLocale::China};
    case 0x0404:
    case 0x0c04:
    case 0x1404:
        return {QLocale::Chinese, QLocale::Taiwan};
    case 0x0411:
        return {QLocale::Japanese, QLocale::Japan};
    case 0x0412:
        return {QLocale::Korean, QLocale::SouthKorea};
    default:
        return {QLocale::English, QLocale::UnitedStates};
    }
}

// Returns the lower-case form of a letter whose byte order equals its sort order in all these languages,
// whatever follows it; 0 for any other character.
char plain(char c)
{
    if (c >= 'A' && c <= 'Z')
        return static_cast<char>(c + ('a' - 'A'));
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == ' ' ? c : '\0';
}

QString folded(QByteArrayView utf8)
{
    return QString::fromUtf8(utf8).toCaseFolded();
}

bool isChinese(const QString &text, qsizetype at)
{
    if (at > 0 && text.at(at).isLowSurrogate())
        --at;
    const QChar unit = text.at(at);
    const bool isPair = unit.isHighSurrogate() && at + 1 < text.size();
    return QChar::script(isPair ? QChar::surrogateToUcs4(unit, text.at(at + 1)) : unit.unicode()) ==
           QChar::Script_Han;
}

// Chinese sorts after all other scripts; some collators reverse this. Negative, zero or positive by the first
// character that differs.
int compareScripts(const QString &a, const QString &b)
{
    const auto difference = std::mismatch(a.begin(), a.end(), b.begin(), b.end());
    if (difference.first == a.end() || difference.second == b.end())
        return 0;
    const qsizetype at = difference.first - a.begin();
    return int{isChinese(a, at)} - int{isChinese(b, at)};
}

} // namespace

AccessOrder::AccessOrder(quint16 language) : m_collator(localeOf(language))
{
    m_collator.setCaseSensitivity(Qt::CaseInsensitive);
}

int AccessOrder::compare(QByteArrayView a, QByteArrayView b) const
{
    const qsizetype shorter = std::min(a.size(), b.size());
    qsizetype i = 0;
    while (i < shorter && plain(a[i]) == plain(b[i]) && plain(a[i]) != '\0')
        ++i;
    if (i < shorter && plain(a[i]) != '\0' && plain(b[i]) != '\0')
        return plain(a[i]) - plain(b[i]);
    // Texts that are equal only to the collator are ordered by code point.
    const int byCodePoints = AccessCollation::compareTexts(a, b);
    if (i == shorter || byCodePoints == 0)
        return byCodePoints;
    const QString textA = folded(a);
    const QString textB = folded(b);
    if (const int byScript = compareScripts(textA, textB); byScript != 0)
        return byScript;
    const int byLanguage = m_collator.compare(textA, textB);
    return byLanguage != 0 ? byLanguage : byCodePoints;
}

} // namespace ADODB
