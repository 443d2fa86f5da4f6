// A connection that is lost while a change is written: what the change tells, and how the recordset finds out
// through a new session what has come of it. Unix only.
#include "DroppingProxy.h"
#include "OdbcEngines.h"
#include "Throwing.h"

#include "servers/OdbcSession.h"

#include <QtCore/QRegularExpression>

#include <chrono>
#include <thread>

using namespace Qt::Literals::StringLiterals;
using namespace ADODB;
using AdoTest::errorOf;

namespace {

void put(Recordset &recordset, const QString &field, const QVariant &value)
{
    recordset.Fields().Item(field).PutValue(value);
}

class LostInCommit : public AdoTest::OnOdbc
{
protected:
    QString content(const QString &column = u"name"_s) const
    {
        return ask(u"SELECT %1 FROM kova_a WHERE id = 1"_s.arg(column));
    }
    void makeTable()
    {
        execute(u"CREATE TABLE kova_a(id %1, name VARCHAR(40), price DECIMAL(8,2))"_s.arg(
            QLatin1StringView(GetParam().integerKey)));
        execute(u"INSERT INTO kova_a VALUES (1, 'one', 1.5), (2, 'two', 2.5)"_s);
    }
    // A connection through a proxy that drops it in the next COMMIT.
    std::shared_ptr<Recordset> openThrough(AdoTest::DroppingProxy &proxy, AdoTest::DroppingProxy::When when)
    {
        auto connection = std::make_shared<Connection>();
        connection->Open(connectionString().replace(port, u"Port=%1"_s.arg(proxy.port())));
        auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s, connection);
        proxy.dropAtCommit(when);
        return recordset;
    }
    int serverPort() const { return port.match(connectionString()).captured(1).toInt(); }
    const QRegularExpression port{u"Port=(\\d+)"_s};
};

KOVA_ON_ODBC_SERVERS(LostInCommit);

TEST_P(LostInCommit, SaysThatNobodyKnows)
{
    makeTable();
    using enum AdoTest::DroppingProxy::When;
    for (const auto when : {BeforeTheServerHears, AfterTheServerAnswered}) {
        SCOPED_TRACE(when == BeforeTheServerHears ? "before" : "after");
        AdoTest::DroppingProxy proxy(serverPort());
        const auto recordset = openThrough(proxy, when);
        const QString name = when == BeforeTheServerHears ? u"lost"_s : u"kept"_s;
        put(*recordset, u"name"_s, name);
        const Error error = errorOf([&] { recordset->Update(); });
        EXPECT_TRUE(proxy.hasDropped());
        EXPECT_TRUE(error.is(dbErrInDoubt)) << std::hex << error.Number() << error.what();
        EXPECT_TRUE(error.Description().contains(u"无法确定更改是否已经保存")) << error.what();
        EXPECT_FALSE(error.Description().contains(u"没有保存")) << error.what();
        EXPECT_EQ(content(), when == BeforeTheServerHears ? u"one"_s : u"kept"_s);
        EXPECT_EQ(recordset->FindAttempt(), when == AfterTheServerAnswered);
        EXPECT_EQ(recordset->EditMode(), when == AfterTheServerAnswered ? adEditNone : adEditInProgress);
        EXPECT_EQ(recordset->CellText(1, 1), when == AfterTheServerAnswered ? u"kept"_s : u"one"_s);
        EXPECT_FALSE(recordset->FindAttempt()) << "there is nothing more to find out";
        recordset->Update();
        EXPECT_EQ(content(), name);
        execute(u"UPDATE kova_a SET name = 'one' WHERE id = 1"_s);
    }
}

TEST_P(LostInCommit, IsFoundOutByTheNextUpdate)
{
    makeTable();
    using enum AdoTest::DroppingProxy::When;
    for (const auto when : {BeforeTheServerHears, AfterTheServerAnswered}) {
        SCOPED_TRACE(when == BeforeTheServerHears ? "before" : "after");
        AdoTest::DroppingProxy proxy(serverPort());
        const auto recordset = openThrough(proxy, when);
        const QString price = when == BeforeTheServerHears ? u"1.516"_s : u"3.004"_s; // which it rounds
        put(*recordset, u"price"_s, price);
        EXPECT_ADO_ERROR(dbErrInDoubt, recordset->Update());
        recordset->Update();
        EXPECT_EQ(recordset->CellText(1, 2), when == BeforeTheServerHears ? u"1.52"_s : u"3.00"_s);
        EXPECT_EQ(content(u"price"_s), recordset->CellText(1, 2));
        EXPECT_EQ(recordset->EditMode(), adEditNone);
    }
}

// The key is the database's, which is not asked for it twice.
TEST_P(LostInCommit, AddsNoRecordTwice)
{
    makeTable();
    using enum AdoTest::DroppingProxy::When;
    for (const auto when : {BeforeTheServerHears, AfterTheServerAnswered}) {
        SCOPED_TRACE(when == BeforeTheServerHears ? "before" : "after");
        AdoTest::DroppingProxy proxy(serverPort());
        const auto recordset = openThrough(proxy, when);
        recordset->AddNew();
        put(*recordset, u"name"_s, u"new"_s);
        EXPECT_ADO_ERROR(dbErrInDoubt, recordset->Update());
        EXPECT_EQ(recordset->FindAttempt(), when == AfterTheServerAnswered);
        EXPECT_EQ(recordset->RecordCount(), when == AfterTheServerAnswered ? 3 : 2);
        recordset->Update();
        EXPECT_EQ(recordset->RecordCount(), 3);
        EXPECT_EQ(recordset->AbsolutePosition(), 3);
        EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"3"_s);
        execute(u"DELETE FROM kova_a WHERE name = 'new'"_s);
    }
}

