#include "ado/providers/odbc/OdbcEngine.h"

#include "ado/providers/odbc/OdbcHandle.h"
#include "sql/Names.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

OdbcEngine::Kind OdbcEngine::kindNamed(const QString &name)
{
    struct Known
    {
        QLatin1StringView part;
        Kind kind;
    };
    static constexpr Known known[] = {
        {"Postgres"_L1, Kind::PostgreSql}, {"MariaDB"_L1, Kind::MariaDb},      {"MySQL"_L1, Kind::MySql},
        {"SQLite"_L1, Kind::Sqlite},       {"SQL Server"_L1, Kind::SqlServer}, {"Oracle"_L1, Kind::Oracle},
    };
    for (const Known &candidate : known) {
        if (name.contains(candidate.part, Qt::CaseInsensitive))
            return candidate.kind;
    }
    return Kind::Other;
}

OdbcEngine OdbcEngine::of(const OdbcConnection &connection)
{
    OdbcEngine engine;
    engine.dbmsName = connection.info(SQL_DBMS_NAME);
    engine.kind = kindNamed(engine.dbmsName);
    engine.quote = connection.info(SQL_IDENTIFIER_QUOTE_CHAR).trimmed();
    switch (engine.kind) {
    case Kind::PostgreSql:
        engine.dialect = SqlDialect::PostgreSql;
        // A server can be configured to read backslashes in strings as escapes. A statement that was checked
        // without escapes could then hide another one.
        engine.beginReading = u"BEGIN READ ONLY; SET LOCAL standard_conforming_strings = on"_s;
        engine.endReading = u"ROLLBACK"_s;
        // Otherwise a cursor is planned for fetching only the first tenth of the rows.
        engine.planForAllRows = u"SET LOCAL cursor_tuple_fraction = 1.0"_s;
        engine.explain = u"EXPLAIN "_s;
        engine.limitLocks = u"SET LOCAL lock_timeout = %1"_s;
        engine.lockRow = u" FOR UPDATE"_s;
        engine.rowVersion = u"xmin"_s;
        engine.returning = true;
        engine.takesMadeKeys = true;
        engine.overrideKey = u" OVERRIDING SYSTEM VALUE"_s;
        engine.onlyTablesHaveKeys = true;
        engine.asksAgain = engine.bendsDates = engine.usesPortions =
            connection.info(SQL_DRIVER_NAME).contains("psqlodbc"_L1, Qt::CaseInsensitive);
        break;
    case Kind::MariaDb:
    case Kind::MySql:
        engine.dialect = SqlDialect::MySql;
        engine.beginReading = u"START TRANSACTION READ ONLY"_s;
        engine.endReading = u"ROLLBACK"_s;
        engine.lockRow = u" FOR UPDATE"_s;
        engine.hasOldTables = true;
        engine.onlyTablesHaveKeys = true;
        engine.reportsLossAtOnce = false;
        engine.newKey = u"SELECT LAST_INSERT_ID()"_s;
        engine.takesMadeKeys = true;
        break;
    case Kind::Sqlite:
        engine.beginReading = u"PRAGMA query_only = ON"_s;
        engine.endReading = u"PRAGMA query_only = OFF"_s;
        engine.newKey = u"SELECT last_insert_rowid()"_s; // its driver returns no rows for RETURNING
        engine.looseTypes = true;
        engine.cancelTakesRows = true;
        break;
    case Kind::SqlServer:
        engine.dialect = SqlDialect::SqlServer;
        engine.lockTable = u" WITH (UPDLOCK)"_s;
        break;
    case Kind::Oracle:
        engine.lockRow = u" FOR UPDATE"_s;
        break;
    case Kind::Other:
        break;
    }
    return engine;
}

QString OdbcEngine::quoted(const QString &name) const
{
    if (quote.isEmpty())
        return name;
    const QChar opening = quote.front();
    const QChar closing = KOVAVSFDataGridLib::closingQuote(opening);
    return KOVAVSFDataGridLib::enclosed(opening, name, closing.isNull() ? opening : closing);
}

} // namespace ADODB
