#pragma once

#include "sql/Engine.h"

#include <QtCore/QList>
#include <QtCore/QString>

// Writes the statements of the builder and joins its conditions.
namespace KOVAVSFDataGridLib::FilterSql {

// At most `count` distinct values of a field, in order, without Null.
QString distinctValues(const Dialect &dialect, const QString &field, const QString &table, int count);

// The number of distinct values, without Null.
QString countOfDistinctValues(const QString &field, const QString &table);

// At most `count` distinct values of the first `records` records with one. Fast, because it sorts only these.
QString sampleOfValues(const Dialect &dialect, const QString &field, const QString &table, int count,
                       int records);
// The same where `from` is everything between the list of a SELECT and its sort.
QString distinctOfFirst(const Dialect &dialect, const QString &value, const QString &from, int count,
                        int records);

// The records that a condition compares with each other.
struct Records
{
    QString source;    // the text after FROM
    QString condition; // restricts them; may be empty
};

// The first values of a sort.
struct First
{
    int count = 0;
    bool isDescending = false;
    bool areTexts = false; // if true, empty texts are excluded
};

// Conditions that several of these records have the field's value, or that it is one of the first values.
QString isDuplicated(const QString &field, const Records &records);
QString isAmongFirst(const Dialect &dialect, const QString &field, const Records &records,
                     const First &first);

// More than anybody needs, but few enough for the bits of negatedOpens.
constexpr int mostBrackets = 8;

// One of several joined conditions.
struct Term
{
    QString condition;
    int opens = 0;       // brackets opened before it
    int closes = 0;      // brackets closed after it
    bool orNext = false; // joined to the next one by OR instead of AND
    // One bit per opened bracket, the outermost first. If set, the bracket means the records that do not meet
    // its contents. join() can't write these; see withoutNone().
    int negatedOpens = 0;

    bool isNegated(int bracket) const { return (negatedOpens >> bracket & 1) != 0; }
    // Opens one more bracket outside the existing ones.
    void openAround(bool isNegated)
    {
        ++opens;
        negatedOpens = negatedOpens << 1 | (isNegated ? 1 : 0);
    }
};

// Joins the terms to a text that can be joined to further conditions by AND.
QString join(const QList<Term> &terms);

// The index of the first term with a bracket that has no counterpart; -1 if all match.
qsizetype unmatchedBracket(const QList<Term> &terms);

} // namespace KOVAVSFDataGridLib::FilterSql
