// Changes sent to a server (or a connection pooler) that does not respond: unsaved changes are kept and
// reported, and an unknown outcome is reported as such.
#include "FrozenServer.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtTest/QTest>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class FrozenServerChanges : public FrozenServer
{
protected:
    // The values that the user writes into the record that is listed, in the order of its fields.
    void write(const QString &field, const QString &text) { EXPECT_TRUE(hands->writeListed(field, text)); }
    // Leaves the record; the server freezes at COMMIT and the user does not want to wait. Nobody can tell
    // then whether the change was saved, and the user is told so.
    void leaveWhileCommitFreezes()
    {
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, &user, [this] {
            if (QWidget *const line = progressLine(); line && isFrozen)
                QTest::keyClick(line->window(), Qt::Key_Escape);
        });
        user.start(10);
        QElapsedTimer sinceSave;
        sinceSave.start();
        hands->click(u"AllRecord"_s);
        EXPECT_LT(sinceSave.elapsed(), 10'000) << "3 s for the answer, the rest for a busy machine";
        ASSERT_TRUE(isFrozen);
        const QStringList texts = takeMessages();
        ASSERT_EQ(texts.size(), 1);
        EXPECT_TRUE(texts.front().contains(u"无法确定更改是否已经保存"_s)) << qUtf8Printable(texts.front());
        EXPECT_FALSE(texts.front().contains(u"没有保存"_s)) << qUtf8Printable(texts.front());
    }
    // A new record in a table whose keys are the database's.
    void addWhileCommitFreezes()
    {
        run(u"DROP TABLE IF EXISTS made"_s);
        run(u"CREATE TABLE made (id SERIAL PRIMARY KEY, name VARCHAR(20))"_s);
        run(u"INSERT INTO made (name) VALUES ('first')"_s);
        ASSERT_TRUE(load(u"SELECT * FROM made ORDER BY id"_s));
        hands->choose(8, 1);
        write(u"name"_s, u"new"_s);
        leaveWhileCommitFreezes();
        thaw();
    }
    QString made(const QString &what) const { return ask(u"SELECT %1 FROM made"_s.arg(what)); }
};

KOVA_ON_FROZEN_SERVERS(FrozenServerChanges);

} // namespace

TEST_P(FrozenServerChanges, LetsTheUserCancelAnEdit)
{
    ASSERT_TRUE(loadKept());
    write(u"name"_s, u"mine"_s);
    cancelWhileFrozen([this] { hands->click(u"AllRecord"_s); });
    const QStringList texts = takeMessages();
    ASSERT_EQ(texts.size(), 1);
    EXPECT_EQ(texts.front(), u"记录没有保存："_s + cancelled) << "nothing was committed yet";
    ASSERT_TRUE(hands->isSingleRecordShown()) << "the record is not left";
    EXPECT_EQ(hands->listed(u"name"_s), u"mine"_s) << "what he wrote is still there";
    thaw();
    EXPECT_EQ(stored(u"name"_s), u"name 1"_s);
    hands->click(u"AllRecord"_s);
    EXPECT_EQ(takeMessages(), QStringList());
    EXPECT_EQ(stored(u"name"_s), u"mine"_s);
}

TEST_P(FrozenServerChanges, LetsTheUserCancelANewRecord)
{
    ASSERT_TRUE(loadKept());
    hands->choose(8, 1);
    write(u"id"_s, u"2000"_s);
    write(u"name"_s, u"new"_s);
    cancelWhileFrozen([this] { hands->click(u"AllRecord"_s); });
    const QStringList texts = takeMessages();
    ASSERT_EQ(texts.size(), 1);
    EXPECT_EQ(texts.front(), u"记录没有保存："_s + cancelled);
    thaw();
    EXPECT_EQ(ask(u"SELECT count(*) FROM kept"_s), u"1000"_s);
    hands->click(u"AllRecord"_s);
    EXPECT_EQ(takeMessages(), QStringList());
    EXPECT_EQ(ask(u"SELECT name FROM kept WHERE id = 2000"_s), u"new"_s);
    EXPECT_EQ(hands->rows(), 1001);
}

TEST_P(FrozenServerChanges, LetsTheUserCancelADeletion)
{
    ASSERT_TRUE(loadKept());
    hands->messages.answerNext(QMessageBox::Yes);
    cancelWhileFrozen([this] { hands->choose(9, 1); });
    const std::vector<ShownMessage> shown = hands->messages.shown();
    ASSERT_EQ(shown.size(), 2U);
    EXPECT_EQ(shown.back().text, cancelled);
    hands->messages.clear();
    expectKept();
    thaw();
    EXPECT_EQ(ask(u"SELECT count(*) FROM kept"_s), u"1000"_s);
    hands->messages.answerNext(QMessageBox::Yes);
    hands->choose(9, 1);
    hands->messages.clear();
    EXPECT_EQ(ask(u"SELECT count(*) FROM kept"_s), u"999"_s);
    EXPECT_EQ(hands->rows(), 999);
}

