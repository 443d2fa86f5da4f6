#include "SpreadTable.h"

#include "JourneyEngine.h"

#include "servers/LoopbackProxy.h"
#include "servers/OdbcSession.h"
#include "servers/Servers.h"

using namespace Qt::StringLiterals;

namespace KovaTest {

namespace {

constexpr int secondShard = 2;

// Foreign tables have no keys, so the control has to find records by all their fields.
void spreadOverForeignTables(const QString &connection, const QString &table, int secondPort)
{
    constexpr int shards = 4;
    OdbcSession session(connection);
    const QString columns = session.ask(
        u"SELECT string_agg(format('%I %s', attname, format_type(atttypid, atttypmod)), ', ' ORDER BY attnum)"
        " FROM pg_attribute WHERE attrelid = '%1'::regclass AND attnum > 0 AND NOT attisdropped"_s.arg(
            table));
    session.run({u"DROP TABLE IF EXISTS %1_whole CASCADE"_s.arg(table),
                 u"ALTER TABLE %1 RENAME TO %1_whole"_s.arg(table),
                 u"CREATE TABLE %1 (LIKE %1_whole) PARTITION BY HASH (id)"_s.arg(table),
                 u"ALTER SERVER shard%1 OPTIONS (SET port '%2')"_s.arg(secondShard)
                     .arg(secondPort > 0 ? secondPort : LoopbackProxy::portOf(connection))});
    for (int shard = 1; shard <= shards; ++shard) {
        QString shardConnection = connection;
        shardConnection.replace(u"Database=kova_sharded"_s, u"Database=kova_shard%1"_s.arg(shard));
        OdbcSession(shardConnection)
            .run({u"DROP TABLE IF EXISTS %1"_s.arg(table),
                  u"CREATE TABLE %1 (%2, PRIMARY KEY (id))"_s.arg(table, columns)});
        session.run(u"CREATE FOREIGN TABLE %1_%2 PARTITION OF %1 FOR VALUES WITH (MODULUS %3, REMAINDER %4)"
                    " SERVER shard%2 OPTIONS (table_name '%1')"_s.arg(table)
                        .arg(shard)
                        .arg(shards)
                        .arg(shard - 1));
    }
    session.run({u"INSERT INTO %1 SELECT * FROM %1_whole"_s.arg(table),
                 u"DROP TABLE %1_whole CASCADE"_s.arg(table), u"ANALYZE %1"_s.arg(table)});
}

void spreadBySpider(const QString &connection, const QString &table, int secondPort)
{
    constexpr int shards = 2;
    OdbcSession session(connection);
    QStringList partitions;
    for (int shard = 1; shard <= shards; ++shard) {
        session.run({u"DROP TABLE IF EXISTS kova_shard%1.%2"_s.arg(QString::number(shard), table),
                     u"CREATE TABLE kova_shard%1.%2 LIKE %2"_s.arg(QString::number(shard), table)});
        const int port =
            shard == secondShard && secondPort > 0 ? secondPort : LoopbackProxy::portOf(connection);
        partitions +=
            uR"(PARTITION p%1 COMMENT = 'database "kova_shard%1", port "%2"')"_s.arg(shard).arg(port);
    }
    session.run(
        {u"DROP TABLE IF EXISTS %1_whole"_s.arg(table), u"RENAME TABLE %1 TO %1_whole"_s.arg(table),
         u"CREATE TABLE %1 LIKE %1_whole"_s.arg(table),
         uR"(ALTER TABLE %1 ENGINE = SPIDER COMMENT = 'wrapper "mysql", host "127.0.0.1", user "kova",)"
         uR"( password "%2", table "%1"' PARTITION BY KEY (id) (%3))"_s.arg(table, markerPassword(),
                                                                            partitions.join(u", "_s)),
         u"INSERT INTO %1 SELECT * FROM %1_whole"_s.arg(table), u"DROP TABLE %1_whole"_s.arg(table)});
}

} // namespace

void spreadTable(const JourneyEngine &engine, const QString &table, int secondPort)
{
    const QString connection = serverConnection(engine.variable);
    if (engine.spread == JourneyEngine::ForeignTables)
        spreadOverForeignTables(connection, table, secondPort);
    else if (engine.spread == JourneyEngine::Spider)
        spreadBySpider(connection, table, secondPort);
}

} // namespace KovaTest
