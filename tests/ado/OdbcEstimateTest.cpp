// How many records a long load from a server tells beforehand.
#include "OdbcEngines.h"

#include "ado/recordset/RecordsSoFar.h"

#ifdef Q_OS_UNIX
#include "servers/LoopbackProxy.h"
#endif

#include <QtCore/QDeadlineTimer>

#include <thread>

using namespace Qt::StringLiterals;
using namespace ADODB;

namespace {

constexpr int count = 5000;
constexpr int answerTime = 20'000; // milliseconds for a machine that is busy with other things
constexpr int silenceTime = 1'500; // the server is asked after a second

class OdbcEstimates : public AdoTest::OnOdbc
{
protected:
    void SetUp() override
    {
        OnOdbc::SetUp();
        if (IsSkipped())
            return;
        const QString numbers = is("PostgreSQL") ? u"generate_series(1, %1) AS s(g)"_s
                                : is("MariaDB")  ? u"(SELECT seq AS g FROM seq_1_to_%1) AS s"_s
                                                 : u"(WITH RECURSIVE s(g) AS (SELECT 1 UNION ALL "
                                                  "SELECT g + 1 FROM s WHERE g < %1) SELECT g FROM s) AS s"_s;
        // Of this kind, MariaDB knows the number exactly.
        execute(u"CREATE TABLE kova_a(id INTEGER PRIMARY KEY, name VARCHAR(20))"_s +
                (is("MariaDB") ? u" ENGINE=MyISAM"_s : QString()));
        execute(u"INSERT INTO kova_a SELECT g, 'name' FROM "_s + numbers.arg(count));
        execute(u"CREATE VIEW kova_v AS SELECT * FROM kova_a WHERE id < 10"_s);
        execute(is("MariaDB") ? u"ANALYZE TABLE kova_a"_s : u"ANALYZE kova_a"_s);
    }
    // What is told within a time, while the load goes on.
    std::optional<qint64> estimateOf(const QString &statement, int milliseconds = answerTime) const
    {
        return estimateOf(statement, connect(), milliseconds);
    }
    std::optional<qint64> estimateOf(const QString &statement, const std::shared_ptr<Connection> &connection,
                                     int milliseconds = answerTime) const
    {
        Recordset recordset;
        std::optional<qint64> estimate;
        recordset.SetProgress([&](qint64 rowsRead) {
            // The load ends when this returns.
            for (const QDeadlineTimer due(milliseconds); rowsRead > 0 && !estimate && !due.hasExpired();) {
                estimate = estimatedRecords(recordset);
                std::this_thread::yield();
            }
            return true;
        });
        recordset.Open(statement, connection, adOpenKeyset, adLockOptimistic);
        EXPECT_GT(recordset.RecordCount(), 0);
        return estimate;
    }
    void expectNoneFor(const QString &statement) const
    {
        EXPECT_EQ(estimateOf(statement, silenceTime), std::nullopt) << qUtf8Printable(statement);
    }
};

KOVA_ON_ODBC_ENGINES(OdbcEstimates);

} // namespace

TEST_P(OdbcEstimates, AreTheNumberOfRowsOfATable)
{
    if (is("SQLite"))
        return expectNoneFor(u"SELECT * FROM kova_a"_s);
    EXPECT_EQ(estimateOf(u"SELECT * FROM kova_a"_s), count);
    EXPECT_EQ(estimateOf(u"SELECT name, id FROM kova_a AS k ORDER BY name; -- and no more"_s), count);
}

// A million would be a lie for ten records.
TEST_P(OdbcEstimates, KnowConditionsAndLimitsOrSayNothing)
{
    if (is("SQLite"))
        GTEST_SKIP() << "has no estimates over ODBC";
    const QString condition = u"SELECT * FROM kova_a WHERE id <= 50"_s;
    const QString limit = u"SELECT * FROM kova_a LIMIT 7"_s;
    const QString view = u"SELECT * FROM kova_v"_s;
    if (is("MariaDB")) {
        expectNoneFor(condition);
        expectNoneFor(limit);
        expectNoneFor(view);
        return;
    }
    EXPECT_LT(estimateOf(condition).value_or(count), 500);
    EXPECT_EQ(estimateOf(limit), 7);
    EXPECT_LT(estimateOf(view).value_or(count), 500);
    EXPECT_EQ(estimateOf(u"SELECT 1 UNION ALL SELECT 2"_s), 2);
    expectNoneFor(u"SHOW server_version"_s);
}

TEST_P(OdbcEstimates, AreWhatTheServerBelieves)
{
    if (!is("PostgreSQL"))
        GTEST_SKIP() << "its statistics can't be changed by hand";
    execute(u"UPDATE pg_class SET reltuples = 3000000 WHERE oid = 'kova_a'::regclass"_s);
    EXPECT_EQ(estimateOf(u"SELECT * FROM kova_a"_s), 3'000'000);
}

// Of another kind of table in MariaDB, and in PostgreSQL of one that was never analyzed.
TEST_P(OdbcEstimates, AreGuessedByTheServerIfItMust)
{
    if (is("SQLite"))
        GTEST_SKIP() << "has no estimates over ODBC";
    execute((is("MariaDB") ? u"CREATE TABLE kova_b ENGINE=InnoDB AS %1"_s : u"CREATE TABLE kova_b AS %1"_s)
                .arg(u"SELECT * FROM kova_a"_s));
    const qint64 guessed = estimateOf(u"SELECT * FROM kova_b"_s).value_or(0);
    EXPECT_GT(guessed, count / 10);
    EXPECT_LT(guessed, count * 10);
}

TEST_P(OdbcEstimates, AreNotAskedForInAShortLoad)
{
#ifdef Q_OS_UNIX
    if (is("SQLite"))
        GTEST_SKIP() << "has no server";
    KovaTest::LoopbackProxy proxy(KovaTest::LoopbackProxy::portOf(connectionString()));
    const auto connection = std::make_shared<Connection>();
    connection->Open(proxy.in(connectionString()));
    Recordset recordset;
    recordset.SetProgress([&](qint64) {
        EXPECT_EQ(estimatedRecords(recordset), std::nullopt);
        return true;
    });
    proxy.forget();
    recordset.Open(u"SELECT * FROM kova_a WHERE id < 10"_s, connection);
    EXPECT_EQ(proxy.connections(), 0);
#endif
}

// So the next command still finds in its session what the load has learned.
TEST_P(OdbcEstimates, LeaveTheSessionOfTheLoadToTheNextCommand)
{
    if (!is("PostgreSQL"))
        GTEST_SKIP() << "can't estimate a load that is slow by itself";
    const auto connection = connect();
    const auto session = [&] { return open(u"SELECT pg_backend_pid()"_s, connection)->CellText(1, 0); };
    const QString before = session();
    Recordset recordset;
    std::optional<qint64> estimate;
    recordset.SetProgress([&](qint64) {
        estimate = estimatedRecords(recordset);
        return true;
    });
    recordset.Open(u"SELECT id, pg_sleep(0.5) FROM kova_a LIMIT 6"_s, connection);
    EXPECT_EQ(estimate, 6);
    EXPECT_EQ(session(), before);
}
