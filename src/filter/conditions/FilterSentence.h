#pragma once

#include "filter/conditions/FilterCondition.h"

namespace KOVAVSFDataGridLib {

// A choice of the builder with its place among the others.
struct SentenceTerm
{
    FilterChoice choice;
    int opens = 0;
    int closes = 0;
    bool orNext = false;
};

// The choices as one Chinese sentence. Relative days are followed by the days that they mean now. Where
// “并且” and “或者” meet without brackets, brackets show how databases read them.
QString sentenceOf(const QList<SentenceTerm> &terms, QDate today);

} // namespace KOVAVSFDataGridLib
