#include "query/conditions/SelectionText.h"

#include "query/CharText.h"
#include "query/QueryTexts.h"
#include "query/derivation/SqlText.h"
#include "sql/Brackets.h"

#include <QtCore/QSet>

namespace KOVAVSFDataGridLib {

QString composeFieldList(const QList<ListedField> &rows)
{
    QStringList names;
    for (const ListedField &row : rows) {
        if (!row.isChecked)
            continue;
        if (!row.written.isEmpty()) {
            names.append(row.written);
            continue;
        }
        const bool isSpecial = row.name.contains(u' ') || row.name.contains(u'(');
        if (isSpecial && !hasBracket(row.name))
            names.append(inBrackets(row.name));
        else
            names.append(row.name);
    }
    return names.join(u',');
}

QList<bool> SetListFieldCheck(const QStringList &rowTexts, const QStringList &partFields)
{
    QSet<QString> asWritten;
    QSet<QString> withoutQuotes;
    for (const QString &field : partFields) {
        asWritten.insert(field);
        withoutQuotes.insert(CutStringEnds(field, QStringLiteral("\""), CutBoth));
    }
    QList<bool> checks;
    for (const QString &row : rowTexts)
        checks.append(asWritten.contains(inBrackets(row)) || withoutQuotes.contains(row));
    return checks;
}

SortTerm splitSortTerm(const QString &term)
{
    const auto descending = CharText::findUpper(term, QStringLiteral(" DESC"));
    if (descending == 0)
        return {term, QueryTexts::Ascending};
    return {CharText::First(term, descending - 1), QueryTexts::Descending};
}

QString composeSortList(const QList<SortTerm> &terms)
{
    QStringList written;
    for (const SortTerm &term : terms) {
        QString text = term.field;
        if (QueryTexts::Descending.is(term.orderWord))
            text += QStringLiteral(" DESC");
        written.append(text);
    }
    return written.join(u',');
}

} // namespace KOVAVSFDataGridLib
