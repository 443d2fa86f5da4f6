#pragma once

#include "sql/select/SelectParts.h"

#include <QtCore/QString>

#include <optional>
#include <vector>

// What taking a condition apart and putting it into words have in common.
namespace KOVAVSFDataGridLib {

// The range without the brackets around all of it.
TextRange withoutBrackets(const SqlScanner &sql, TextRange range);

// The pieces between a word on the outermost level. The AND of BETWEEN and the words of CASE join nothing.
std::vector<TextRange> cutAt(const SqlScanner &sql, TextRange range, QStringView word);

// Whether OR, or what else binds looser than AND, joins its outermost pieces.
bool isAlternative(const SqlScanner &sql, TextRange range);

bool isFunction(const SqlScanner &sql, qsizetype token);

// A text without its quotes; nothing for what isn't one text alone.
std::optional<QString> textOfLiteral(const SqlScanner &sql, TextRange range);

// The character that follows ESCAPE, whose place is `word`.
QChar escapeOf(const SqlScanner &sql, qsizetype word);

// Two comparisons in brackets that AND joins, which say between which values one operand is.
struct Bounds
{
    TextRange operand;
    TextRange lower;
    TextRange upper;
    bool isLowerIncluded = false;
    bool isUpperIncluded = false;
};
std::optional<Bounds> boundsOf(const SqlScanner &sql, TextRange condition);

} // namespace KOVAVSFDataGridLib
