// Waiting for what another session holds.
#include "OdbcEngines.h"
#include "Throwing.h"

#include "servers/OdbcSession.h"

#include <optional>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;
using AdoTest::errorOf;

namespace {

// A table or a row that another session holds.
class OdbcLocks : public AdoTest::OnOdbc
{
protected:
    void SetUp() override
    {
        OnOdbc::SetUp();
        if (IsSkipped() || HasFatalFailure())
            return;
        execute(u"CREATE TABLE kova_a(id INTEGER PRIMARY KEY, a VARCHAR(20))"_s);
        execute(u"INSERT INTO kova_a VALUES (1, 'x'), (2, 'y')"_s);
        other.emplace(connectionString());
    }
    void TearDown() override
    {
        other.reset();
        OnOdbc::TearDown();
    }
    // Locks it for readers too.
    void holdTable()
    {
        other->run(is("MariaDB") ? QStringList{u"LOCK TABLES kova_a WRITE"_s}
                                 : QStringList{u"BEGIN"_s, u"LOCK TABLE kova_a"_s});
    }
    void holdRow(int id)
    {
        other->run({u"BEGIN"_s, u"UPDATE kova_a SET a = 'held' WHERE id = %1"_s.arg(id)});
    }

    std::optional<KovaTest::OdbcSession> other;
};

KOVA_ON_ODBC_SERVERS(OdbcLocks);

TEST_P(OdbcLocks, KeepNobodyWaitingBeyondTheTimeLimit)
{
    const auto connection = std::make_shared<Connection>();
    connection->Open(connectionString() + u";Command Timeout=1"_s);
    holdTable();
    const Error error = errorOf([&] { open(u"SELECT * FROM kova_a; -- all"_s, connection); });
    EXPECT_EQ(error.SQLState(), u"HYT00"_s) << error.what();
    other.reset();
    EXPECT_EQ(open(u"SELECT * FROM kova_a"_s, connection)->RecordCount(), 2);
}

TEST_P(OdbcLocks, KeepNobodyWaitingWhoCancels)
{
    const auto connection = connect();
    holdTable();
    Recordset recordset;
    int reports = 0;
    recordset.SetProgress([&](qint64) { return ++reports < 5; });
    EXPECT_ADO_ERROR(dbErrCancelled, recordset.Open(u"SELECT * FROM kova_a"_s, connection));
    other.reset();
    recordset.SetProgress({});
    recordset.Open(u"SELECT * FROM kova_a"_s, connection);
    EXPECT_EQ(recordset.RecordCount(), 2);
}

TEST_P(OdbcLocks, EndAChangeOfARowWithoutItsBeingMade)
{
    const auto connection = std::make_shared<Connection>();
    connection->Open(connectionString() + u";Command Timeout=1"_s);
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s, connection);
    holdRow(1);
    EXPECT_EQ(errorOf([&] { recordset->Delete(); }).SQLState(), u"HYT00"_s);
    recordset->Fields().Item(1).PutValue(u"mine"_s);
    EXPECT_EQ(errorOf([&] { recordset->Update(); }).SQLState(), u"HYT00"_s);
    recordset->CancelUpdate();
    other->run(u"ROLLBACK"_s);
    EXPECT_EQ(ask(u"SELECT a FROM kova_a WHERE id = 1"_s), u"x"_s);
    recordset->Delete();
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"1"_s);
}

TEST_P(OdbcLocks, EndAnEditOfATableThatSomebodyHolds)
{
    const auto connection = std::make_shared<Connection>();
    connection->Open(connectionString() + u";Command Timeout=1"_s);
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s, connection);
    holdTable();
    recordset->Fields().Item(1).PutValue(u"mine"_s);
    EXPECT_EQ(errorOf([&] { recordset->Update(); }).SQLState(), u"HYT00"_s);
    recordset->CancelUpdate();
    recordset->AddNew();
    recordset->Fields().Item(0).PutValue(3);
    EXPECT_EQ(errorOf([&] { recordset->Update(); }).SQLState(), u"HYT00"_s);
    recordset->CancelUpdate();
    EXPECT_EQ(errorOf([&] { recordset->Delete(); }).SQLState(), u"HYT00"_s);
    other.reset();
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"2"_s);
    recordset->Fields().Item(1).PutValue(u"mine"_s);
    recordset->Update();
    EXPECT_EQ(ask(u"SELECT a FROM kova_a WHERE id = 1"_s), u"mine"_s);
}

} // namespace
