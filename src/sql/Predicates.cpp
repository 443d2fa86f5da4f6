#include "sql/Predicates.h"

#include "sql/Like.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

QString isTrue(const Dialect &dialect, const QString &field, bool wanted)
{
    // Servers with a real Boolean type compare it with a string; those with bits or numbers convert it.
    if (dialect.engine == Engine::PostgreSQL || (dialect.isOdbc && dialect.database != dbAccess))
        return field + (wanted ? " = '1'"_L1 : " = '0'"_L1);
    // True is 1 on some engines and -1 on others.
    return field + (wanted ? " <> 0"_L1 : " = 0"_L1);
}

QString isEmptyText(const Dialect &dialect, const QString &field)
{
    return u'(' + field + " IS NULL OR "_L1 + likeOperand(dialect.engine, field) + " = '')"_L1;
}

QString isNotEmptyText(const Dialect &dialect, const QString &field)
{
    // To MariaDB the comparison is Null where '' can't be a value of the type: a uuid, an inet6.
    if (dialect.engine == Engine::MySQL && dialect.database != dbOracle)
        return u"COALESCE(%1 <> '', %1 IS NOT NULL)"_s.arg(field);
    // In Oracle '' is Null, and no value is unequal to Null.
    return likeOperand(dialect.engine, field) +
           (dialect.database == dbOracle ? " LIKE '_%'"_L1 : " <> ''"_L1);
}

QString beforeTexts(const Dialect &dialect, const QString &field)
{
    return dialect.engine == Engine::SQLite ? field + " < ''"_L1 : QString();
}

bool readsAliasesInConditions(Engine engine)
{
    return engine == Engine::SQLite;
}

bool readsAliasesInSortExpressions(Engine engine)
{
    return engine == Engine::SQLite || engine == Engine::MySQL;
}

RowLimit rowLimit(const Dialect &dialect, int count)
{
    const Engine engine = dialect.engine;
    if (dialect.isOdbc && engine == Engine::Access)
        return {u"TOP %1 "_s.arg(count), {}};
    const bool knowsLimit = !dialect.isOdbc || engine == Engine::SQLite || engine == Engine::PostgreSQL ||
                            engine == Engine::MySQL;
    return {{}, (knowsLimit ? u" LIMIT %1"_s : u" OFFSET 0 ROWS FETCH NEXT %1 ROWS ONLY"_s).arg(count)};
}

RowLimit rowLimitWithoutSort(const Dialect &dialect, int count)
{
    RowLimit limit = rowLimit(dialect, count);
    // SQL Server accepts OFFSET only after ORDER BY.
    if (dialect.likelyEngine() == Engine::SqlServer && limit.behindSort.contains("OFFSET"_L1))
        limit.behindSort.prepend(" ORDER BY (SELECT NULL)"_L1);
    return limit;
}

QString innerTableAlias(const Dialect &dialect, const QString &name)
{
    return (dialect.likelyEngine() == Engine::Oracle ? " "_L1 : " AS "_L1) + name;
}

bool keepsInnerSort(const Dialect &dialect)
{
    const Engine engine = dialect.likelyEngine();
    return engine != Engine::SqlServer && engine != Engine::MySQL;
}

bool keepsNameInTable(const Dialect &dialect, const QString &name)
{
    const Engine engine = dialect.likelyEngine();
    const bool isValue = name.compare("true"_L1, Qt::CaseInsensitive) == 0 ||
                         name.compare("false"_L1, Qt::CaseInsensitive) == 0;
    return !isValue || (engine != Engine::SQLite && engine != Engine::Access);
}

} // namespace KOVAVSFDataGridLib
