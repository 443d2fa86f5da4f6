// Who gets which server session: connections of one login share them, for one command at a time.
#include "OdbcEngines.h"
#include "TestDatabase.h"
#include "Throwing.h"

#include "ado/connection/OneCommand.h"
#include "servers/OdbcSession.h"

#include <QtCore/QRegularExpression>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;

namespace {

class OdbcPools : public AdoTest::OnOdbc
{
protected:
    QString sessionId() const { return is("MariaDB") ? u"connection_id()"_s : u"pg_backend_pid()"_s; }
    QString sessionOf(const std::shared_ptr<Connection> &connection) const
    {
        return open(u"SELECT "_s + sessionId(), connection)->CellText(1, 0);
    }
    void end(const QString &session) const
    {
        execute((is("MariaDB") ? u"KILL %1"_s : u"SELECT pg_terminate_backend(%1)"_s).arg(session));
        const QString left = is("MariaDB")
                                 ? u"SELECT count(*) FROM information_schema.processlist WHERE id = %1"_s
                                 : u"SELECT count(*) FROM pg_stat_activity WHERE pid = %1"_s;
        while (ask(left.arg(session)) != "0"_L1) {
        }
    }
    void makeTable() const
    {
        execute(u"CREATE TABLE kova_a(id INTEGER PRIMARY KEY, name VARCHAR(20))"_s);
        execute(u"INSERT INTO kova_a VALUES (1,'one'), (2,'two')"_s);
    }
};

} // namespace

KOVA_ON_ODBC_SERVERS(OdbcPools);

TEST_P(OdbcPools, GiveOneSessionToWhatIsDoneInSequence)
{
    const auto first = connect();
    const QString session = sessionOf(first);
    const auto second = connect();
    EXPECT_EQ(sessionOf(second), session);
    EXPECT_EQ(sessionOf(first), session);
    second->Close();
    EXPECT_EQ(sessionOf(first), session);
}

TEST_P(OdbcPools, EndTheirSessionsWithTheLastConnection)
{
    const QString session = sessionOf(connect());
    const auto later = connect();
    EXPECT_NE(sessionOf(later), session);
}

// MariaDB does not report that a transaction is open if that has only read.
TEST_P(OdbcPools, LeaveATransactionOpenBetweenTheStatementsOfOneCommandOnly)
{
    makeTable();
    const QString all = u"SELECT * FROM kova_a ORDER BY id"_s;
    const auto connection = connect();
    const QString state = u"SELECT state FROM pg_stat_activity WHERE pid = "_s + sessionOf(connection);
    const auto isOpen = [&] {
        return is("MariaDB") ? std::nullopt : std::optional(ask(state) == u"idle in transaction"_s);
    };
    const auto recordset = open(all, connection);
    connection->Describe(all);
    EXPECT_NE(isOpen(), true) << "no command";
    {
        const OneCommand command;
        connection->Describe(all);
        EXPECT_NE(isOpen(), false);
        EXPECT_EQ(open(all, connection)->RecordCount(), 2);
        EXPECT_NE(isOpen(), true) << "it was the next statement's";
        connection->Describe(all);
        recordset->Fields().Item(1).PutValue(u"mine"_s);
        recordset->Update();
        EXPECT_EQ(ask(u"SELECT name FROM kova_a WHERE id = 1"_s), u"mine"_s) << "a change has its own";
        EXPECT_THROW(connection->Describe(u"SELECT missing FROM kova_a"_s), Error);
        EXPECT_NE(isOpen(), true) << "a statement failed in it";
        connection->Describe(all);
    }
    EXPECT_NE(isOpen(), true) << "it ends with the command";
    EXPECT_EQ(open(all, connection)->RecordCount(), 2);
}

TEST_P(OdbcPools, MixNoLogins)
{
    const auto first = connect();
    Connection other;
    EXPECT_ADO_ERROR(dbErrAuthFailed, other.Open(connectionString(), {}, u"wrong"_s));
    EXPECT_FALSE(sessionOf(first).isEmpty());
}

