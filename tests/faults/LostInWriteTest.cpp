// A connection is lost while a user's change is being written: he is told the outcome, nothing is written
// twice, and what was not saved can be saved through a new connection.
#include "FaultFixture.h"

#include "../ado/DroppingProxy.h"
#include "../support/Dialogs.h"

#include "servers/LoopbackProxy.h"

#include <QtTest/QTest>
#include <QtWidgets/QToolTip>

using namespace KovaTest;
using namespace Qt::StringLiterals;
using AdoTest::DroppingProxy;

namespace {

class LostInWrite : public FaultFixture
{
protected:
    void SetUp() override
    {
        FaultFixture::SetUp();
        if (IsSkipped())
            return;
        run(u"DROP TABLE IF EXISTS kept"_s);
        run(u"CREATE TABLE kept (id SERIAL PRIMARY KEY, name VARCHAR(20))"_s);
        run(u"INSERT INTO kept (name) VALUES ('one'), ('two'), ('three')"_s);
        proxy.emplace(LoopbackProxy::portOf(connection()));
        hands->grid.PutConnectionString(connection().replace(
            u"Port=%1"_s.arg(LoopbackProxy::portOf(connection())), u"Port=%1"_s.arg(proxy->port())));
        ASSERT_TRUE(load(u"SELECT * FROM kept ORDER BY id"_s));
        QToolTip::hideText();
    }
    void TearDown() override
    {
        proxy.reset(); // whose sockets are none that the control has left open
        FaultFixture::TearDown();
    }

    void write(const QString &text)
    {
        if (!hands->isSingleRecordShown())
            hands->click(u"SingleRecord"_s);
        // The list asks now which fields the database fills, in a transaction of its own that ends before.
        QCoreApplication::processEvents();
        hands->list->setCurrentIndex(hands->list->model()->index(hands->listedRow(u"name"_s), 1));
        hands->list->setFocus();
        QTest::keyClick(hands->list, Qt::Key_F2);
        hands->edit->clear();
        compose(*hands->edit, text);
        QTest::keyClick(hands->edit, Qt::Key_Return);
    }
    void leaveRecord() { hands->click(u"AllRecord"_s); }
    void removeFirst()
    {
        hands->messages.answerNext(QMessageBox::Yes);
        hands->choose(9, 1);
    }
    // What was told since the last call.
    std::vector<ShownMessage> told()
    {
        std::vector<ShownMessage> shown = hands->messages.shown();
        hands->messages.clear();
        return shown;
    }
    void expectNothingTold()
    {
        const QStringList texts = hands->messages.texts();
        hands->messages.clear();
        EXPECT_TRUE(texts.isEmpty()) << qUtf8Printable(texts.join(u'|'));
    }
    QString stored() const { return ask(u"SELECT name FROM kept WHERE id = 1"_s); }
    QString count() const { return ask(u"SELECT count(*) FROM kept"_s); }
    bool isMarkedUnsaved() const
    {
        return hands->grid.findChild<QLabel *>(u"lblStatement"_s)->text().contains(u"（未保存）"_s);
    }

    std::optional<DroppingProxy> proxy;
};

KOVA_ON_FAULT_ENGINES(LostInWrite);

} // namespace

TEST_P(LostInWrite, AnEditThatWasSavedIsShownAsSaved)
{
    write(u"mine"_s);
    proxy->dropAtCommit(DroppingProxy::AfterTheServerAnswered);
    leaveRecord();
    EXPECT_TRUE(proxy->hasDropped());
    expectNothingTold();
    EXPECT_TRUE(QToolTip::text().contains(u"更改已经保存"_s)) << qUtf8Printable(QToolTip::text());
    EXPECT_FALSE(hands->isSingleRecordShown()) << "the record could be left";
    EXPECT_FALSE(isMarkedUnsaved());
    EXPECT_EQ(hands->texts(u"name"_s).first(), u"mine"_s);
    EXPECT_EQ(stored(), u"mine"_s);
    write(u"more"_s);
    leaveRecord();
    expectNothingTold();
    EXPECT_EQ(stored(), u"more"_s);
}

