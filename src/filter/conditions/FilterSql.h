#pragma once

#include "sql/Engine.h"

#include <QtCore/QList>
#include <QtCore/QString>

// The conditions that the builder writes and those it puts together.
namespace KOVAVSFDataGridLib::FilterSql {

// At most `count` different values of a field, in order, without Null.
QString distinctValues(const Dialect &dialect, const QString &field, const QString &table, int count);

// How many there are, without Null.
QString countOfDistinctValues(const QString &field, const QString &table);

// At most `count` different values of the first `records` records that have one. Quick, as it sorts few.
QString sampleOfValues(const Dialect &dialect, const QString &field, const QString &table, int count,
                       int records);
// The same where `from` is all that follows the list of a SELECT, up to the sort.
QString distinctOfFirst(const Dialect &dialect, const QString &value, const QString &from, int count,
                        int records);

// The records that a condition compares with each other.
struct Records
{
    QString source;    // as it follows FROM
    QString condition; // that restricts them; may be empty
};

// Some values of a sort.
struct First
{
    int count = 0;
    bool isDescending = false;
    bool areTexts = false; // those without any character are then left out
};

// A field whose value several of these records have, or that has one of their first values.
QString isDuplicated(const QString &field, const Records &records);
QString isAmongFirst(const Dialect &dialect, const QString &field, const Records &records,
                     const First &first);

// More than anybody needs, and few enough for their negations to be bits of a number.
constexpr int mostBrackets = 8;

// One condition of several.
struct Term
{
    QString condition;
    int opens = 0;       // brackets opened before it
    int closes = 0;      // brackets closed behind it
    bool orNext = false; // joined to the next one by OR rather than AND
    // A bit for each of the opened brackets, the outermost first, that stands for records that do not meet
    // what is in it. join() writes none of these; see withoutNone().
    int negatedOpens = 0;

    bool isNegated(int bracket) const { return (negatedOpens >> bracket & 1) != 0; }
    // Opens one more bracket around those that there are.
    void openAround(bool isNegated)
    {
        ++opens;
        negatedOpens = negatedOpens << 1 | (isNegated ? 1 : 0);
    }
};

// The terms as one text that can be joined to further conditions by AND.
QString join(const QList<Term> &terms);

// Position of the first term whose brackets have no counterpart; -1 when all match.
qsizetype unmatchedBracket(const QList<Term> &terms);

} // namespace KOVAVSFDataGridLib::FilterSql
