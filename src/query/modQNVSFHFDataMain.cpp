#include "query/modQNVSFHFDataMain.h"

#include "query/CharText.h"
#include "query/derivation/SqlText.h"
#include "sql/Brackets.h"

#include <stdexcept>

namespace KOVAVSFDataGridLib {

using namespace CharText;

namespace {

constexpr auto invalidArgument = "Invalid procedure call or argument";
// A statement is assumed to begin with SELECT and one space, so the list begins here.
constexpr qsizetype listPosition = 8;

// The trimmed statement; empty if it is not a SELECT.
QString selectStatement(const QString &statement)
{
    const QString trimmed = trim(statement);
    return findUpper(trimmed, QStringLiteral("SELECT")) > 0 ? trimmed : QString();
}

} // namespace

std::optional<ParseFailure> ParsedStatements::ParseSQLFieldList(const QString &statement, AllDBType database)
{
    QString text = selectStatement(statement);
    if (text.isEmpty())
        return std::nullopt;
    if (readsBrackets(database)) {
        if (const auto where = findUpper(text, QStringLiteral(" WHERE ")); where > 0)
            text = First(text, where - 1);
    }

    strSQLTable = GetSQLTableName(text);
    const auto blankBeforeFrom = findUpper(text, QStringLiteral(" FROM "));
    if (blankBeforeFrom < listPosition)
        return ParseFailure{QStringLiteral("KOVAVSFDataGridLib"), QString::fromLatin1(invalidArgument)};
    const QString list = First(From(text, listPosition), blankBeforeFrom - listPosition);

    ClearSQLFieldList();
    QStringList items = list.split(u',');
    const QString last = items.takeLast();
    for (const QString &written : items) {
        const QString item = trim(written);
        colSQLFields.append(readsBrackets(database) ? withoutBrackets(item) : item);
    }
    // The last item is special: except on Oracle it
    // keeps its spaces, which also protect its "[".
    if (!last.contains(u'*'))
        colSQLFields.append(readsBrackets(database) ? withoutBrackets(last) : trim(last));
    return std::nullopt;
}

void ParsedStatements::ClearSQLFieldList()
{
    colSQLFields.clear();
}

void ParsedStatements::ParseSelFieldList(const QString &statement)
{
    const QString text = selectStatement(statement);
    if (text.isEmpty())
        return;
    const auto blankBeforeFrom = findUpper(text, QStringLiteral(" FROM "));
    if (blankBeforeFrom < listPosition)
        throw std::invalid_argument(invalidArgument);
    const QString list = First(From(text, listPosition), blankBeforeFrom - listPosition);

    colSelFields.clear();
    QStringList items = list.split(u',');
    const bool isListCut = items.last().isEmpty();
    if (isListCut)
        items.removeLast();
    for (const QString &item : items)
        colSelFields.append(trim(item));
    if (isListCut)
        throw std::invalid_argument(invalidArgument);
}

} // namespace KOVAVSFDataGridLib
