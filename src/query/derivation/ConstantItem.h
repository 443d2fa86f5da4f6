#pragma once

#include "sql/select/SelectParts.h"

// Which entries of a SELECT list are the same in every row.
namespace KOVAVSFDataGridLib {

// A word that is part of a text or a value: the type of E'…', N'…' or DATE '…', the U of U&'…', what follows
// ::.
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

// Texts, numbers and what is written of these alone, or a word like CURRENT_DATE.
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
        // A parameter or a variable can be anything.
        if (isOther || sql.isSymbol(i, u'?') || sql.isSymbol(i, u'@') || sql.isSymbol(i, u'$'))
            return false;
    }
    return true;
}

} // namespace KOVAVSFDataGridLib
