#pragma once

#include "sql/select/SelectParts.h"

#include <QtCore/QString>

#include <optional>
#include <vector>

// Functions shared by splitting conditions and putting them into words.
namespace KOVAVSFDataGridLib {

// The range without brackets that enclose all of it.
TextRange withoutBrackets(const SqlScanner &sql, TextRange range);

// The pieces between a word on the outermost level, except the AND of BETWEEN and words inside CASE.
std::vector<TextRange> cutAt(const SqlScanner &sql, TextRange range, QStringView word);

// Whether the outermost pieces are joined by OR or another operator with lower precedence than AND.
bool isAlternative(const SqlScanner &sql, TextRange range);

bool isFunction(const SqlScanner &sql, qsizetype token);

// The text of a string literal; empty if the range isn't exactly one literal.
std::optional<QString> textOfLiteral(const SqlScanner &sql, TextRange range);

// The character after ESCAPE, which is at `word`.
QChar escapeOf(const SqlScanner &sql, qsizetype word);

// The tokens as written, on one line: what is between two of them becomes a space.
QString lineOf(const SqlScanner &sql, TextRange range);

// Two comparisons in brackets, joined by AND, that limit one operand to a range.
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