TEST_P(LostInWrite, AnEditThatWasNotSavedStaysAndCanBeSaved)
{
    write(u"mine"_s);
    proxy->dropAtCommit(DroppingProxy::BeforeTheServerHears);
    leaveRecord();
    EXPECT_TRUE(proxy->hasDropped());
    const std::vector<ShownMessage> shown = told();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_TRUE(shown.front().text.startsWith(u"记录没有保存：保存时与数据库的连接中断。"_s))
        << qUtf8Printable(shown.front().text);
    EXPECT_FALSE(shown.front().text.contains(u"无法确定"_s));
    EXPECT_TRUE(hands->isSingleRecordShown());
    EXPECT_TRUE(isMarkedUnsaved());
    EXPECT_EQ(hands->listed(u"name"_s), u"mine"_s);
    EXPECT_EQ(stored(), u"one"_s);
    leaveRecord();
    expectNothingTold();
    EXPECT_EQ(stored(), u"mine"_s);
    EXPECT_EQ(hands->texts(u"name"_s).first(), u"mine"_s);
}

// Nobody can tell then, and nothing that is told says that it is not saved.
TEST_P(LostInWrite, AnEditIsInDoubtAsLongAsTheServerIsAway)
{
    for (const auto when : {DroppingProxy::BeforeTheServerHears, DroppingProxy::AfterTheServerAnswered}) {
        const QString name = when == DroppingProxy::BeforeTheServerHears ? u"mine"_s : u"more"_s;
        const QString before = stored();
        write(name);
        proxy->setStaysAway(true);
        proxy->dropAtCommit(when);
        leaveRecord();
        EXPECT_TRUE(proxy->hasDropped());
        const std::vector<ShownMessage> shown = told();
        ASSERT_EQ(shown.size(), 1U);
        EXPECT_TRUE(shown.front().text.contains(u"无法确定更改是否已经保存"_s))
            << qUtf8Printable(shown.front().text);
        EXPECT_FALSE(shown.front().text.contains(u"没有保存"_s)) << qUtf8Printable(shown.front().text);
        EXPECT_TRUE(isMarkedUnsaved());
        EXPECT_EQ(hands->listed(u"name"_s), name);
        EXPECT_EQ(stored(), when == DroppingProxy::BeforeTheServerHears ? before : name);
        proxy->setStaysAway(false);
        leaveRecord();
        expectNothingTold();
        EXPECT_FALSE(hands->isSingleRecordShown());
        EXPECT_EQ(stored(), name);
        EXPECT_EQ(hands->texts(u"name"_s).first(), name);
    }
}

TEST_P(LostInWrite, AnEditIsSavedWhenTheConnectionIsLostBeforeCommit)
{
    write(u"mine"_s);
    proxy->dropAt("UPDATE", DroppingProxy::BeforeTheServerHears);
    leaveRecord();
    EXPECT_TRUE(proxy->hasDropped());
    const std::vector<ShownMessage> shown = told();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_TRUE(shown.front().text.startsWith(u"记录没有保存：与数据库服务器的连接已断开"_s))
        << qUtf8Printable(shown.front().text);
    EXPECT_EQ(hands->listed(u"name"_s), u"mine"_s);
    leaveRecord();
    expectNothingTold();
    EXPECT_EQ(stored(), u"mine"_s);
}

TEST_P(LostInWrite, ANewRecordIsAddedOnce)
{
    for (const auto when : {DroppingProxy::BeforeTheServerHears, DroppingProxy::AfterTheServerAnswered}) {
        const int before = hands->rows();
        hands->choose(8, 1);
        write(u"new"_s);
        proxy->dropAtCommit(when);
        leaveRecord();
        EXPECT_TRUE(proxy->hasDropped());
        if (when == DroppingProxy::BeforeTheServerHears) {
            const std::vector<ShownMessage> shown = told();
            ASSERT_EQ(shown.size(), 1U);
            EXPECT_TRUE(shown.front().text.startsWith(u"记录没有保存：保存时与数据库的连接中断。"_s))
                << qUtf8Printable(shown.front().text);
            EXPECT_EQ(hands->listed(u"name"_s), u"new"_s);
            leaveRecord();
        }
        expectNothingTold();
        EXPECT_FALSE(hands->isSingleRecordShown());
        EXPECT_EQ(hands->rows(), before + 1);
        EXPECT_EQ(count(), QString::number(before + 1));
        EXPECT_EQ(hands->texts(u"name"_s).last(), u"new"_s);
    }
}

