#pragma once

#include "filter/conditions/FilterCondition.h"
#include "filter/conditions/FilterState.h"

#include <vector>

namespace KOVAVSFDataGridLib {

// A choice of the builder and its place in the brackets.
struct SentenceTerm
{
    FilterChoice choice;
    int opens = 0;
    int closes = 0;
    bool orNext = false;
    int negatedOpens = 0; // see FilterSql::Term
};

// The choices as one sentence. Relative days are followed by the dates that they currently mean. Where “并且”
// and “或者” are mixed without brackets, brackets are added that show the precedence. Empty if brackets don't
// match.
QString sentenceOf(const QList<SentenceTerm> &terms, QDate today);

// The terms for rows over these fields. A field that doesn't exist is treated as a text field.
QList<SentenceTerm> termsOf(const FilterState &rows, const std::vector<FilterField> &fields);

} // namespace KOVAVSFDataGridLib