// A server may still be processing the COMMIT of a lost connection. A transaction of another session
// simulates that here; it uses the key that the database generated for the record.
TEST_P(LostInCommit, AddsNoRecordTwiceWhoseCommitComesToItsEndLater)
{
    makeTable();
    AdoTest::DroppingProxy proxy(serverPort());
    const auto recordset = openThrough(proxy, AdoTest::DroppingProxy::BeforeTheServerHears);
    recordset->AddNew();
    put(*recordset, u"name"_s, u"new"_s);
    EXPECT_ADO_ERROR(dbErrInDoubt, recordset->Update());
    KovaTest::OdbcSession lost(connectionString());
    lost.run({u"BEGIN"_s, u"INSERT INTO kova_a(id, name) VALUES (%1, 'new')"_s.arg(is("MariaDB") ? 3 : 100)});
    EXPECT_FALSE(recordset->FindAttempt());
    const std::jthread server([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(500));
        lost.run(u"COMMIT"_s);
    });
    recordset->Update();
    EXPECT_EQ(recordset->RecordCount(), 3);
    EXPECT_EQ(recordset->CellText(3, 1), u"new"_s);
    EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"3"_s);
}

TEST_P(LostInCommit, MayHaveDeletedARecord)
{
    using enum AdoTest::DroppingProxy::When;
    for (const bool asksFirst : {true, false}) {
        for (const auto when : {BeforeTheServerHears, AfterTheServerAnswered}) {
            SCOPED_TRACE(when == BeforeTheServerHears ? "before" : "after");
            makeTable();
            AdoTest::DroppingProxy proxy(serverPort());
            const auto recordset = openThrough(proxy, when);
            EXPECT_ADO_ERROR(dbErrInDoubt, recordset->Delete());
            EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), when == BeforeTheServerHears ? u"2"_s : u"1"_s);
            EXPECT_EQ(recordset->RecordCount(), 2) << "nobody has looked yet";
            if (asksFirst) {
                EXPECT_EQ(recordset->FindAttempt(), when == AfterTheServerAnswered);
            }
            if (!asksFirst || when == BeforeTheServerHears)
                recordset->Delete();
            EXPECT_EQ(recordset->RecordCount(), 1);
            EXPECT_EQ(recordset->EditMode(), adEditDelete);
            EXPECT_EQ(recordset->CellText(1, 1), u"two"_s);
            EXPECT_EQ(content(), QString());
            EXPECT_EQ(ask(u"SELECT count(*) FROM kova_a"_s), u"1"_s);
            execute(u"DROP TABLE kova_a"_s);
        }
    }
}

// If somebody else deletes the record, that is not the user's deletion.
TEST_P(LostInCommit, TakesNoOtherDeletionForItsOwn)
{
    makeTable();
    AdoTest::DroppingProxy proxy(serverPort());
    const auto recordset = openThrough(proxy, AdoTest::DroppingProxy::BeforeTheServerHears);
    EXPECT_ADO_ERROR(dbErrInDoubt, recordset->Delete());
    recordset->MoveNext();
    execute(u"DELETE FROM kova_a WHERE id = 2"_s);
    EXPECT_FALSE(recordset->FindAttempt());
    EXPECT_ADO_ERROR(dbErrConcurrency, recordset->Delete());
    EXPECT_EQ(recordset->RecordCount(), 2);
}

// Which is known as long as the server has not been asked to commit.
TEST_P(LostInCommit, SaysThatNothingIsSavedWhereItIsLostBefore)
{
    makeTable();
    auto proxy = std::make_unique<AdoTest::DroppingProxy>(serverPort());
    auto connection = std::make_shared<Connection>();
    connection->Open(connectionString().replace(port, u"Port=%1"_s.arg(proxy->port())));
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s, connection);
    proxy.reset();
    put(*recordset, u"name"_s, u"mine"_s);
    const Error error = errorOf([&] { recordset->Update(); });
    EXPECT_FALSE(error.is(dbErrInDoubt)) << error.what();
    EXPECT_EQ(content(), u"one"_s);
}

// Nothing of the lost session is needed to save what is pending.
TEST_P(LostInCommit, LeavesARecordsetThatCanBeSavedThroughANewSession)
{
    makeTable();
    AdoTest::DroppingProxy proxy(serverPort());
    auto connection = std::make_shared<Connection>();
    connection->Open(connectionString().replace(port, u"Port=%1"_s.arg(proxy.port())));
    const auto recordset = open(u"SELECT * FROM kova_a ORDER BY id"_s, connection);
    proxy.dropAt("UPDATE", AdoTest::DroppingProxy::BeforeTheServerHears);
    put(*recordset, u"name"_s, u"mine"_s);
    const Error error = errorOf([&] { recordset->Update(); });
    EXPECT_TRUE(proxy.hasDropped());
    EXPECT_TRUE(error.Description().contains(u"连接已断开")) << error.what();
    EXPECT_EQ(recordset->EditMode(), adEditInProgress);
    EXPECT_EQ(connection->State(), adStateClosed);
    recordset->Update();
    EXPECT_EQ(content(), u"mine"_s);
    EXPECT_EQ(connection->State(), adStateOpen);
}

} // namespace