// What the host does meanwhile neither disturbs a change nor gets lost in it.
TEST_P(FrozenServerChanges, LetsTheHostReadButNotChangeMeanwhile)
{
    ASSERT_TRUE(loadKept());
    write(u"name"_s, u"mine"_s);
    QStringList read;
    int rows = -1;
    QTimer host;
    QObject::connect(&host, &QTimer::timeout, &host, [&] {
        if (!progressLine() || rows >= 0)
            return;
        read = hands->texts(u"name"_s);
        hands->grid.Clear();
        hands->grid.ClearObject();
        EXPECT_FALSE(hands->grid.IsLoadData());
        hands->grid.LocateSelRecord(5);
        hands->grid.SetSortFN();
        rows = hands->rows();
    });
    host.start(5);
    cancelWhileFrozen([this] { hands->click(u"AllRecord"_s); });
    EXPECT_EQ(rows, 1000);
    EXPECT_EQ(read.size(), 1000);
    const QStringList texts = takeMessages();
    EXPECT_EQ(texts, QStringList(u"记录没有保存："_s + cancelled)) << qUtf8Printable(texts.join(u'|'));
    EXPECT_EQ(hands->listed(u"name"_s), u"mine"_s);
    expectKept();
}

// If the control is destroyed during a save, the waiting thread finishes it.
TEST_P(FrozenServerChanges, LetsTheHostDeleteTheControlMeanwhile)
{
    auto other = std::make_unique<KOVAVSFDataGrid>();
    other->resize(900, 500);
    other->show();
    other->PutConnectionString(connection());
    other->PutSQLShow(u"SELECT * FROM kept ORDER BY id"_s);
    ASSERT_TRUE(other->IsLoadData());
    QObject *field = nullptr;
    QMetaObject::invokeMethod(other->RecordSet(), "Fields", Q_RETURN_ARG(QObject *, field),
                              Q_ARG(QString, u"name"_s));
    ASSERT_TRUE(field);
    ASSERT_TRUE(field->setProperty("Value", u"gone"_s));
    freeze();
    QTimer host;
    QObject::connect(&host, &QTimer::timeout, &host, [&] {
        if (!progressLine() || !other)
            return;
        other.reset();
        thaw();
    });
    host.start(5);
    other->findChild<QAction *>(u"Sort"_s)->trigger(); // which saves first
    EXPECT_EQ(other, nullptr);
    takeMessages();
    // Whatever became of it, it is whole and nothing holds it.
    EXPECT_TRUE(QStringList({u"name 1"_s, u"gone"_s}).contains(stored(u"name"_s)));
}

TEST_P(FrozenServerChanges, ReportsACommitWithoutAnAnswerAsUnknown)
{
    LoopbackProxy proxy(LoopbackProxy::portOf(connection()), freezeOn("COMMIT"));
    hands->grid.PutConnectionString(proxy.in(connection()));
    ASSERT_TRUE(loadKept());
    write(u"name"_s, u"mine"_s);
    leaveWhileCommitFreezes();
    thaw();
    // It was saved when the server continued, and leaving the record finds that out.
    hands->grid.PutConnectionString(connection());
    ASSERT_TRUE(loadKept());
    EXPECT_EQ(takeMessages(), QStringList());
    EXPECT_EQ(stored(u"name"_s), u"mine"_s);
    EXPECT_EQ(hands->texts(u"name"_s).first(), u"mine"_s);
}

TEST_P(FrozenServerChanges, DoNotAddARecordTwiceWhoseCommitGotNoAnswer)
{
    LoopbackProxy proxy(LoopbackProxy::portOf(connection()), freezeOn("COMMIT"));
    hands->grid.PutConnectionString(proxy.in(connection()));
    addWhileCommitFreezes();
    hands->click(u"AllRecord"_s);
    EXPECT_EQ(takeMessages(), QStringList());
    EXPECT_FALSE(hands->isSingleRecordShown());
    EXPECT_EQ(hands->texts(u"name"_s), QStringList({u"first"_s, u"new"_s}));
    EXPECT_EQ(made(u"count(*)"_s), u"2"_s);
}

TEST_P(FrozenServerChanges, AskBeforeARecordIsAddedThatMayBeThereOtherwise)
{
    LoopbackProxy proxy(LoopbackProxy::portOf(connection()), freezeOn("COMMIT"));
    hands->grid.PutConnectionString(proxy.in(connection()));
    addWhileCommitFreezes();
    QTRY_COMPARE(made(u"count(*)"_s), u"2"_s);
    run(u"UPDATE made SET name = 'theirs' WHERE name = 'new'"_s);
    hands->messages.answerNext(QMessageBox::No);
    hands->click(u"AllRecord"_s);
    QStringList texts = takeMessages();
    ASSERT_EQ(texts.size(), 1);
    EXPECT_TRUE(texts.front().endsWith(u"仍要再次保存吗？"_s)) << qUtf8Printable(texts.front());
    EXPECT_EQ(made(u"count(*)"_s), u"2"_s);
    EXPECT_EQ(hands->listed(u"name"_s), u"new"_s) << "what he wrote is still there";
    hands->messages.answerNext(QMessageBox::Yes);
    hands->click(u"AllRecord"_s);
    texts = takeMessages();
    EXPECT_EQ(texts.size(), 1);
    EXPECT_EQ(made(u"count(*)"_s), u"3"_s);
    EXPECT_EQ(hands->texts(u"name"_s), QStringList({u"first"_s, u"new"_s}));
}