TEST_P(OdbcPools, GiveWhatIsDoneMeanwhileASessionOfItsOwn)
{
    makeTable();
    const auto connection = connect();
    const auto shown = open(u"SELECT * FROM kova_a ORDER BY id"_s, connect());
    Recordset reading;
    bool isWritten = false;
    reading.SetProgress([&](qint64) {
        if (!isWritten) {
            isWritten = true;
            shown->Fields().Item(1).PutValue(u"mine"_s);
            shown->Update();
        }
        return true;
    });
    reading.Open(u"SELECT * FROM kova_a"_s, connection);
    EXPECT_TRUE(isWritten);
    EXPECT_EQ(ask(u"SELECT name FROM kova_a WHERE id = 1"_s), u"mine"_s);
}

TEST_P(OdbcPools, ReplaceASessionThatEndedWhileNobodyUsedIt)
{
    makeTable();
    const auto connection = connect();
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s, connection);
    const QString session = sessionOf(connection);
    end(session);
    recordset->Fields().Item(1).PutValue(u"mine"_s);
    recordset->Update();
    EXPECT_EQ(ask(u"SELECT name FROM kova_a WHERE id = 1"_s), u"mine"_s);
    end(sessionOf(connection));
    EXPECT_NE(sessionOf(connection), session);
    EXPECT_EQ(connection->State(), adStateOpen);
}

TEST_P(OdbcPools, GiveNobodyASessionInWhichSomethingWasCancelled)
{
    const auto connection = connect();
    const QString session = sessionOf(connection);
    Recordset recordset;
    int questions = 0;
    recordset.SetProgress([&](qint64) { return ++questions < 5; });
    EXPECT_ADO_ERROR(dbErrCancelled, recordset.Open(QString::fromLatin1(GetParam().endless), connection));
    EXPECT_NE(sessionOf(connection), session);
}

TEST_P(OdbcPools, GiveNobodyASessionInWhichAChangeFailed)
{
    makeTable();
    const auto connection = connect();
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s, connection);
    const QString session = sessionOf(connection);
    recordset->Fields().Item(0).PutValue(2);
    EXPECT_THROW(recordset->Update(), Error);
    EXPECT_NE(sessionOf(connection), session);
}

TEST_P(OdbcPools, SeeThatATableHasOtherColumnsOrAnotherKey)
{
    makeTable();
    const auto connection = connect();
    EXPECT_EQ(open(u"SELECT * FROM kova_a"_s, connection)->Fields().Count(), 2);
    execute(u"ALTER TABLE kova_a ADD COLUMN more INTEGER"_s);
    auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s, connection);
    recordset->Fields().Item(2).PutValue(7);
    recordset->Update();
    EXPECT_EQ(ask(u"SELECT more FROM kova_a WHERE id = 1"_s), u"7"_s);

    // Only the row that was shown may be changed, even if its key no longer identifies it.
    execute(is("MariaDB") ? u"ALTER TABLE kova_a DROP PRIMARY KEY"_s
                          : u"ALTER TABLE kova_a DROP CONSTRAINT kova_a_pkey"_s);
    execute(u"INSERT INTO kova_a VALUES (1,'other',8)"_s);
    recordset = open(u"SELECT * FROM kova_a ORDER BY more"_s, connection);
    recordset->Fields().Item(1).PutValue(u"mine"_s);
    try {
        recordset->Update();
    } catch (const Error &) {
        EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a WHERE name = 'mine'"_s), u"0"_s);
    }
    EXPECT_EQ(ask(u"SELECT name FROM kova_a WHERE more = 8"_s), u"other"_s);
}

TEST_P(OdbcPools, SeeThatTheKeyThatIsNotShownHasAnotherName)
{
    makeTable();
    const auto connection = connect();
    EXPECT_EQ(open(u"SELECT name FROM kova_a"_s, connection)->RecordCount(), 2);
    execute(u"ALTER TABLE kova_a RENAME COLUMN id TO number"_s);
    const auto recordset = open(u"SELECT name FROM kova_a ORDER BY name"_s, connection);
    recordset->Fields().Item(0).PutValue(u"mine"_s);
    recordset->Update();
    EXPECT_EQ(ask(u"SELECT name FROM kova_a WHERE number = 1"_s), u"mine"_s);
}

