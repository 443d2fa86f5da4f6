#include "filter/FilterSql.h"

#include "sql/Like.h"

namespace KOVAVSFDataGridLib::FilterSql {

using namespace Qt::StringLiterals;

QString isTrue(const Dialect &dialect, const QString &field, bool wanted)
{
    // Servers with a real Boolean type compare it with a text, those of bits and numbers convert the text.
    if (dialect.engine == Engine::PostgreSQL || (dialect.isOdbc && dialect.database != dbAccess))
        return field + (wanted ? " = '1'"_L1 : " = '0'"_L1);
    // True is 1 here and -1 there.
    return field + (wanted ? " <> 0"_L1 : " = 0"_L1);
}

QString isEmptyText(const Dialect &dialect, const QString &field)
{
    return u'(' + field + " IS NULL OR "_L1 + likeOperand(dialect.engine, field) + " = '')"_L1;
}

QString isNotEmptyText(const Dialect &dialect, const QString &field)
{
    // To Oracle '' is Null, and nothing differs from Null.
    return likeOperand(dialect.engine, field) +
           (dialect.database == dbOracle ? " LIKE '_%'"_L1 : " <> ''"_L1);
}

QString distinctValues(const Dialect &dialect, const QString &field, const QString &table, int count)
{
    const Engine engine = dialect.engine;
    const bool knowsLimit = !dialect.isOdbc || engine == Engine::SQLite || engine == Engine::PostgreSQL ||
                            engine == Engine::MySQL;
    const QString limit = knowsLimit ? u"LIMIT %1"_s : u"OFFSET 0 ROWS FETCH NEXT %1 ROWS ONLY"_s;
    return u"SELECT DISTINCT "_s + field + " FROM "_L1 + table + " WHERE "_L1 + field +
           " IS NOT NULL ORDER BY "_L1 + field + u' ' + limit.arg(count);
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
    QList<qsizetype> open; // the terms that opened the brackets not closed yet
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
