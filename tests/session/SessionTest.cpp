// A session from its load to its end, without any window.
#include "SessionFixture.h"

#include "ado/Error.h"
#include "query/SharedValues.h"
#include "query/clsFilterManagement.h"
#include "session/LoadResult.h"
#include "session/WindowRules.h"
#include "session/columns/ColumnCommand.h"
#include "session/history/SharedHistory.h"
#include "session/statement/ConnectionFieldReader.h"
#include "session/statement/ShownConditions.h"
#include "session/statement/ShownStatement.h"

#include <gtest/gtest-spi.h>

using namespace KovaTest;
using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

using Sessions = SessionFixture;

TEST_F(Sessions, ALoadShowsTheFirstPageAndEntersTheHistory)
{
    ASSERT_TRUE(load());
    EXPECT_EQ(window.rows, QStringList({u"1 Tea 3.5"_s, u"2 Rice 2"_s, u"3 Salt 1"_s}));
    EXPECT_EQ(window.shownPage, 1);
    EXPECT_EQ(window.currentRow, 1);
    EXPECT_EQ(session->history().Count(), 1);
    EXPECT_EQ(session->texts.recordSource, u"select * from T"_s);
    EXPECT_TRUE(window.pressed[u"All"_s]);
    EXPECT_EQ(SharedValues::instance().recordCount, 3);
}

TEST_F(Sessions, AFailedLoadLeavesWhatWasShown)
{
    ASSERT_TRUE(load());
    EXPECT_FALSE(load(u"select * from Nowhere"_s));
    ASSERT_EQ(user.messages.size(), 2);
    EXPECT_TRUE(user.messages.front().startsWith(u"错误描述为："_s));
    EXPECT_EQ(user.messages.back(), u"数据库打开失败。"_s);
    EXPECT_EQ(window.rows.size(), 3);
    EXPECT_EQ(session->history().Count(), 1);
    EXPECT_EQ(session->shown().text(), u"select * from T"_s);
}

TEST_F(Sessions, CommandsDeriveStatementsAndStepBack)
{
    ASSERT_TRUE(load());
    user.sort = u"Name"_s;
    session->run(u"Sort"_s);
    EXPECT_EQ(window.rows, QStringList({u"2 Rice 2"_s, u"3 Salt 1"_s, u"1 Tea 3.5"_s}));
    session->run(u"FromResult"_s);
    user.condition = u"Price < 3"_s;
    session->run(u"Filter"_s);
    EXPECT_EQ(window.rows, QStringList({u"2 Rice 2"_s, u"3 Salt 1"_s}));
    user.words = u"al"_s;
    session->run(u"QuickFilter"_s);
    EXPECT_EQ(window.rows, QStringList(u"3 Salt 1"_s));
    session->run(u"ToPreview"_s);
    EXPECT_EQ(window.rows.size(), 2);
    session->run(u"ToFullTable"_s);
    EXPECT_EQ(window.rows.size(), 3);
    session->run(u"ToOrigin"_s);
    EXPECT_EQ(statement(), u"select * from T"_s);
    EXPECT_EQ(window.rows.front(), u"1 Tea 3.5"_s);
    EXPECT_TRUE(user.messages.isEmpty());
}

TEST_F(Sessions, ChosenFieldsHideTheOthersAndTheHostIsNotified)
{
    ASSERT_TRUE(load());
    user.fields = u"Name"_s;
    session->run(u"SelField"_s);
    EXPECT_EQ(window.shownFields(), QStringList(u"Name"_s));
    EXPECT_TRUE(host.changedFields.startsWith(u"SELECT Name"_s)) << host.changedFields.toStdString();
    session->run(u"All"_s);
    EXPECT_EQ(window.shownFields(), QStringList({u"ID"_s, u"Name"_s, u"Price"_s}));
}

TEST_F(Sessions, TheHostsConditionTakesTheDialogsPlace)
{
    ASSERT_TRUE(load());
    host.cancelFilter = 0;
    user.condition = u"ID = 1"_s; // not requested by anybody
    session->run(u"Filter"_s);
    EXPECT_EQ(window.rows.size(), 3) << "the host gave no condition";
    EXPECT_EQ(session->texts.sqlFilter, QString());
}

