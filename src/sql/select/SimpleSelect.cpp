#include "sql/select/SimpleSelect.h"

#include "sql/SqlScanner.h"
#include "sql/select/SqlWalk.h"

namespace KOVAVSFDataGridLib {

namespace {

using Fault = SimpleSelect::Fault;

// Excludes the words that can follow a table in a SELECT and therefore aren't an alias.
bool isAlias(const SqlScanner &statement, qsizetype index)
{
    return statement.isName(index) &&
           !isOneOf(statement, index,
                    {u"WHERE",  u"GROUP",     u"HAVING",  u"ORDER", u"LIMIT", u"WINDOW", u"UNION",
                     u"EXCEPT", u"INTERSECT", u"JOIN",    u"INNER", u"LEFT",  u"RIGHT",  u"FULL",
                     u"CROSS",  u"NATURAL",   u"INDEXED", u"NOT",   u"FETCH", u"OFFSET", u"FOR"});
}

// Window functions read other rows of the result, so a single row can't be computed again. Those of a
// subquery read only its own rows.
bool hasWindow(const SqlScanner &statement)
{
    for (qsizetype i = 1; i < statement.count(); ++i) {
        if (statement.isSymbol(i, u'(') && isOneOf(statement, i + 1, {u"SELECT", u"WITH"}))
            i = afterBrackets(statement, i) - 1;
        if (statement.isSymbol(i, u')') && statement.isWord(i + 1, u"OVER"))
            return true;
    }
    return false;
}

// The item at [first, end) of the statement. Anything that isn't certainly a column is treated as computed.
SimpleSelect::Item itemAt(const SqlScanner &statement, qsizetype first, qsizetype end)
{
    qsizetype next = first;
    while (statement.isName(next) && statement.isSymbol(next + 1, u'.'))
        next += 2; // a schema or a table
    if (next + 1 == end && statement.isSymbol(next, u'*'))
        return {true, {}};
    if (next >= end || !statement.isName(next))
        return {};
    const QString column = statement.name(next++);
    if (next < end && statement.isWord(next, u"AS"))
        ++next;
    const bool hasAlias =
        next + 1 == end && (statement.isName(next) || statement.at(next).kind == SqlToken::Kind::String);
    return {false, next == end || hasAlias ? column : QString()};
}

bool changesByItself(const SqlScanner &statement, qsizetype first, qsizetype end)
{
    for (qsizetype i = first; i < end; ++i) {
        // Without an argument, SQLite's time functions mean the current time.
        const bool isTimeless =
            isOneOf(statement, i, {u"DATE", u"TIME", u"DATETIME", u"JULIANDAY", u"UNIXEPOCH"}) &&
            statement.isSymbol(i + 1, u'(') && statement.isSymbol(i + 2, u')');
        const bool isNow = statement.at(i).kind == SqlToken::Kind::String &&
                           statement.text(i).compare(u"'now'", Qt::CaseInsensitive) == 0;
        if (isTimeless || isNow ||
            isOneOf(statement, i,
                    {u"RANDOM",
                     u"RANDOMBLOB",
                     u"RAND",
                     u"UUID",
                     u"UUID_SHORT",
                     u"GEN_RANDOM_UUID",
                     u"NEWID",
                     u"NOW",
                     u"SYSDATE",
                     u"SYSDATETIME",
                     u"SYSTIMESTAMP",
                     u"GETDATE",
                     u"GETUTCDATE",
                     u"CURDATE",
                     u"CURTIME",
                     u"CURRENT_DATE",
                     u"CURRENT_TIME",
                     u"CURRENT_TIMESTAMP",
                     u"LOCALTIME",
                     u"LOCALTIMESTAMP",
                     u"UTC_DATE",
                     u"UTC_TIME",
                     u"UTC_TIMESTAMP",
                     u"UNIX_TIMESTAMP",
                     u"CLOCK_TIMESTAMP",
                     u"STATEMENT_TIMESTAMP",
                     u"TRANSACTION_TIMESTAMP",
                     u"TIMEOFDAY",
                     u"CONNECTION_ID"}))
            return true;
    }
    return false;
}

qsizetype beginOfList(const SqlScanner &statement)
{
    qsizetype first = 1;
    while (afterIdleListWord(statement, first) > first)
        first = afterIdleListWord(statement, first);
    return first;
}

std::vector<SimpleSelect::Item> itemsBefore(const SqlScanner &statement, qsizetype from)
{
    std::vector<SimpleSelect::Item> items;
    qsizetype first = beginOfList(statement);
    for (qsizetype i = first; i <= from; ++i) {
        if (i == from || (statement.isSymbol(i, u',') && statement.at(i).depth == 0)) {
            items.push_back(itemAt(statement, first, i));
            items.back().changesByItself = changesByItself(statement, first, i);
            first = i + 1;
        }
    }
    return items;
}

// How anything around the table aggregates or combines rows; None if nothing does.
SimpleSelect::Fault folding(const SqlScanner &statement)
{
    const qsizetype list = beginOfList(statement);
    // The part of a comment that MySQL runs can be DISTINCT too.
    if (isDistinctWord(statement, list) || afterVersionMark(statement, list) > list)
        return Fault::Distinct;
    for (qsizetype i = 0; i < statement.count(); ++i) {
        if (statement.at(i).depth > 0)
            continue;
        if (isOneOf(statement, i, {u"UNION", u"EXCEPT", u"INTERSECT"}))
            return Fault::Compound;
        if (isOneOf(statement, i, {u"GROUP", u"HAVING"}))
            return Fault::Grouped;
    }
    return hasWindow(statement) ? Fault::Grouped : Fault::None;
}

qsizetype indexOfFrom(const SqlScanner &statement)
{
    qsizetype i = 1;
    while (i < statement.count() && !(statement.at(i).depth == 0 && statement.isWord(i, u"FROM")))
        ++i;
    return i;
}

// Whether what begins at `next`, behind the table, is nothing or a sort. A computed entry can be an
// aggregate.
bool isWholeTable(const SqlScanner &statement, const std::vector<SimpleSelect::Item> &items, qsizetype next)
{
    if (std::ranges::any_of(items, &SimpleSelect::Item::isComputed))
        return false;
    for (qsizetype i = next; i < statement.count(); ++i) {
        if (statement.at(i).depth == 0 && isOneOf(statement, i, {u"WHERE", u"LIMIT", u"OFFSET", u"FETCH"}))
            return false;
    }
    return true;
}

} // namespace

SimpleSelect SimpleSelect::parse(const SqlScanner &statement)
{
    SimpleSelect select;
    if (!statement.isWord(0, u"SELECT")) {
        select.fault = Fault::NoTable;
        return select;
    }
    select.fault = folding(statement);
    if (select.fault != Fault::None)
        return select;

    const qsizetype from = indexOfFrom(statement);
    qsizetype next = from + 1;
    if (!statement.isName(next)) {
        select.fault = statement.isSymbol(next, u'(') ? Fault::Join : Fault::NoTable;
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
        select.fault = Fault::NoTable; // a function that returns rows
        return select;
    }
    const qsizetype tableStart = statement.at(from + 1).start;
    select.tableText = statement.sql().sliced(tableStart, statement.at(next - 1).end() - tableStart);
    select.alias = select.table;
    select.aliasText = statement.text(next - 1).toString();
    if (statement.isWord(next, u"AS"))
        ++next;
    if (isAlias(statement, next)) {
        select.aliasText = statement.text(next).toString();
        select.alias = statement.name(next++);
    }
    if (statement.isWord(next, u"INDEXED"))
        next += 3; // INDEXED BY name
    else if (statement.isWord(next, u"NOT"))
        next += 2; // NOT INDEXED
    select.sourceEnd = statement.at(std::min(next, statement.count()) - 1).end();

    const bool ends = next >= statement.count() || statement.isSymbol(next, u';');
    if (!ends && !isOneOf(statement, next, {u"WHERE", u"ORDER", u"LIMIT"}))
        select.fault = Fault::Join;
    select.items = itemsBefore(statement, from);
    select.isWhole = select.fault == Fault::None && isWholeTable(statement, select.items, next);
    return select;
}

} // namespace KOVAVSFDataGridLib
