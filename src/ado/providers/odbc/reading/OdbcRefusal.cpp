#include "ado/providers/odbc/reading/OdbcRefusal.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/StrayCharacter.h"
#include "sql/SqlScanner.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

using KOVAVSFDataGridLib::SqlDialect;
using KOVAVSFDataGridLib::SqlToken;

namespace {

Error refusal(ProviderErrorEnum number, const QString &description)
{
    return Error(number, description, u"ODBC"_s, u"42000"_s);
}

bool isOneOf(const SqlScanner &statement, qsizetype index, std::initializer_list<QStringView> words)
{
    return std::any_of(words.begin(), words.end(),
                       [&](QStringView word) { return statement.isWord(index, word); });
}

// Excludes MERGE JOIN, which is a join method.
bool isMerge(const SqlScanner &statement, qsizetype index)
{
    return statement.isWord(index, u"MERGE") && statement.isName(index + 1) &&
           !isOneOf(statement, index + 1, {u"JOIN", u"UNION"});
}

// Finds DELETE FROM … as the main statement after a WITH list or within one. A word that does not follow a
// parenthesis can be a name.
bool isChange(const SqlScanner &statement, qsizetype index)
{
    return (isMerge(statement, index) || isOneOf(statement, index, {u"INSERT", u"UPDATE", u"DELETE"})) &&
           (statement.isSymbol(index - 1, u'(') || statement.isSymbol(index - 1, u')')) &&
           statement.isName(index + 1);
}

// SELECT … INTO creates a table, or a file on the server. After a dot, INTO is a column name.
bool isInto(const SqlScanner &statement, qsizetype index)
{
    return statement.isWord(index, u"INTO") && !statement.isSymbol(index - 1, u'.');
}

// Locks the rows that it reads, as FOR UPDATE does. MariaDB refuses only that in a session that reads.
bool isSharedLock(const SqlScanner &statement, qsizetype index)
{
    return statement.isWord(index, u"LOCK") && statement.isWord(index + 1, u"IN") &&
           statement.isWord(index + 2, u"SHARE") && statement.isWord(index + 3, u"MODE");
}

// SQL Server needs no separator between statements, not even a space after a number. Names like these words
// must be quoted.
bool beginsStatement(const SqlScanner &statement, qsizetype index)
{
    static constexpr QStringView words[] = {
        u"INSERT",    u"UPDATE",     u"DELETE",      u"EXEC",      u"EXECUTE",  u"CREATE",   u"ALTER",
        u"DROP",      u"TRUNCATE",   u"GRANT",       u"DENY",      u"REVOKE",   u"SET",      u"DECLARE",
        u"BEGIN",     u"COMMIT",     u"SAVE",        u"BULK",      u"ROLLBACK", u"USE",      u"IF",
        u"WHILE",     u"WAITFOR",    u"KILL",        u"BACKUP",    u"RESTORE",  u"SHUTDOWN", u"DBCC",
        u"WRITETEXT", u"UPDATETEXT", u"RECONFIGURE", u"CHECKPOINT"};
    const bool isNumber = statement.at(index).kind == SqlToken::Kind::Number;
    const QStringView text = statement.text(index);
    return isMerge(statement, index) ||
           std::any_of(std::begin(words), std::end(words), [&](QStringView word) {
               return isNumber ? text.endsWith(word, Qt::CaseInsensitive) : statement.isWord(index, word);
           });
}

// EXPLAIN ("analyze") …: PostgreSQL also accepts quoted options, and only PostgreSQL can decode all ways of
// quoting. The query itself can be in parentheses too.
bool hasQuotedOption(const SqlScanner &statement, qsizetype explain)
{
    if (!statement.isWord(explain, u"EXPLAIN") || !statement.isSymbol(explain + 1, u'(') ||
        statement.isSymbol(explain + 2, u'(') ||
        isOneOf(statement, explain + 2, {u"SELECT", u"WITH", u"VALUES", u"TABLE"}))
        return false;
    for (qsizetype i = explain + 2; i < statement.count() && !statement.isSymbol(i, u')'); ++i) {
        if (statement.at(i).kind == SqlToken::Kind::QuotedName)
            return true;
    }
    return false;
}

bool reads(const SqlScanner &statement, qsizetype first)
{
    if (!isOneOf(statement, first,
                 {u"SELECT", u"WITH", u"VALUES", u"TABLE", u"SHOW", u"DESCRIBE", u"DESC", u"EXPLAIN"}) ||
        hasQuotedOption(statement, first))
        return false;
    for (qsizetype i = first; i < statement.count(); ++i) {
        // EXPLAIN ANALYZE runs the statement that it explains.
        if (isChange(statement, i) || isInto(statement, i) || isSharedLock(statement, i) ||
            (statement.dialect() == SqlDialect::SqlServer && beginsStatement(statement, i)) ||
            (isOneOf(statement, first, {u"EXPLAIN", u"DESCRIBE", u"DESC"}) &&
             isOneOf(statement, i, {u"ANALYZE", u"ANALYSE"})))
            return false;
    }
    return true;
}

// The first word after any opening parentheses.
qsizetype firstWord(const SqlScanner &statement)
{
    qsizetype first = 0;
    while (statement.isSymbol(first, u'('))
        ++first;
    return first;
}

} // namespace

bool isExplainable(const SqlScanner &statement)
{
    return isOneOf(statement, firstWord(statement), {u"SELECT", u"WITH", u"VALUES", u"TABLE"});
}

void refuseUnlessQuery(const SqlScanner &statement)
{
    refuseStrayCharacter(statement, u"ODBC"_s);
    const qsizetype first = firstWord(statement);
    if (statement.count() == 0 || statement.isSymbol(first, u';'))
        throw refusal(dbErrInCommand, Texts::emptyStatement());
    for (qsizetype i = 0; i + 1 < statement.count(); ++i) {
        if (statement.isSymbol(i, u';'))
            throw refusal(dbErrMultipleStatements, Texts::secondStatement());
    }
    if (!reads(statement, first))
        throw refusal(dbErrPermissionDenied, Texts::notAQuery());
}

} // namespace ADODB
