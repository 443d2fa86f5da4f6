#pragma once

#include "sql/SqlScanner.h"

#include <algorithm>
#include <initializer_list>

// What several readers of statements ask of their tokens.
namespace KOVAVSFDataGridLib {

inline bool isOneOf(const SqlScanner &statement, qsizetype index, std::initializer_list<QStringView> words)
{
    return std::any_of(words.begin(), words.end(),
                       [&](QStringView word) { return statement.isWord(index, word); });
}

// After the bracket that matches the one at `open`; at most the statement's end.
inline qsizetype afterBrackets(const SqlScanner &statement, qsizetype open)
{
    qsizetype close = open + 1;
    while (close < statement.count() && statement.at(close).depth > statement.at(open).depth)
        ++close;
    return std::min(close + 1, statement.count());
}

// Whether a SELECT in brackets begins here.
inline bool isSubselect(const SqlScanner &statement, qsizetype open)
{
    return statement.isSymbol(open, u'(') && isOneOf(statement, open + 1, {u"SELECT", u"WITH", u"VALUES"});
}

} // namespace KOVAVSFDataGridLib
