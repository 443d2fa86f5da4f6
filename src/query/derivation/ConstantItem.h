#pragma once

#include "sql/select/SelectParts.h"

// Recognizes entries of a SELECT list that have the same value in every row.
namespace KOVAVSFDataGridLib {

// Whether a word belongs to a literal or a cast: the type of E'…', N'…' or DATE '…', the U of U&'…', the type
// after ::.
inline bool isWordOfConstant(const SqlScanner &sql, qsizetype word, qsizetype end)
{
    const auto isText = [&](qsizetype token) {
        return token < end && sql.at(token).kind == SqlToken::Kind::String;
    };
    const bool isCast = sql.isSymbol(word - 1, u':') && sql.isSymbol(word - 2, u':');
    const bool isUnicode =
        sql.isSymbol(word + 1, u'&') && isText(word + 2) && sql.at(word).end() + 1 == sql.at(word + 2).start;
    return isCast || isUnicode || isText(word + 1) || sql.isWord(word, u"TRUE") ||
           sql.isWord(word, u"FALSE") || sql.isWord(word, u"NULL");
}

// Consists only of strings and numbers, or is a word such as CURRENT_DATE.
inline bool isConstant(const SqlScanner &sql, const SelectParts::Item &item)
{
    if (item.isName || item.isStar || item.value.isEmpty())
        return false;
    const bool isOneWord = item.value.end - item.value.begin == 1;
    for (qsizetype i = item.value.begin; i < item.value.end; ++i) {
        const SqlToken::Kind kind = sql.at(i).kind;
        const bool isOther =
            kind == SqlToken::Kind::QuotedName ||
            (kind == SqlToken::Kind::Word && !isOneWord && !isWordOfConstant(sql, i, item.value.end));
        // A parameter or a variable can have any value.
        if (isOther || sql.isSymbol(i, u'?') || sql.isSymbol(i, u'@') || sql.isSymbol(i, u'$'))
            return false;
    }
    return true;
}

} // namespace KOVAVSFDataGridLib
