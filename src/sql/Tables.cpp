#include "sql/Tables.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QString fromInformationSchema(const QString &schema, const QString &where,
                              const QString &tables = u"information_schema.tables"_s)
{
    return u"select %1 as s, table_name as n, case when table_type like '%VIEW' then 'view' else 'table' end "
           "as v from %3 where %2 order by 1, 2"_s.arg(schema, where, tables);
}

} // namespace

QString statementOfTables(Engine engine)
{
    const QString usersOwn = u"table_schema not in ('pg_catalog', 'information_schema')"_s;
    const QString unless = u"case when table_schema = %1 then '' else table_schema end"_s;
    switch (engine) {
    case Engine::SQLite: // plain enough for Access's SQL, too
        return u"select '', name, type from sqlite_master where type in ('table', 'view') order by name"_s;
    case Engine::Oracle:
        return u"select '' s, TABLE_NAME n, 'table' v from USER_TABLES "
               "union all select '', VIEW_NAME, 'view' from USER_VIEWS order by 2"_s;
    case Engine::PostgreSQL: // whose information schema has no materialized views
        return fromInformationSchema(
            unless.arg("current_schema()"_L1), usersOwn,
            u"(select table_schema, table_name, table_type from information_schema.tables union all "
            "select schemaname, matviewname, 'VIEW' from pg_matviews where has_table_privilege("
            "quote_ident(schemaname) || '.' || quote_ident(matviewname), 'SELECT')) as t"_s);
    case Engine::SqlServer:
        return fromInformationSchema(unless.arg("schema_name()"_L1), usersOwn);
    case Engine::MySQL:
        return fromInformationSchema(u"''"_s, u"table_schema = database()"_s);
    case Engine::Access:
    case Engine::Standard:
    case Engine::Other:
        break;
    }
    return fromInformationSchema(u"table_schema"_s, usersOwn);
}

bool isTableOfSystem(Engine engine, const QString &name)
{
    return engine == Engine::SQLite && name.startsWith("sqlite_"_L1, Qt::CaseInsensitive);
}

bool canTablesDifferInCase(Engine engine)
{
    return engine == Engine::MySQL;
}

} // namespace KOVAVSFDataGridLib
