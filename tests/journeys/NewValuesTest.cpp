// Somebody else changes a record while a user is editing it: he is offered the new values, and his own
// changes are kept.
#include "EngineJourney.h"

#include "support/Dialogs.h"

#include <QtCore/QCoreApplication>
#include <QtTest/QTest>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

const QString showNewValues = u"查看新值(&V)"_s;

class NewValues : public EngineJourney
{
protected:
    void SetUp() override
    {
        EngineJourney::SetUp();
        if (IsSkipped())
            return;
        if (!engine.isWritable())
            GTEST_SKIP() << "can only be read";
        ASSERT_TRUE(load());
    }
    // Types into a field of the first record, as it is listed; Enter confirms it.
    void write(const QString &field, const QString &text, bool isConfirmed = true)
    {
        EXPECT_TRUE(hands->writeListed(field, text, isConfirmed));
    }
    void changeByOthers(const QString &assignment)
    {
        database->run({u"UPDATE journey_goods SET "_s + assignment + u" WHERE id = 1"_s});
    }
    QString stored(const QString &field)
    {
        return database->ask(u"SELECT %1 FROM journey_goods WHERE id = 1"_s.arg(field));
    }
    QStringList captions() { return hands->messages.shown().front().captions; }
};

} // namespace

KOVA_ON_ALL_ENGINES(NewValues);

TEST_P(NewValues, AreShownUnderWhatTheUserWrote)
{
    write(u"名称"_s, u"我的茶"_s);
    changeByOthers(u"城市 = '上海', qty = 99"_s);
    hands->messages.pressNext(showNewValues);
    hands->click(u"AllRecord"_s);
    ASSERT_EQ(hands->messages.texts().size(), 1) << qUtf8Printable(hands->messages.texts().join(u'\n'));
    EXPECT_TRUE(hands->messages.texts().front().startsWith(u"记录没有保存：记录已被其他用户修改"_s));
    ASSERT_TRUE(hands->isSingleRecordShown()) << "the record is not left";
    EXPECT_EQ(hands->listed(u"城市"_s), u"上海"_s);
    EXPECT_EQ(hands->listed(u"qty"_s), u"99"_s);
    EXPECT_EQ(hands->listed(u"名称"_s), u"我的茶"_s) << "what he wrote is still there";
    EXPECT_EQ(stored(u"名称"_s), u"龙井茶"_s) << "and not saved";
    hands->click(u"AllRecord"_s);
    EXPECT_EQ(hands->messages.texts().size(), 1) << "what is there now has been shown";
    EXPECT_EQ(stored(u"名称"_s), u"我的茶"_s);
    EXPECT_EQ(stored(u"城市"_s), u"上海"_s) << "and is not written over";
}

TEST_P(NewValues, InTheFieldThatTheUserChangedAreNamed)
{
    write(u"名称"_s, u"我的茶"_s);
    changeByOthers(u"名称 = '他们的茶'"_s);
    hands->messages.pressNext(showNewValues);
    hands->click(u"AllRecord"_s);
    ASSERT_EQ(hands->messages.texts().size(), 2);
    EXPECT_TRUE(hands->messages.texts().back().endsWith(u"名称：现在是“他们的茶”，您填写的是“我的茶”"_s))
        << qUtf8Printable(hands->messages.texts().back());
    EXPECT_EQ(hands->listed(u"名称"_s), u"我的茶"_s);
    QTest::keyClick(hands->list, Qt::Key_Escape);
    EXPECT_EQ(hands->listed(u"名称"_s), u"他们的茶"_s) << "he gives his own up";
    hands->click(u"AllRecord"_s);
    EXPECT_EQ(hands->messages.texts().size(), 2);
    EXPECT_EQ(stored(u"名称"_s), u"他们的茶"_s);
}

