#include "query/FieldNames.h"

#include "query/CharText.h"
#include "query/SqlText.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace CharText;
using namespace Qt::StringLiterals;

namespace {

QString WithoutBrackets(const QString &name)
{
    return CutStringEnds(CutStringEnds(name, QStringLiteral("["), 1), QStringLiteral("]"), 2);
}

bool MixesCapitalAndSmallLetters(const QString &name)
{
    const auto isCapital = [](QChar c) { return c >= u'A' && c <= u'Z'; };
    const auto isSmall = [](QChar c) { return c >= u'a' && c <= u'z'; };
    return std::any_of(name.cbegin(), name.cend(), isCapital) &&
           std::any_of(name.cbegin(), name.cend(), isSmall);
}

QString Enclosed(QChar opening, QString name, QChar closing)
{
    return opening + name.replace(closing, QString(2, closing)) + closing;
}

// "DISTINCT T.A" lists T.A.
QString WithoutListWords(QString item)
{
    for (const auto &[word, blanks] :
         {std::pair(u"DISTINCT "_s, 1), std::pair(u"ALL "_s, 1), std::pair(u"TOP "_s, 2)}) {
        if (FindUpper(item, word) == 1)
            item = Trim(item.section(u' ', blanks, -1, QString::SectionSkipEmpty));
    }
    return item;
}

} // namespace

QString ShortFieldName(const QString &writtenName)
{
    const auto dot = writtenName.indexOf(u'.');
    return WithoutBrackets(writtenName.mid(dot + 1));
}

QString LastNamePart(const QString &writtenName)
{
    const QChar last = writtenName.isEmpty() ? QChar() : writtenName.back();
    const QChar opening = last == u']' ? QChar(u'[') : last == u'"' ? last : QChar();
    if (opening.isNull())
        return writtenName.mid(writtenName.lastIndexOf(u'.') + 1);
    const QString name = writtenName.chopped(1);
    const auto open = name.lastIndexOf(opening);
    const bool isAlias = open > 0 && name.at(open - 1) != u'.';
    return isAlias ? QString() : name.mid(open + 1);
}

QStringList WrittenFields(const QString &statement)
{
    constexpr qsizetype selectLength = 7;
    const QString trimmed = Trim(statement);
    const auto from = FindUpper(trimmed, QStringLiteral(" FROM "));
    if (from <= selectLength)
        return {};
    QStringList items = trimmed.mid(selectLength, from - 1 - selectLength).split(u',');
    for (QString &item : items)
        item = Trim(item);
    items.front() = WithoutListWords(items.front());
    return items;
}

bool IsPlainName(const QString &name)
{
    const auto letters = name.toUcs4();
    const auto isInner = [](uint c) {
        return QChar::isLetterOrNumber(c) || c == '_' || c == '$' || c == '#';
    };
    return !letters.isEmpty() && (QChar::isLetter(letters.front()) || letters.front() == '_') &&
           std::all_of(letters.cbegin(), letters.cend(), isInner);
}

QString QuotedFieldName(AllDBType database, const QString &name)
{
    const bool needsQuotes =
        !IsPlainName(name) || (database == dbOracle && MixesCapitalAndSmallLetters(name));
    if (!needsQuotes)
        return name;
    return database == dbOracle ? Enclosed(u'"', name, u'"') : Enclosed(u'[', name, u']');
}

QString BracketsToQuotes(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool opens = c == u'[' || c == u'\'' || c == u'"';
        const auto end = opens ? text.indexOf(c == u'[' ? QChar(u']') : c, i + 1) : -1;
        if (end < 0) {
            result += c;
            continue;
        }
        if (c == u'[')
            result += Enclosed(u'"', text.mid(i + 1, end - i - 1), u'"');
        else
            result += QStringView(text).mid(i, end + 1 - i);
        i = end;
    }
    return result;
}

} // namespace KOVAVSFDataGridLib
