#include "query/modQNVSFHFDataMain.h"

#include "query/CharText.h"
#include "query/derivation/SqlText.h"
#include "sql/Brackets.h"

#include <stdexcept>

namespace KOVAVSFDataGridLib {

using namespace CharText;

namespace {

constexpr auto invalidArgument = "Invalid procedure call or argument";
// A statement is taken to begin with SELECT and one blank, so its list begins here.
constexpr qsizetype listPosition = 8;

// The trimmed statement, or an empty text when it is no SELECT.
QString selectStatement(const QString &statement)
{
    const QString trimmed = trim(statement);
    return findUpper(trimmed, QStringLiteral("SELECT")) > 0 ? trimmed : QString();
}

} // namespace

std::optional<ParseFailure> ParseSQLFieldList(const QString &statement, AllDBType database)
{
    QString text = selectStatement(statement);
    if (text.isEmpty())
        return std::nullopt;
    if (database != dbOracle) {
        if (const auto where = findUpper(text, QStringLiteral(" WHERE ")); where > 0)
            text = First(text, where - 1);
    }

    ParsedStatements &parsed = SharedValues::instance().parsed;
    parsed.strSQLTable = GetSQLTableName(text);
    const auto blankBeforeFrom = findUpper(text, QStringLiteral(" FROM "));
    if (blankBeforeFrom < listPosition)
        return ParseFailure{QStringLiteral("KOVAVSFDataGridLib"), QString::fromLatin1(invalidArgument)};
    const QString list = First(From(text, listPosition), blankBeforeFrom - listPosition);

    ClearSQLFieldList();
    QStringList items = list.split(u',');
    const QString last = items.takeLast();
    for (const QString &written : items) {
        const QString item = trim(written);
        parsed.colSQLFields.append(database == dbOracle ? item : withoutBrackets(item));
    }
    // The last item differs from the others: elsewhere than on Oracle it keeps its blanks, which also shield
    // its "[".
    if (!last.contains(u'*'))
        parsed.colSQLFields.append(database == dbOracle ? trim(last) : withoutBrackets(last));
    return std::nullopt;
}

void ClearSQLFieldList()
{
    SharedValues::instance().parsed.colSQLFields.clear();
}

void ParseSelFieldList(const QString &statement)
{
    const QString text = selectStatement(statement);
    if (text.isEmpty())
        return;
    const auto blankBeforeFrom = findUpper(text, QStringLiteral(" FROM "));
    if (blankBeforeFrom < listPosition)
        throw std::invalid_argument(invalidArgument);
    const QString list = First(From(text, listPosition), blankBeforeFrom - listPosition);

    QStringList &fields = SharedValues::instance().parsed.colSelFields;
    fields.clear();
    QStringList items = list.split(u',');
    const bool isListCut = items.last().isEmpty();
    if (isListCut)
        items.removeLast();
    for (const QString &item : items)
        fields.append(trim(item));
    if (isListCut)
        throw std::invalid_argument(invalidArgument);
}

} // namespace KOVAVSFDataGridLib
