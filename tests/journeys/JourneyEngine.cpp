#include "JourneyEngine.h"

#include "query/AllDBType.h"
#include "servers/Servers.h"

#include <ostream>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace KovaTest {

bool JourneyEngine::isThere() const
{
    return !variable || !serverConnection(variable).isEmpty();
}

QString JourneyEngine::quoted(const QString &field) const
{
    return QChar(quote) + field + QChar(quote);
}

QString JourneyEngine::bytes(const char *hex) const
{
    return QString::fromLatin1(binaryLiteral).arg(QLatin1StringView(hex));
}

std::ostream &operator<<(std::ostream &out, const JourneyEngine &engine)
{
    return out << engine.name;
}

const std::vector<JourneyEngine> &journeyEngines()
{
    static const JourneyEngine sqlite{"SQLite", nullptr, dbAccess, true,        u'"', "unit price",
                                      "TEXT",   "BLOB",  "x'%1'",  "TIMESTAMP", "是"};
    static const JourneyEngine postgres{"PostgreSQL", "KOVA_TEST_POSTGRESQL", dbOracle, false,
                                        u'"',         "unit price",           "TEXT",   "BYTEA",
                                        "'\\x%1'",    "TIMESTAMP(6)",         "是"};
    static const JourneyEngine mariaDb{"MariaDB", "KOVA_TEST_MARIADB", dbSQLServer, false,
                                       u'`',      "unit_price",        "LONGTEXT",  "LONGBLOB",
                                       "x'%1'",   "DATETIME(6)",       "1"};
    static const std::vector<JourneyEngine> engines = [] {
        JourneyEngine sqliteOdbc = sqlite;
        sqliteOdbc.name = "SQLiteThroughOdbc";
        sqliteOdbc.variable = "KOVA_TEST_SQLITE_ODBC";
        JourneyEngine bouncer = postgres;
        bouncer.name = "PostgreSQLThroughPgBouncer";
        bouncer.variable = "KOVA_TEST_PGBOUNCER";
        JourneyEngine oracle = mariaDb;
        oracle.name = "MariaDBInOracleMode";
        oracle.variable = "KOVA_TEST_MARIADB_ORACLE";
        oracle.dbType = dbOracle;
        oracle.quote = u'"';
        oracle.unitPrice = "unit price";
        oracle.moment = "TIMESTAMP(6) NULL";
        JourneyEngine sqlServer = oracle;
        sqlServer.name = "MariaDBInSqlServerMode";
        sqlServer.variable = "KOVA_TEST_MARIADB_MSSQL";
        sqlServer.dbType = dbSQLServer;
        return std::vector{sqlite, sqliteOdbc, postgres, bouncer, mariaDb, oracle, sqlServer};
    }();
    return engines;
}

} // namespace KovaTest