TEST_F(Sessions, ADeletedRecordGoesAndTheNextOneIsCurrent)
{
    ASSERT_TRUE(load());
    session->result().recordset()->PutAbsolutePosition(2);
    session->run(u"DeleteRecord"_s);
    EXPECT_EQ(window.rows, QStringList({u"1 Tea 3.5"_s, u"3 Salt 1"_s}));
    EXPECT_EQ(session->result().recordset()->AbsolutePosition(), 2);
    EXPECT_EQ(database.ask(u"select count(*) from T"_s), u"2"_s);
    user.says = false;
    session->run(u"DeleteRecord"_s);
    EXPECT_EQ(window.rows.size(), 2);
}

TEST_F(Sessions, ACommandThatRunsOutOfMemorySaysSo)
{
    session->perform([] { throw std::bad_alloc(); });
    EXPECT_EQ(user.messages, QStringList{u"内存不足，操作没有完成。"_s});
    EXPECT_FALSE(session->isRunning());
}

TEST_F(Sessions, AQuestionThatAnotherLoadOvertakesEndsItsCommand)
{
    ASSERT_TRUE(load());
    user.meanwhile = [this] { ASSERT_TRUE(load(u"select Name from T"_s)); };
    user.sort = u"ID"_s;
    session->run(u"Sort"_s);
    EXPECT_EQ(statement(), u"select Name from T"_s);
    EXPECT_EQ(session->history().Count(), 1);
}

TEST_F(Sessions, ASessionOutlivesItsWindowWhileACommandRuns)
{
    for (const char *key : {"Sort", "Filter", "QuickFilter", "SelField", "DeleteRecord"}) {
        auto other = std::make_shared<Session>(window, user, host, controlRules, &adodc);
        other->texts.connectionString = database.connectionString();
        other->texts.sqlShow = u"select * from T"_s;
        ASSERT_TRUE(loadResult(*other));
        const std::weak_ptr<Session> watch = other;
        user.sort = user.fields = u"ID"_s;
        user.condition = user.words = u"ID = 1"_s;
        user.meanwhile = [&] {
            other->detach();
            other.reset();
        };
        const QStringList before = window.rows;
        Session &running = *other;
        running.run(QString::fromLatin1(key));
        EXPECT_TRUE(watch.expired()) << key;
        EXPECT_EQ(window.rows, before) << key;
    }
    EXPECT_EQ(database.ask(u"select count(*) from T"_s), u"3"_s);
    EXPECT_TRUE(user.messages.isEmpty());
}

TEST_F(Sessions, TheHostIsNotifiedOfAResultOnlyWhenItIsComplete)
{
    ASSERT_TRUE(load());
    user.sort = u"ID DESC"_s;
    QStringList heard;
    const auto note = [&](const QString &what) {
        heard.append(u"%1: %2 of %3"_s.arg(what, window.rows.value(0), statement()));
    };
    QObject::connect(&adodc, &ADODB::Adodc::RecordsetChangeComplete, &adodc, [&] { note(u"set"_s); });
    QObject::connect(&adodc, &ADODB::Adodc::MoveComplete, &adodc, [&] { note(u"move"_s); });
    session->run(u"Sort"_s);
    ASSERT_GE(heard.size(), 3) << "the old result closed, the new one opened, its first record current";
    for (const QString &report : heard)
        EXPECT_TRUE(report.endsWith(u"3 Salt 1 of select * from T ORDER BY ID DESC"_s))
            << report.toStdString();
}

TEST_F(Sessions, TheFieldsOfTheOpenResultAreNotReadAgain)
{
    ASSERT_TRUE(load());
    database.run(u"ALTER TABLE T RENAME TO Away"_s);
    const auto fields = session->fieldReader().Read(database.connectionString(), u"select * from T"_s);
    ASSERT_TRUE(fields);
    EXPECT_EQ(fields->size(), 3u);
}

