#include "FaultEngine.h"

#include "servers/OdbcSession.h"
#include "servers/Servers.h"

#include <QtCore/QStringList>

#include <chrono>
#include <ostream>
#include <thread>

using namespace Qt::StringLiterals;

namespace KovaTest {

const FaultEngine faultEngines[] = {
    {"PostgreSQL", "postgresql", "PostgreSQL Unicode", "KOVA_TEST_POSTGRESQL", "KOVA_TEST_POSTGRESQL",
     "generate_series(1, %1) g", "ALTER COLUMN id TYPE VARCHAR(20)",
     "SELECT pg_sleep(20) AS a FROM generate_series(1, 1)",
     "SELECT g AS id, 'name ' || g AS endless FROM generate_series(1, 2000000000) g",
     "SELECT count(*) FROM pg_stat_activity WHERE pid <> pg_backend_pid() AND "
     "state IN ('active', 'idle in transaction') AND query LIKE '%endless%'",
     "SELECT string_agg(CAST(pid AS TEXT), ',') FROM pg_stat_activity "
     "WHERE pid <> pg_backend_pid() AND backend_type = 'client backend'",
     "SELECT pg_terminate_backend(%1)"},
    // Its driver buffers the rows, so records are generated slowly here.
    {"MariaDB", "mariadb", "MariaDB Unicode", "KOVA_TEST_MARIADB", "KOVA_TEST_MARIADB_ORACLE",
     "(SELECT seq AS g FROM seq_1_to_%1) AS n", "MODIFY id VARCHAR(20)", "SELECT sleep(20) AS a FROM dual",
     "SELECT seq AS id, concat('name ', seq, sleep(0.001)) AS endless FROM seq_1_to_2000000000",
     "SELECT count(*) FROM information_schema.processlist WHERE id <> connection_id() AND "
     "state = 'User sleep' AND info LIKE '%endless%'",
     "SELECT group_concat(id) FROM information_schema.processlist WHERE id <> connection_id() AND "
     "user LIKE 'kova%'",
     "KILL %1"},
};

bool FaultEngine::isPostgreSql() const
{
    return qstrcmp(server, "postgresql") == 0;
}

QString FaultEngine::connection() const
{
    return serverConnection(variable);
}

QString FaultEngine::oracleConnection() const
{
    return serverConnection(oracleVariable);
}

QString FaultEngine::numbersTo(int last) const
{
    return QString::fromLatin1(numbers).arg(last);
}

void FaultEngine::endOthers(OdbcSession &session) const
{
    const QString ask = QString::fromLatin1(others);
    for (const QString &id : session.ask(ask).split(u',', Qt::SkipEmptyParts))
        session.ask(QString::fromLatin1(end).arg(id));
    while (!session.ask(ask).isEmpty())
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
}

std::ostream &operator<<(std::ostream &out, const FaultEngine &engine)
{
    return out << engine.name;
}

} // namespace KovaTest