TEST_P(NewValues, AreNotShownToAUserWhoOnlyCloses)
{
    write(u"名称"_s, u"我的茶"_s);
    changeByOthers(u"城市 = '上海'"_s);
    hands->click(u"AllRecord"_s);
    EXPECT_TRUE(captions().contains(showNewValues));
    EXPECT_EQ(hands->messages.shown().front().buttons, QMessageBox::Ok);
    EXPECT_EQ(hands->listed(u"城市"_s), u"杭州"_s);
    EXPECT_EQ(hands->listed(u"名称"_s), u"我的茶"_s);
    QTest::keyClick(hands->list, Qt::Key_Escape);
}

TEST_P(NewValues, AreShownInsteadOfDeletingThem)
{
    hands->clickCell(1, 1);
    changeByOthers(u"名称 = '他们的茶'"_s);
    hands->messages.answerNext(QMessageBox::Yes);
    hands->grid.findChild<QAction *>(u"PopMnuDataAction9"_s)->trigger();
    ASSERT_EQ(hands->messages.texts().size(), 2);
    EXPECT_TRUE(hands->messages.shown()[1].cause.startsWith(u"记录已被其他用户修改"_s));
    EXPECT_EQ(hands->texts(u"名称"_s).front(), u"龙井茶"_s);

    hands->messages.clear();
    hands->messages.answerNext(QMessageBox::Yes);
    hands->messages.pressNext(showNewValues, 1);
    hands->grid.findChild<QAction *>(u"PopMnuDataAction9"_s)->trigger();
    EXPECT_EQ(hands->texts(u"名称"_s).front(), u"他们的茶"_s);
    EXPECT_EQ(database->ask(u"SELECT count(*) FROM journey_goods"_s), u"12"_s);

    hands->messages.clear();
    hands->messages.answerNext(QMessageBox::Yes);
    hands->grid.findChild<QAction *>(u"PopMnuDataAction9"_s)->trigger();
    EXPECT_EQ(hands->messages.texts().size(), 1) << "he has seen what he deletes";
    EXPECT_EQ(database->ask(u"SELECT count(*) FROM journey_goods"_s), u"11"_s);
}

TEST_P(NewValues, OfADeletionKeepWhatIsBeingTyped)
{
    write(u"名称"_s, u"我的茶"_s, false);
    changeByOthers(u"城市 = '上海'"_s);
    hands->messages.answerNext(QMessageBox::Yes);
    hands->messages.pressNext(showNewValues, 1);
    hands->grid.findChild<QAction *>(u"PopMnuDataAction9"_s)->trigger();
    EXPECT_EQ(hands->listed(u"城市"_s), u"上海"_s);
    EXPECT_EQ(hands->listed(u"名称"_s), u"我的茶"_s);
    QTest::keyClick(hands->list, Qt::Key_Escape);
}

TEST_P(NewValues, AreOfferedWhenTheResultIsAboutToGo)
{
    write(u"名称"_s, u"我的茶"_s);
    changeByOthers(u"城市 = '上海'"_s);
    hands->messages.pressNext(showNewValues);
    EXPECT_FALSE(hands->grid.IsLoadData());
    EXPECT_EQ(hands->messages.shown().front().title, u"记录没有保存"_s);
    ASSERT_TRUE(hands->isSingleRecordShown());
    EXPECT_EQ(hands->listed(u"城市"_s), u"上海"_s);
    EXPECT_EQ(hands->listed(u"名称"_s), u"我的茶"_s);
    EXPECT_TRUE(hands->grid.IsLoadData());
    EXPECT_EQ(stored(u"名称"_s), u"我的茶"_s);
}

TEST_P(NewValues, OfARecordThatIsGoneCannotBeShown)
{
    write(u"名称"_s, u"我的茶"_s);
    database->run({u"DELETE FROM journey_goods WHERE id = 1"_s});
    hands->messages.pressNext(showNewValues);
    hands->click(u"AllRecord"_s);
    ASSERT_EQ(hands->messages.texts().size(), 2);
    EXPECT_EQ(hands->messages.texts().back(), u"无法查看新值：记录已被其他用户删除，无法重新读取。"_s);
    EXPECT_EQ(hands->listed(u"名称"_s), u"我的茶"_s) << "he can still copy it";
    QTest::keyClick(hands->list, Qt::Key_Escape);
}