TEST_P(OdbcPools, SeeThatATableIsAViewNow)
{
    makeTable();
    execute(u"ALTER TABLE kova_a RENAME TO kova_v"_s);
    const auto connection = connect();
    EXPECT_EQ(open(u"SELECT * FROM kova_v"_s, connection)->RecordCount(), 2);
    execute(u"ALTER TABLE kova_v RENAME TO kova_a"_s);
    execute(u"CREATE VIEW kova_v AS SELECT * FROM kova_a"_s);
    const auto recordset = open(u"SELECT * FROM kova_v ORDER BY id"_s, connection);
    EXPECT_EQ(recordset->RecordCount(), 2);
    EXPECT_THROW(recordset->Delete(), Error);
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"2"_s);
}

class PostgreSqlPlans : public AdoTest::OnOdbc
{
protected:
    // The kinds of steps in the plan of a statement.
    QString planOf(const QString &settings, const QString &statement) const
    {
        KovaTest::OdbcSession session(connectionString());
        session.run({u"BEGIN"_s, u"SET LOCAL effective_cache_size = '24MB'"_s});
        if (!settings.isEmpty())
            session.run(settings);
        return session.ask(u"EXPLAIN (COSTS OFF) "_s + statement);
    }
};

INSTANTIATE_TEST_SUITE_P(Servers, PostgreSqlPlans, testing::Values(AdoTest::odbcEngines[1]));

TEST_P(PostgreSqlPlans, AreThoseOfTheWholeResult)
{
    execute(u"CREATE TABLE kova_a AS SELECT g AS id, CAST(random() * 100000 AS INTEGER) AS customer, "
            u"repeat('x', 100) AS note "
            "FROM generate_series(1, 200000) g"_s);
    execute(u"CREATE INDEX ON kova_a (customer)"_s);
    execute(u"VACUUM ANALYZE kova_a"_s);
    const QString statement = u"SELECT * FROM kova_a WHERE id > 100 ORDER BY customer"_s;
    const QString plain = planOf({}, statement);
    ASSERT_NE(planOf({}, u"DECLARE c CURSOR FOR "_s + statement), plain)
        << "a cursor is planned for its first rows";
    // The options with which the control's own cursors are opened.
    const QString fraction = open(u"SELECT current_setting('cursor_tuple_fraction')"_s)->CellText(1, 0);
    EXPECT_EQ(
        planOf(u"SET LOCAL cursor_tuple_fraction = "_s + fraction, u"DECLARE c CURSOR FOR "_s + statement),
        plain);
}

TEST_P(PostgreSqlPlans, ReadForeignTablesInSeveralPortions)
{
    static const QRegularExpression port(u"Port=(\\d+)"_s);
    execute(u"CREATE TABLE kova_a AS SELECT g AS id FROM generate_series(1, 12001) g"_s);
    execute(u"CREATE EXTENSION IF NOT EXISTS postgres_fdw"_s);
    execute(u"DROP SERVER IF EXISTS kova_shard CASCADE"_s);
    execute(u"CREATE SERVER kova_shard FOREIGN DATA WRAPPER postgres_fdw OPTIONS (host '127.0.0.1', "
            "dbname 'kova', port '%1')"_s.arg(port.match(connectionString()).captured(1)));
    execute(u"CREATE USER MAPPING FOR kova SERVER kova_shard OPTIONS (user 'kova', password '%1')"_s.arg(
        qEnvironmentVariable("KOVA_TEST_PASSWORD")));
    execute(u"CREATE FOREIGN TABLE kova_far (id INTEGER) SERVER kova_shard OPTIONS (table_name 'kova_a')"_s);
    EXPECT_EQ(open(u"SELECT * FROM kova_far"_s)->RecordCount(), 12001);
    execute(u"DROP SERVER kova_shard CASCADE"_s);
}
