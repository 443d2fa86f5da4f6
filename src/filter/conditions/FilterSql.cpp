#include "filter/conditions/FilterSql.h"

#include "sql/Predicates.h"

namespace KOVAVSFDataGridLib::FilterSql {

using namespace Qt::StringLiterals;

namespace {

QString isNotNull(const QString &field)
{
    return field + " IS NOT NULL"_L1;
}

// A line break before the words of inner SELECTs makes sure that plain text work finds only the outer ones.
QString fromRecords(const Records &records, const QString &hasValue)
{
    const QString restricted =
        records.condition.isEmpty() ? QString() : u'(' + records.condition + ") AND "_L1;
    return "\nFROM "_L1 + records.source + "\nWHERE "_L1 + restricted + hasValue;
}

} // namespace

QString distinctValues(const Dialect &dialect, const QString &field, const QString &table, int count)
{
    const RowLimit limit = rowLimit(dialect, count);
    return "SELECT DISTINCT "_L1 + limit.beforeList + field + " FROM "_L1 + table + " WHERE "_L1 +
           isNotNull(field) + " ORDER BY "_L1 + field + limit.behindSort;
}

QString countOfDistinctValues(const QString &field, const QString &table)
{
    return u"SELECT COUNT(DISTINCT "_s + field + ") FROM "_L1 + table;
}

QString sampleOfValues(const Dialect &dialect, const QString &field, const QString &table, int count,
                       int records)
{
    return distinctOfFirst(dialect, field, " FROM "_L1 + table + " WHERE "_L1 + field + " IS NOT NULL"_L1,
                           count, records);
}

QString distinctOfFirst(const Dialect &dialect, const QString &value, const QString &from, int count,
                        int records)
{
    const RowLimit read = rowLimitWithoutSort(dialect, records);
    const RowLimit shown = rowLimit(dialect, count);
    return "SELECT DISTINCT "_L1 + shown.beforeList + "kova_value FROM (SELECT "_L1 + read.beforeList +
           value + " AS kova_value"_L1 + from + read.behindSort + ") kova_first ORDER BY kova_value"_L1 +
           shown.behindSort;
}

QString isDuplicated(const QString &field, const Records &records)
{
    return field + " IN (SELECT "_L1 + field + fromRecords(records, isNotNull(field)) + " GROUP BY "_L1 +
           field + " HAVING COUNT(*) > 1)"_L1;
}

QString isAmongFirst(const Dialect &dialect, const QString &field, const Records &records, const First &first)
{
    const RowLimit limit = rowLimit(dialect, first.count);
    const QString hasValue = first.areTexts ? isNotEmptyText(dialect, field) : isNotNull(field);
    // A derived table, because MariaDB doesn't allow LIMIT in a SELECT directly inside IN. Its name tells how
    // to put it into words.
    return field + " IN (SELECT KovaValue\nFROM (SELECT "_L1 + limit.beforeList + field + " AS KovaValue"_L1 +
           fromRecords(records, hasValue) + "\nORDER BY "_L1 + field +
           (first.isDescending ? " DESC"_L1 : ""_L1) + limit.behindSort +
           (first.areTexts ? ") KovaFirstTexts)"_L1 : ") KovaFirst)"_L1);
}

QString join(const QList<Term> &terms)
{
    QString text;
    int depth = 0;
    bool hasOuterOr = false;
    for (qsizetype i = 0; i < terms.size(); ++i) {
        const Term &term = terms.at(i);
        text += QString(term.opens, u'(') + term.condition + QString(term.closes, u')');
        depth += term.opens - term.closes;
        if (i + 1 == terms.size())
            break;
        text += term.orNext ? " OR "_L1 : " AND "_L1;
        hasOuterOr |= term.orNext && depth <= 0;
    }
    return hasOuterOr ? u'(' + text + u')' : text;
}

qsizetype unmatchedBracket(const QList<Term> &terms)
{
    QList<qsizetype> open; // the terms with brackets that are still open
    for (qsizetype i = 0; i < terms.size(); ++i) {
        open.append(QList<qsizetype>(terms.at(i).opens, i));
        for (int closed = 0; closed < terms.at(i).closes; ++closed) {
            if (open.isEmpty())
                return i;
            open.removeLast();
        }
    }
    return open.isEmpty() ? -1 : open.constLast();
}

} // namespace KOVAVSFDataGridLib::FilterSql
