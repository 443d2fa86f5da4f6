// A server that goes away, refuses or takes too long, at every moment of a user's work.
#include "FaultFixture.h"

#include <QtCore/QElapsedTimer>

#include <thread>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class ServerFaults : public FaultFixture
{
protected:
    // Does something to the server as soon as it works on `statement`'s result, from outside.
    template<typename Action>
    static std::jthread whileRunning(Action action)
    {
        return std::jthread([action](const std::stop_token &stop) {
            const QString running =
                u"SELECT count(*) FROM pg_stat_activity WHERE pid <> pg_backend_pid() AND "
                "state IN ('active', 'idle in transaction') AND query LIKE '%endless%'"_s;
            OdbcSession session(connection());
            while (!stop.stop_requested() && session.ask(running) == u"0")
                std::this_thread::sleep_for(std::chrono::milliseconds(10));
            if (!stop.stop_requested())
                action(session);
        });
    }
    // Far more than is ever fetched here.
    const QString endless =
        u"SELECT g AS id, 'name ' || g AS endless FROM generate_series(1, 2000000000) g"_s;
    const QString endOthers = u"SELECT count(pg_terminate_backend(pid)) FROM pg_stat_activity "
                              "WHERE pid <> pg_backend_pid() AND backend_type = 'client backend'"_s;
};

} // namespace

TEST_F(ServerFaults, StoppedBeforeALoad)
{
    controlServer("stop", "postgresql");
    EXPECT_FALSE(load());
    EXPECT_TRUE(loadError().startsWith(u"无法连接数据库服务器"));
    EXPECT_FALSE(hands->toolbar->isEnabled());
    controlServer("start", "postgresql");
    EXPECT_TRUE(load());
    expectAsLoaded();
}

TEST_F(ServerFaults, StoppedInTheMiddleOfAFetch)
{
    ASSERT_TRUE(load());
    hands->grid.PutSQLShow(endless);
    {
        const auto killer = whileRunning([](OdbcSession &) { controlServer("kill", "postgresql"); });
        EXPECT_FALSE(hands->grid.IsLoadData());
    }
    EXPECT_TRUE(loadError().contains(u"连接已断开"));
    expectAsLoaded();
}

TEST_F(ServerFaults, ResetInTheMiddleOfAFetch)
{
    ASSERT_TRUE(load());
    hands->grid.PutSQLShow(endless);
    {
        const auto killer = whileRunning([this](OdbcSession &session) { session.ask(endOthers); });
        EXPECT_FALSE(hands->grid.IsLoadData());
    }
    EXPECT_FALSE(loadError().isEmpty());
    expectAsLoaded();
}

TEST_F(ServerFaults, StoppedAfterALoad)
{
    ASSERT_TRUE(load());
    controlServer("stop", "postgresql");
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::sort(dialog, {u"id"_s}, true); },
                           [](QDialog &dialog) { Hands::sort(dialog, {u"id"_s}, true); }});
    hands->click(u"Sort"_s);
    EXPECT_FALSE(openError().isEmpty());
    expectAsLoaded();
    hands->click(u"SingleRecord"_s); // what is there can still be read
    EXPECT_EQ(hands->listed(u"name"_s), u"name 1"_s);
    hands->click(u"AllRecord"_s);
    controlServer("start", "postgresql");
    hands->click(u"Sort"_s);
    EXPECT_EQ(hands->texts(u"id"_s).first(), u"1000"_s);
    EXPECT_TRUE(hands->messages.shown().empty());
}

TEST_F(ServerFaults, ResetBetweenTwoCommands)
{
    ASSERT_TRUE(load());
    ask(endOthers);
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::sort(dialog, {u"id"_s}, true); }});
    hands->click(u"Sort"_s);
    EXPECT_EQ(hands->texts(u"id"_s).first(), u"1000"_s);
    EXPECT_TRUE(hands->messages.shown().empty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
}

TEST_F(ServerFaults, ResetBeforeADeletion)
{
    run(u"ALTER TABLE faults ADD PRIMARY KEY (id)"_s);
    ASSERT_TRUE(load());
    ask(endOthers);
    hands->messages.answerNext(QMessageBox::Yes);
    hands->choose(9, 3);
    EXPECT_EQ(hands->messages.texts().size(), 2) << qUtf8Printable(hands->messages.texts().join(u'|'));
    expectAsLoaded();
    EXPECT_EQ(ask(u"SELECT count(*) FROM faults"_s), u"1000"_s);

    // What the engine needs is not forgotten with the connection.
    hands->messages.clear();
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::find(dialog, u"77"_s, u"id"_s); }});
    hands->click(u"QuickFilter"_s);
    EXPECT_EQ(hands->texts(u"id"_s).first(), u"77"_s) << qUtf8Printable(hands->statement());
    EXPECT_TRUE(hands->messages.shown().empty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
}

TEST_F(ServerFaults, WrongPassword)
{
    ASSERT_TRUE(load());
    hands->grid.PutConnectionString(connection().replace(markerPassword(), u"wrong-"_s + markerPassword()));
    EXPECT_FALSE(hands->grid.IsLoadData());
    EXPECT_TRUE(loadError().startsWith(u"数据库服务器拒绝登录"));
    expectAsLoaded();
}

TEST_F(ServerFaults, UnknownDriver)
{
    ASSERT_TRUE(load());
    hands->grid.PutConnectionString(connection().replace(u"PostgreSQL Unicode"_s, u"No Such Driver"_s));
    EXPECT_FALSE(hands->grid.IsLoadData());
    const QString error = loadError();
    EXPECT_TRUE(error.contains(u"No Such Driver")) << qUtf8Printable(error);
    EXPECT_TRUE(error.contains(u"PostgreSQL Unicode")) << qUtf8Printable(error);
    expectAsLoaded();
}

TEST_F(ServerFaults, StatementTimeOut)
{
    ASSERT_TRUE(load());
    hands->grid.PutConnectionString(connection() + u";Command Timeout=1"_s);
    hands->grid.PutSQLShow(u"SELECT pg_sleep(20) AS a FROM generate_series(1, 1)"_s);
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(hands->grid.IsLoadData());
    EXPECT_LT(timer.elapsed(), 10'000);
    EXPECT_TRUE(loadError().contains(u"限定"));
    expectAsLoaded();
}

TEST_F(ServerFaults, LeaveNoHandlesAndNoMemoryBehind)
{
    const QString wrong = connection().replace(markerPassword(), u"wrong"_s);
    const auto failAndRecover = [&] {
        hands->grid.PutConnectionString(wrong);
        EXPECT_FALSE(load());
        hands->grid.PutConnectionString(connection());
        EXPECT_FALSE(load(u"SELECT * FROM missing"_s));
        EXPECT_TRUE(load());
        hands->messages.clear();
    };
    for (int i = 0; i < 5; ++i) // what libraries keep once and for all
        failAndRecover();
    const int handles = openHandles();
    const qint64 memory = memoryInUse();
    for (int i = 0; i < 20; ++i)
        failAndRecover();
    EXPECT_EQ(openHandles(), handles);
    EXPECT_LE(memoryInUse(), memory + 8);
}
