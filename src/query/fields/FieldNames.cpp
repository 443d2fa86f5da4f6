#include "query/fields/FieldNames.h"

#include "query/CharText.h"
#include "sql/Brackets.h"

namespace KOVAVSFDataGridLib {

using namespace CharText;
using namespace Qt::StringLiterals;

namespace {

// "DISTINCT T.A" becomes T.A.
QString withoutListWords(QString item)
{
    for (const auto &[word, spaces] :
         {std::pair(u"DISTINCT "_s, 1), std::pair(u"ALL "_s, 1), std::pair(u"TOP "_s, 2)}) {
        if (findUpper(item, word) == 1)
            item = trim(item.section(u' ', spaces, -1, QString::SectionSkipEmpty));
    }
    return item;
}

} // namespace

QString shortFieldName(const QString &writtenName)
{
    const auto dot = writtenName.indexOf(u'.');
    return withoutBrackets(writtenName.mid(dot + 1));
}

QStringList writtenFields(const QString &statement)
{
    constexpr qsizetype selectLength = 7;
    const QString trimmed = trim(statement);
    const auto from = findUpper(trimmed, QStringLiteral(" FROM "));
    if (from <= selectLength)
        return {};
    QStringList items = trimmed.mid(selectLength, from - 1 - selectLength).split(u',');
    for (QString &item : items)
        item = trim(item);
    items.front() = withoutListWords(items.front());
    return items;
}

} // namespace KOVAVSFDataGridLib
