#include "JourneyEngine.h"

#include "servers/Servers.h"
#include "sql/AllDBType.h"

#include <algorithm>
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
    static const JourneyEngine sqlite{"SQLite", nullptr,      dbAccess,        JourneyEngine::SqliteFile,
                                      u'"',     "unit price", "TEXT",          "BLOB",
                                      "x'%1'",  "TIMESTAMP",  "DECIMAL(38,0)", "是"};
    static const JourneyEngine postgres{
        "PostgreSQL", "KOVA_TEST_POSTGRESQL", dbOracle,        JourneyEngine::Server,
        u'"',         "unit price",           "TEXT",          "BYTEA",
        "'\\x%1'",    "TIMESTAMP(6)",         "DECIMAL(38,0)", "是"};
    static const JourneyEngine mariaDb{"MariaDB", "KOVA_TEST_MARIADB", dbSQLServer,     JourneyEngine::Server,
                                       u'`',      "unit_price",        "LONGTEXT",      "LONGBLOB",
                                       "x'%1'",   "DATETIME(6)",       "DECIMAL(38,0)", "1"};
    static const std::vector<JourneyEngine> engines = [] {
        JourneyEngine sqliteOdbc = sqlite;
        sqliteOdbc.name = "SQLiteThroughOdbc";
        sqliteOdbc.variable = "KOVA_TEST_SQLITE_ODBC";
        JourneyEngine access = sqlite;
        access.name = "Access";
        access.store = JourneyEngine::AccessFile;
        access.longText = "LONGTEXT";
        access.binary = "LONGBLOB";
        access.moment = "DATETIME";
        access.digits = "DIGITTEXT(28,0)";
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
        return std::vector{sqlite, access, sqliteOdbc, postgres, bouncer, mariaDb, oracle, sqlServer};
    }();
    return engines;
}

const std::vector<JourneyEngine> &spreadEngines()
{
    static const std::vector<JourneyEngine> engines = [] {
        const auto named = [](QLatin1StringView name) {
            return *std::ranges::find(journeyEngines(), name, [](const JourneyEngine &engine) {
                return QLatin1StringView(engine.name);
            });
        };
        JourneyEngine foreign = named("PostgreSQL"_L1);
        foreign.name = "PostgreSQLOverShards";
        foreign.variable = "KOVA_TEST_SHARDS";
        foreign.spread = JourneyEngine::ForeignTables;
        JourneyEngine spider = named("MariaDB"_L1);
        spider.name = "MariaDBOverShards";
        spider.variable = "KOVA_TEST_SPIDER";
        spider.spread = JourneyEngine::Spider;
        return std::vector{foreign, spider};
    }();
    return engines;
}

} // namespace KovaTest
