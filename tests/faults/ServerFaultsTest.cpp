// A server that fails, refuses or takes too long, at every moment of a user's work.
#include "FaultFixture.h"

#include <QtCore/QElapsedTimer>

#include <thread>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class ServerFaults : public FaultFixture
{
protected:
    // Does something to the server from outside, as soon as it works on the endless statement's records.
    template<typename Action>
    std::jthread whileRunning(Action action) const
    {
        return std::jthread([this, action](const std::stop_token &stop) {
            OdbcSession session(connection());
            const QString running = QString::fromLatin1(engine.countEndless);
            while (!stop.stop_requested() && session.ask(running) == u"0")
                std::this_thread::sleep_for(std::chrono::milliseconds(10));
            if (!stop.stop_requested())
                action(session);
        });
    }
    const QString endless = QString::fromLatin1(engine.endless);
};

} // namespace

KOVA_ON_FAULT_ENGINES(ServerFaults);

TEST_P(ServerFaults, StoppedBeforeALoad)
{
    stopServer();
    EXPECT_FALSE(load());
    EXPECT_TRUE(loadError().startsWith(u"无法连接数据库服务器"));
    EXPECT_FALSE(hands->toolbar->isEnabled());
    startServer();
    EXPECT_TRUE(load());
    expectAsLoaded();
}

// Whose fields are read before the statement is opened.
TEST_P(ServerFaults, StoppedBeforeALoadForOracle)
{
    ASSERT_TRUE(load());
    hands->grid.PutConnectionString(engine.oracleConnection());
    hands->grid.PutDBType(KOVAVSFDataGrid::dbOracle);
    hands->grid.PutSQLShow(u"SELECT * FROM faults"_s);
    stopServer();
    EXPECT_FALSE(hands->grid.IsLoadData());
    EXPECT_TRUE(loadError().startsWith(u"无法连接数据库服务器"));
    expectAsLoaded();
    startServer();
    EXPECT_TRUE(hands->grid.IsLoadData());
    const QString quote = QLatin1StringView(engine.name) == "MariaDB"_L1 ? u"`"_s : u"\""_s;
    EXPECT_EQ(hands->grid.RecordSource().simplified(), u"SELECT %1id%1,%1name%1 FROM faults"_s.arg(quote));
}

TEST_P(ServerFaults, ResetBeforeALoadForOracle)
{
    hands->grid.PutConnectionString(engine.oracleConnection());
    hands->grid.PutDBType(KOVAVSFDataGrid::dbOracle);
    ASSERT_TRUE(load());
    endOthers();
    EXPECT_TRUE(hands->grid.IsLoadData());
    EXPECT_TRUE(hands->messages.shown().empty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
    EXPECT_EQ(hands->rows(), 1000);
}

TEST_P(ServerFaults, StoppedInTheMiddleOfAFetch)
{
    ASSERT_TRUE(load());
    hands->grid.PutSQLShow(endless);
    {
        const auto killer = whileRunning([this](OdbcSession &) { controlServer("kill", engine.server); });
        EXPECT_FALSE(hands->grid.IsLoadData());
    }
    EXPECT_TRUE(loadError().contains(u"连接已断开"));
    expectAsLoaded();
}

TEST_P(ServerFaults, ResetInTheMiddleOfAFetch)
{
    ASSERT_TRUE(load());
    hands->grid.PutSQLShow(endless);
    {
        const auto killer = whileRunning([this](OdbcSession &session) { engine.endOthers(session); });
        EXPECT_FALSE(hands->grid.IsLoadData());
    }
    EXPECT_TRUE(loadError().contains(u"连接已断开"));
    expectAsLoaded();
}

TEST_P(ServerFaults, StoppedAfterALoad)
{
    ASSERT_TRUE(load());
    stopServer();
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::sort(dialog, {u"id"_s}, true); },
                           [](QDialog &dialog) { Hands::sort(dialog, {u"id"_s}, true); }});
    hands->click(u"Sort"_s);
    EXPECT_FALSE(openError().isEmpty());
    expectAsLoaded();
    hands->click(u"SingleRecord"_s); // what is there can still be read
    EXPECT_EQ(hands->listed(u"name"_s), u"name 1"_s);
    hands->click(u"AllRecord"_s);
    startServer();
    hands->click(u"Sort"_s);
    EXPECT_EQ(hands->texts(u"id"_s).first(), u"1000"_s);
    EXPECT_TRUE(hands->messages.shown().empty());
}

