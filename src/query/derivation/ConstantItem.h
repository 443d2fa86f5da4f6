#pragma once

#include "sql/select/SelectParts.h"

// Which entries of a SELECT list are the same in every row.
namespace KOVAVSFDataGridLib {

// E'…', N'…', U&'…' and the like: nothing stands between their tokens.
inline bool isTextWithPrefix(const SqlScanner &sql, TextRange value)
{
    const qsizetype text = value.end - 1;
    const bool isUnicode = text - value.begin == 2 && sql.isSymbol(text - 1, u'&');
    return (text - value.begin == 1 || isUnicode) && sql.at(value.begin).kind == SqlToken::Kind::Word &&
           sql.at(text).kind == SqlToken::Kind::String &&
           sql.at(value.begin).end() + (isUnicode ? 1 : 0) == sql.at(text).start;
}

inline bool isNumberWithSign(const SqlScanner &sql, TextRange value)
{
    return value.end - value.begin == 2 &&
           (sql.isSymbol(value.begin, u'-') || sql.isSymbol(value.begin, u'+')) &&
           sql.at(value.begin + 1).kind == SqlToken::Kind::Number;
}

// A text, a number or a word like NULL.
inline bool isConstant(const SqlScanner &sql, const SelectParts::Item &item)
{
    if (isTextWithPrefix(sql, item.value) || isNumberWithSign(sql, item.value))
        return true;
    const SqlToken::Kind kind = sql.at(item.value.begin).kind;
    return item.value.end - item.value.begin == 1 && !item.isName && !item.isStar &&
           (kind == SqlToken::Kind::Number || kind == SqlToken::Kind::String || kind == SqlToken::Kind::Word);
}

} // namespace KOVAVSFDataGridLib
