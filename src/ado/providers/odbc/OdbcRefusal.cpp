#include "ado/providers/odbc/OdbcRefusal.h"

#include "ado/Error.h"
#include "ado/SqlScanner.h"
#include "ado/Texts.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

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

// DELETE FROM … as the main statement behind a WITH list or within one. Words that follow anything but a
// parenthesis can be names.
bool isChange(const SqlScanner &statement, qsizetype index)
{
    return isOneOf(statement, index, {u"INSERT", u"UPDATE", u"DELETE", u"MERGE"}) &&
           (statement.isSymbol(index - 1, u'(') || statement.isSymbol(index - 1, u')')) &&
           statement.isName(index + 1);
}

// SELECT … INTO makes a table, or a file on the server. Written behind a dot INTO is a column's name.
bool isInto(const SqlScanner &statement, qsizetype index)
{
    return statement.isWord(index, u"INTO") && !statement.isSymbol(index - 1, u'.');
}

bool reads(const SqlScanner &statement, qsizetype first)
{
    if (!isOneOf(statement, first,
                 {u"SELECT", u"WITH", u"VALUES", u"TABLE", u"SHOW", u"DESCRIBE", u"DESC", u"EXPLAIN"}))
        return false;
    for (qsizetype i = first; i < statement.count(); ++i) {
        // EXPLAIN ANALYZE runs the statement that it explains.
        if (isChange(statement, i) || isInto(statement, i) ||
            (isOneOf(statement, first, {u"EXPLAIN", u"DESCRIBE", u"DESC"}) &&
             isOneOf(statement, i, {u"ANALYZE", u"ANALYSE"})))
            return false;
    }
    return true;
}

} // namespace

void refuseUnlessQuery(const SqlScanner &statement)
{
    qsizetype first = 0;
    while (statement.isSymbol(first, u'('))
        ++first;
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
