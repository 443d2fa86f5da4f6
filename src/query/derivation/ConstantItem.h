#pragma once

#include "sql/select/SelectParts.h"

// Which entries of a SELECT list are the same in every row.
namespace KOVAVSFDataGridLib {

// E'…', N'…' and the like.
inline bool isTextWithPrefix(const SqlScanner &sql, TextRange value)
{
    return value.end - value.begin == 2 && sql.at(value.begin).kind == SqlToken::Kind::Word &&
           sql.at(value.begin + 1).kind == SqlToken::Kind::String &&
           sql.at(value.begin).end() == sql.at(value.begin + 1).start;
}

// A text, a number or a word like NULL.
inline bool isConstant(const SqlScanner &sql, const SelectParts::Item &item)
{
    if (isTextWithPrefix(sql, item.value))
        return true;
    const SqlToken::Kind kind = sql.at(item.value.begin).kind;
    return item.value.end - item.value.begin == 1 && !item.isName && !item.isStar &&
           (kind == SqlToken::Kind::Number || kind == SqlToken::Kind::String || kind == SqlToken::Kind::Word);
}

} // namespace KOVAVSFDataGridLib