TEST_F(Sessions, ALoadByTheHostDuringSqlFilterEndsTheCommand)
{
    for (const QString &key : {u"Filter"_s, u"ToOrigin"_s}) {
        ASSERT_TRUE(load());
        user.condition = u"ID = 1"_s;
        host.onFilterWritten = [this] { load(u"select Name from T where ID = 2"_s); };
        session->run(key);
        EXPECT_EQ(window.rows, QStringList(u"Rice"_s)) << key.toStdString();
        EXPECT_EQ(session->history().Count(), 1) << key.toStdString();
    }
    EXPECT_TRUE(user.messages.isEmpty());
}

TEST_F(Sessions, AResultThatTheHostClosesDuringSqlFilterStaysClosed)
{
    ASSERT_TRUE(load());
    user.condition = u"ID = 1"_s;
    host.onFilterWritten = [this] { session->clear(); };
    session->run(u"Filter"_s);
    EXPECT_FALSE(session->result().isOpen());
    EXPECT_TRUE(user.messages.isEmpty());
}

TEST_F(Sessions, ALentResultThatIsTakenAwayEndsTheCommandSilently)
{
    ASSERT_TRUE(load());
    std::shared_ptr<Session> viewer;
    viewer =
        std::make_shared<Session>(window, user, host, viewerRules, nullptr,
                                  [&](const QString &, const ResultSet::Progress &) -> ResultSet::Opened {
                                      viewer->sharedHistory().setManager(nullptr);
                                      throw ADODB::Error(ADODB::dbErrCancelled, {});
                                  });
    viewer->sharedHistory().setManager(session->sharedHistory().manager());
    viewer->shown().borrow(
        {database.connectionString(), session->result().connection(), session->result().recordset()},
        session->shown().text(), 1);
    window.currentColumn = 1;
    viewer->run(u"CellFilter"_s);
    EXPECT_TRUE(user.messages.isEmpty());
    viewer->detach();
}

TEST_F(Sessions, ALoadWhoseResultTheHostClosesAtOnceHasNotLoaded)
{
    QObject::connect(
        &adodc, &ADODB::Adodc::RecordsetChangeComplete, &adodc, [this] { session->clear(); },
        Qt::SingleShotConnection);
    EXPECT_FALSE(load());
    EXPECT_FALSE(session->result().isOpen());
    EXPECT_TRUE(user.messages.isEmpty());
    EXPECT_TRUE(load());
}

TEST_F(Sessions, OneStatementIsOpenedAtATimeWithoutAProgressLineToo)
{
    ASSERT_TRUE(load());
    int openings = 0;
    const auto open = [&](const QString &statement, const ResultSet::Progress &progress) {
        ++openings;
        EXPECT_TRUE(SharedValues::instance().isOpening);
        EXPECT_FALSE(load());
        return ResultSet::open(database.connectionString(), statement, 1, progress);
    };
    const auto viewer = std::make_shared<Session>(window, user, host, viewerRules, nullptr, open);
    viewer->sharedHistory().setManager(session->sharedHistory().manager());
    viewer->shown().borrow(
        {database.connectionString(), session->result().connection(), session->result().recordset()},
        session->shown().text(), 1);
    viewer->texts.connectionString = database.connectionString();
    user.sort = u"Name"_s;
    viewer->run(u"Sort"_s);
    EXPECT_EQ(openings, 1);
    EXPECT_FALSE(SharedValues::instance().isOpening);
    viewer->detach();
}

TEST_F(Sessions, AskingForRecordsLeavesTheSharedValuesAlone)
{
    ASSERT_TRUE(load());
    session->shared.recordCountSnapshot = -1;
    session->shared.recordPosition = -1;
    EXPECT_TRUE(session->result().hasRecords());
    EXPECT_EQ(session->shared.recordCountSnapshot, -1);
    EXPECT_EQ(session->shared.recordPosition, -1);
}

// An unexpected message fails a test, so no command can be called by a wrong key.
TEST_F(Sessions, AKeyWithoutACommandFailsTheTestThatUsesIt)
{
    ASSERT_TRUE(load());
    EXPECT_NONFATAL_FAILURE(session->run(u"NoSuchCommand"_s), "No command has the key NoSuchCommand");
    EXPECT_EQ(session->history().Count(), 1);
}
