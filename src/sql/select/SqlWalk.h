#pragma once

#include "sql/SqlScanner.h"

#include <algorithm>
#include <initializer_list>

// Token checks that several parsers of statements use.
namespace KOVAVSFDataGridLib {

inline bool isOneOf(const SqlScanner &statement, qsizetype index, std::initializer_list<QStringView> words)
{
    return std::any_of(words.begin(), words.end(),
                       [&](QStringView word) { return statement.isWord(index, word); });
}

// The index after the bracket that matches the one at `open`; at most the statement's end.
inline qsizetype afterBrackets(const SqlScanner &statement, qsizetype open)
{
    qsizetype close = open + 1;
    while (close < statement.count() && statement.at(close).depth > statement.at(open).depth)
        ++close;
    return std::min(close + 1, statement.count());
}

// Whether a subquery in brackets begins here.
inline bool isSubselect(const SqlScanner &statement, qsizetype open)
{
    return statement.isSymbol(open, u'(') && isOneOf(statement, open + 1, {u"SELECT", u"WITH", u"VALUES"});
}

// Whether the word removes duplicate rows.
inline bool isDistinctWord(const SqlScanner &statement, qsizetype index)
{
    return isOneOf(statement, index, {u"DISTINCT", u"DISTINCTROW", u"UNIQUE"});
}

// Whether it is a word between SELECT and the list that doesn't change the rows.
inline bool isIdleListWord(const SqlScanner &statement, qsizetype index)
{
    return statement.isWord(index, u"ALL") ||
           (statement.dialect() == SqlDialect::MySql &&
            isOneOf(statement, index,
                    {u"HIGH_PRIORITY", u"STRAIGHT_JOIN", u"SQL_SMALL_RESULT", u"SQL_BIG_RESULT", u"SQL_CACHE",
                     u"SQL_BUFFER_RESULT", u"SQL_CALC_FOUND_ROWS", u"SQL_NO_CACHE"}));
}

// One of those that MySQL takes at the beginning of a statement only.
inline bool isFirstListWord(const SqlScanner &statement, qsizetype index)
{
    return statement.dialect() == SqlDialect::MySql &&
           isOneOf(statement, index,
                   {u"HIGH_PRIORITY", u"SQL_CACHE", u"SQL_NO_CACHE", u"SQL_BUFFER_RESULT",
                    u"SQL_CALC_FOUND_ROWS"});
}

// The index after the start of a version comment of MySQL, including its version number if it has one;
// otherwise `index`.
inline qsizetype afterVersionMark(const SqlScanner &statement, qsizetype index)
{
    if (statement.dialect() != SqlDialect::MySql || !statement.isSymbol(index, u'/') ||
        !statement.isSymbol(index + 1, u'*'))
        return index;
    qsizetype next = statement.isWord(index + 2, u"M") ? index + 3 : index + 2;
    if (!statement.isSymbol(next, u'!'))
        return index;
    ++next;
    return next < statement.count() && statement.at(next).kind == SqlToken::Kind::Number ? next + 1 : next;
}

inline bool isVersionCommentEnd(const SqlScanner &statement, qsizetype index)
{
    return statement.dialect() == SqlDialect::MySql && statement.isSymbol(index, u'*') &&
           statement.isSymbol(index + 1, u'/');
}

// Whether this is in a comment that MySQL runs.
inline bool isInVersionComment(const SqlScanner &statement, qsizetype index)
{
    qsizetype before = index - 1;
    while (before >= 0 && !isVersionCommentEnd(statement, before)) {
        if (afterVersionMark(statement, before) > before)
            return true;
        --before;
    }
    return false;
}

// The index after something between SELECT and the list that doesn't change the rows: a word, or a version
// comment of MySQL that contains only such words; otherwise `index`.
inline qsizetype afterIdleListWord(const SqlScanner &statement, qsizetype index)
{
    if (isIdleListWord(statement, index))
        return index + 1;
    qsizetype next = afterVersionMark(statement, index);
    if (next == index)
        return index;
    while (isIdleListWord(statement, next))
        ++next;
    return isVersionCommentEnd(statement, next) ? next + 2 : index;
}

// Whether it is a number, a string or a name.
inline bool isOperand(const SqlScanner &statement, qsizetype index)
{
    return index >= 0 && index < statement.count() && statement.at(index).kind != SqlToken::Kind::Symbol &&
           !isOneOf(statement, index,
                    {u"AND", u"OR", u"NOT", u"LIKE", u"IN", u"IS", u"BETWEEN", u"CASE", u"WHEN", u"THEN",
                     u"ELSE", u"END", u"FROM", u"ESCAPE", u"WHERE", u"BY"});
}

// Whether there is an operator with lower precedence than AND: OR, MySQL's ||, and XOR, EQV and IMP if an
// engine has them. For any other engine, a word between two values is an error.
inline bool bindsLooserThanAnd(const SqlScanner &statement, qsizetype index)
{
    if (statement.isWord(index, u"OR"))
        return true;
    if (statement.dialect() == SqlDialect::MySql && statement.isSymbol(index, u'|'))
        return statement.isSymbol(index + 1, u'|');
    const bool followsValue = isOperand(statement, index - 1) || statement.isSymbol(index - 1, u')');
    const bool precedesValue = isOperand(statement, index + 1) || statement.isWord(index + 1, u"NOT") ||
                               statement.isSymbol(index + 1, u'(') || statement.isSymbol(index + 1, u'-');
    return followsValue && precedesValue && isOneOf(statement, index, {u"XOR", u"EQV", u"IMP"});
}

} // namespace KOVAVSFDataGridLib
