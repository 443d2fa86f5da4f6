#include "ado/SimpleSelect.h"

#include "ado/SqlScanner.h"
#include "ado/Texts.h"

#include <algorithm>

namespace ADODB {

namespace {

bool isOneOf(const SqlScanner &statement, qsizetype index, std::initializer_list<QStringView> words)
{
    return std::any_of(words.begin(), words.end(),
                       [&](QStringView word) { return statement.isWord(index, word); });
}

// The words that can follow a table in a SELECT and therefore are no alias.
bool isAlias(const SqlScanner &statement, qsizetype index)
{
    return statement.isName(index) &&
           !isOneOf(statement, index,
                    {u"WHERE",  u"GROUP",     u"HAVING",  u"ORDER", u"LIMIT", u"WINDOW", u"UNION",
                     u"EXCEPT", u"INTERSECT", u"JOIN",    u"INNER", u"LEFT",  u"RIGHT",  u"FULL",
                     u"CROSS",  u"NATURAL",   u"INDEXED", u"NOT",   u"FETCH", u"OFFSET", u"FOR"});
}

qsizetype endOfParentheses(const SqlScanner &statement, qsizetype open)
{
    qsizetype close = open + 1;
    while (close < statement.count() && statement.at(close).depth > statement.at(open).depth)
        ++close;
    return close;
}

std::vector<SimpleSelect::FunctionCall> functionCalls(const SqlScanner &statement)
{
    std::vector<SimpleSelect::FunctionCall> calls;
    for (qsizetype i = 1; i < statement.count(); ++i) {
        if (!statement.isSymbol(i, u'('))
            continue;
        const qsizetype close = endOfParentheses(statement, i);
        if (statement.isWord(i + 1, u"SELECT") || statement.isWord(i + 1, u"WITH")) {
            i = close;
        } else if (statement.isName(i - 1)) {
            const int depth = statement.at(i).depth + 1;
            int arguments = close > i + 1 ? 1 : 0;
            for (qsizetype j = i + 1; j < close; ++j)
                arguments += statement.isSymbol(j, u',') && statement.at(j).depth == depth ? 1 : 0;
            calls.push_back({statement.name(i - 1), arguments});
        }
    }
    return calls;
}

// Why what surrounds the table folds or combines rows; empty when nothing does.
QString folding(const SqlScanner &statement)
{
    if (statement.isWord(1, u"DISTINCT"))
        return Texts::readOnlyDistinct();
    for (qsizetype i = 0; i < statement.count(); ++i) {
        if (statement.at(i).depth > 0)
            continue;
        if (isOneOf(statement, i, {u"UNION", u"EXCEPT", u"INTERSECT"}))
            return Texts::readOnlyCompound();
        if (isOneOf(statement, i, {u"GROUP", u"HAVING"}))
            return Texts::readOnlyGrouped();
    }
    return {};
}

qsizetype indexOfFrom(const SqlScanner &statement)
{
    qsizetype i = 1;
    while (i < statement.count() && !(statement.at(i).depth == 0 && statement.isWord(i, u"FROM")))
        ++i;
    return i;
}

} // namespace

SimpleSelect SimpleSelect::parse(const SqlScanner &statement)
{
    SimpleSelect select;
    if (!statement.isWord(0, u"SELECT")) {
        select.reason = Texts::readOnlyNoTable();
        return select;
    }
    select.reason = folding(statement);
    if (!select.reason.isEmpty())
        return select;

    const qsizetype from = indexOfFrom(statement);
    qsizetype next = from + 1;
    if (!statement.isName(next)) {
        select.reason = statement.isSymbol(next, u'(') ? Texts::readOnlyJoin() : Texts::readOnlyNoTable();
        return select;
    }
    select.listEnd = statement.at(from - 1).end();
    select.table = statement.name(next++);
    if (statement.isSymbol(next, u'.') && statement.isName(next + 1)) {
        select.schema = select.table;
        select.table = statement.name(next + 1);
        next += 2;
    }
    if (statement.isSymbol(next, u'(')) {
        select.reason = Texts::readOnlyNoTable(); // a function that gives rows
        return select;
    }
    select.alias = select.table;
    if (statement.isWord(next, u"AS"))
        ++next;
    if (isAlias(statement, next))
        select.alias = statement.name(next++);
    if (statement.isWord(next, u"INDEXED"))
        next += 3; // INDEXED BY name
    else if (statement.isWord(next, u"NOT"))
        next += 2; // NOT INDEXED
    select.sourceEnd = statement.at(std::min(next, statement.count()) - 1).end();

    const bool ends = next >= statement.count() || statement.isSymbol(next, u';');
    if (!ends && !isOneOf(statement, next, {u"WHERE", u"ORDER", u"LIMIT"}))
        select.reason = Texts::readOnlyJoin();
    select.functions = functionCalls(statement);
    return select;
}

} // namespace ADODB