TEST_P(LostInWrite, AnotherRecordIsBegunOnlyWhenTheFirstIsSaved)
{
    hands->choose(8, 1);
    write(u"new"_s);
    proxy->dropAtCommit(DroppingProxy::BeforeTheServerHears);
    hands->choose(8, 1);
    EXPECT_TRUE(proxy->hasDropped());
    const std::vector<ShownMessage> shown = told();
    ASSERT_EQ(shown.size(), 1U);
    EXPECT_EQ(shown.front().text, u"再次插入空行操作已被取消"_s);
    EXPECT_TRUE(shown.front().cause.startsWith(u"保存时与数据库的连接中断。"_s))
        << qUtf8Printable(shown.front().cause);
    EXPECT_EQ(hands->listed(u"name"_s), u"new"_s);
    proxy->dropAtCommit(DroppingProxy::AfterTheServerAnswered);
    hands->choose(8, 1);
    EXPECT_TRUE(proxy->hasDropped());
    expectNothingTold();
    EXPECT_EQ(hands->listed(u"name"_s), QString()) << "the next one";
    EXPECT_EQ(count(), u"4"_s);
}

TEST_P(LostInWrite, ADeletionThatWasDoneIsShown)
{
    proxy->dropAtCommit(DroppingProxy::AfterTheServerAnswered);
    removeFirst();
    EXPECT_TRUE(proxy->hasDropped());
    EXPECT_EQ(told().size(), 1U) << "the question alone";
    EXPECT_TRUE(QToolTip::text().contains(u"记录已经删除"_s)) << qUtf8Printable(QToolTip::text());
    EXPECT_EQ(hands->texts(u"name"_s), QStringList({u"two"_s, u"three"_s}));
    EXPECT_EQ(count(), u"2"_s);
    removeFirst();
    EXPECT_EQ(told().size(), 1U);
    EXPECT_EQ(hands->texts(u"name"_s), QStringList(u"three"_s));
    EXPECT_EQ(count(), u"1"_s);
}

TEST_P(LostInWrite, ADeletionThatWasNotDoneCanBeRepeated)
{
    proxy->dropAtCommit(DroppingProxy::BeforeTheServerHears);
    removeFirst();
    EXPECT_TRUE(proxy->hasDropped());
    const std::vector<ShownMessage> shown = told();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown.back().text, u"删除操作与数据库的约束冲突，不能删除此记录！"_s);
    EXPECT_TRUE(shown.back().cause.contains(u"记录还在数据库中"_s)) << qUtf8Printable(shown.back().cause);
    EXPECT_EQ(hands->rows(), 3);
    EXPECT_EQ(count(), u"3"_s);
    removeFirst();
    EXPECT_EQ(told().size(), 1U);
    EXPECT_EQ(hands->rows(), 2);
    EXPECT_EQ(count(), u"2"_s);
}

TEST_P(LostInWrite, ADeletionIsInDoubtAsLongAsTheServerIsAway)
{
    for (const auto when : {DroppingProxy::BeforeTheServerHears, DroppingProxy::AfterTheServerAnswered}) {
        const int before = hands->rows();
        proxy->setStaysAway(true);
        proxy->dropAtCommit(when);
        removeFirst();
        EXPECT_TRUE(proxy->hasDropped());
        const std::vector<ShownMessage> shown = told();
        ASSERT_EQ(shown.size(), 2U);
        EXPECT_TRUE(shown.back().text.contains(u"无法确定更改是否已经保存"_s))
            << qUtf8Printable(shown.back().text);
        EXPECT_EQ(hands->rows(), before);
        proxy->setStaysAway(false);
        removeFirst();
        EXPECT_EQ(told().size(), 1U);
        EXPECT_EQ(hands->rows(), before - 1);
        EXPECT_EQ(count(), QString::number(before - 1)) << "no other record is deleted instead";
    }
}
