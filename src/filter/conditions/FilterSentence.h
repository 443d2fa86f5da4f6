#pragma once

#include "filter/conditions/FilterCondition.h"
#include "filter/conditions/FilterState.h"

#include <vector>

namespace KOVAVSFDataGridLib {

// A choice of the builder with its place among the others.
struct SentenceTerm
{
    FilterChoice choice;
    int opens = 0;
    int closes = 0;
    bool orNext = false;
    int negatedOpens = 0; // as in FilterSql::Term
};

// The choices as one Chinese sentence. Relative days are followed by the days that they mean now. Where
// “并且” and “或者” meet without brackets, brackets show how databases read them. Empty where brackets don't
// match.
QString sentenceOf(const QList<SentenceTerm> &terms, QDate today);

// The terms of rows over these fields; a field that isn't there is taken for one of texts.
QList<SentenceTerm> termsOf(const FilterState &rows, const std::vector<FilterField> &fields);

} // namespace KOVAVSFDataGridLib