TEST_P(ServerFaults, ResetBetweenTwoCommands)
{
    ASSERT_TRUE(load());
    endOthers();
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::sort(dialog, {u"id"_s}, true); }});
    hands->click(u"Sort"_s);
    EXPECT_EQ(hands->texts(u"id"_s).first(), u"1000"_s);
    EXPECT_TRUE(hands->messages.shown().empty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
}

TEST_P(ServerFaults, ResetBeforeADeletion)
{
    run(u"ALTER TABLE faults ADD PRIMARY KEY (id)"_s);
    ASSERT_TRUE(load());
    endOthers();
    hands->messages.answerNext(QMessageBox::Yes);
    hands->choose(9, 3);
    EXPECT_EQ(hands->rows(), 999);
    EXPECT_EQ(ask(u"SELECT count(*) FROM faults"_s), u"999"_s);

    // What the engine needs is not forgotten with the connection.
    hands->messages.clear();
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::find(dialog, u"77"_s, u"id"_s); }});
    hands->click(u"QuickFilter"_s);
    EXPECT_EQ(hands->texts(u"id"_s).first(), u"77"_s) << qUtf8Printable(hands->statement());
    EXPECT_TRUE(hands->messages.shown().empty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
}

TEST_P(ServerFaults, WrongPassword)
{
    ASSERT_TRUE(load());
    hands->grid.PutConnectionString(connection().replace(markerPassword(), u"wrong-"_s + markerPassword()));
    EXPECT_FALSE(hands->grid.IsLoadData());
    EXPECT_TRUE(loadError().startsWith(u"数据库服务器拒绝登录"));
    expectAsLoaded();
}

TEST_P(ServerFaults, UnknownDriver)
{
    const QString driver = QString::fromLatin1(engine.driver);
    ASSERT_TRUE(load());
    hands->grid.PutConnectionString(connection().replace(driver, u"No Such Driver"_s));
    EXPECT_FALSE(hands->grid.IsLoadData());
    const QString error = loadError();
    EXPECT_TRUE(error.contains(u"No Such Driver")) << qUtf8Printable(error);
    EXPECT_TRUE(error.contains(driver)) << qUtf8Printable(error);
    expectAsLoaded();
}

TEST_P(ServerFaults, StatementTimeOut)
{
    ASSERT_TRUE(load());
    hands->grid.PutConnectionString(connection() + u";Command Timeout=1"_s);
    hands->grid.PutSQLShow(QString::fromLatin1(engine.sleep));
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(hands->grid.IsLoadData());
    EXPECT_LT(timer.elapsed(), 10'000);
    EXPECT_TRUE(loadError().contains(u"限定"));
    expectAsLoaded();
}

TEST_P(ServerFaults, LeaveNoHandlesAndNoMemoryBehind)
{
    const QString wrong = connection().replace(markerPassword(), u"wrong"_s);
    const auto failAndRecover = [&] {
        hands->grid.PutConnectionString(wrong);
        EXPECT_FALSE(load());
        hands->grid.PutConnectionString(connection());
        EXPECT_FALSE(load(u"SELECT * FROM missing"_s));
        {
            const auto killer = whileRunning([this](OdbcSession &session) { engine.endOthers(session); });
            EXPECT_FALSE(load(endless));
        }
        EXPECT_TRUE(load());
        hands->messages.clear();
    };
    for (int i = 0; i < 5; ++i) // what libraries keep once and for all
        failAndRecover();
    const QStringList files = openFiles();
    const qint64 memory = memoryInUse();
    for (int i = 0; i < 20; ++i)
        failAndRecover();
    EXPECT_TRUE(becomesAsFew(files)) << qPrintable(openFiles().join(u' ')) << " instead of "
                                     << qPrintable(files.join(u' '));
    EXPECT_LE(memoryInUse(), memory + 8);
}
