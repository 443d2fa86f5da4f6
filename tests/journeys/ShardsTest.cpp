// A table distributed over several databases: large results, conditions evaluated by every database, changes
// of one record, and a database that is lost or stops responding.
#include "EngineJourney.h"
#include "SpreadTable.h"

#include "servers/LoopbackProxy.h"
#include "servers/Servers.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtTest/QTest>
#include <QtWidgets/QProgressBar>

#include <atomic>
#include <mutex>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

constexpr int records = 12'000;

// The way to one of the databases.
class Way
{
public:
    enum State { Open, Lost, Frozen };

    void set(State state)
    {
        m_state = state;
        m_state.notify_all();
    }
    void forget()
    {
        const std::lock_guard lock(m_mutex);
        m_said.clear();
    }
    // What the coordinator has said to the database.
    QByteArray said() const
    {
        const std::lock_guard lock(m_mutex);
        return m_said;
    }
    bool pass(LoopbackProxy::From from, const QByteArray &bytes)
    {
        if (from == LoopbackProxy::From::Client) {
            const std::lock_guard lock(m_mutex);
            m_said += bytes;
        }
        m_state.wait(Frozen);
        return m_state == Open;
    }

private:
    std::atomic<State> m_state = Open;
    mutable std::mutex m_mutex; // guards m_said
    QByteArray m_said;
};

// shard_goods has the fields id, name and price, and 12,000 records with 100 different names.
class Shards : public EngineTest
{
protected:
    void SetUp() override
    {
        EngineTest::SetUp();
        if (IsSkipped())
            return;
        const bool isSpider = engine.spread == JourneyEngine::Spider;
        const QString numbers =
            isSpider ? u"(SELECT seq AS g FROM seq_1_to_%1) AS n"_s : u"generate_series(1, %1) g"_s;
        database->run(
            {u"DROP TABLE IF EXISTS shard_goods"_s,
             u"CREATE TABLE shard_goods (id INTEGER PRIMARY KEY, name VARCHAR(20), price DECIMAL(8,2))"_s,
             u"INSERT INTO shard_goods SELECT g, concat('name ', g % 100), g FROM "_s +
                 numbers.arg(records)});
        proxy.emplace(
            LoopbackProxy::portOf(database->connectionString()),
            [this](LoopbackProxy::From from, const QByteArray &bytes) { return way.pass(from, bytes); });
        spreadTable(engine, u"shard_goods"_s, proxy->port());
    }
    void TearDown() override
    {
        way.set(Way::Open);
        hands.reset();
        EngineTest::TearDown();
    }
    bool load(const QString &more = u" ORDER BY id"_s)
    {
        return hands->load(u"SELECT * FROM shard_goods"_s + more, u"SELECT id,name FROM shard_goods"_s);
    }
    QString stored(const QString &what, int id)
    {
        return database->ask(u"SELECT %1 FROM shard_goods WHERE id = %2"_s.arg(what).arg(id));
    }
    QStringList takeMessages()
    {
        const QStringList texts = hands->messages.texts();
        hands->messages.clear();
        return texts;
    }
    void expectAll() const
    {
        EXPECT_EQ(hands->rows(), records);
        EXPECT_EQ(hands->texts(u"name"_s).at(76), u"name 77"_s);
    }

    Way way; // to the second database
    std::optional<LoopbackProxy> proxy;
};

INSTANTIATE_TEST_SUITE_P(Spread, Shards, testing::ValuesIn(spreadEngines()),
                         [](const auto &engine) { return std::string(engine.param.name); });

} // namespace

TEST_P(Shards, GiveResultsOfManyBatches)
{
    ASSERT_TRUE(load({})) << qUtf8Printable(hands->messages.texts().join(u'|'));
    EXPECT_EQ(hands->rows(), records);
    QStringList ids = hands->texts(u"id"_s);
    std::ranges::sort(ids, {}, [](const QString &id) { return id.toInt(); });
    EXPECT_EQ(ids.first(), u"1"_s);
    EXPECT_EQ(ids.last(), QString::number(records));
    EXPECT_EQ(ids.removeDuplicates(), 0);
    ASSERT_TRUE(load(u" WHERE id <= 5001 ORDER BY id DESC"_s));
    EXPECT_EQ(hands->rows(), 5001);
    EXPECT_EQ(hands->texts(u"id"_s).first(), u"5001"_s);
    EXPECT_EQ(takeMessages(), QStringList());
}

TEST_P(Shards, FilterTheirRecordsThemselves)
{
    WindowAnswers dialogs({[](QDialog &dialog) { buildFilter(dialog, u"name"_s, u"等于"_s, u"name 77"_s); }});
    ASSERT_TRUE(load());
    way.forget();
    hands->click(u"Filter"_s);
    EXPECT_EQ(hands->rows(), records / 100);
    EXPECT_TRUE(way.said().contains("name 77")) << way.said().right(500).constData();
    EXPECT_EQ(takeMessages(), QStringList());
    if (engine.spread != JourneyEngine::ForeignTables)
        return;
    database->run({uR"(CREATE OR REPLACE FUNCTION remote_conditions(q text) RETURNS integer AS $$
        DECLARE line text; n integer := 0;
        BEGIN
            FOR line IN EXECUTE 'EXPLAIN VERBOSE ' || q LOOP
                IF line LIKE '%Remote SQL:%WHERE%name 77%' THEN n := n + 1; END IF;
            END LOOP;
            RETURN n;
        END $$ LANGUAGE plpgsql)"_s});
    EXPECT_EQ(database->ask(u"SELECT remote_conditions($q$%1$q$)"_s.arg(hands->grid.RecordSource())), u"0"_s);
    EXPECT_EQ(database->ask(u"SELECT remote_conditions($q$%1$q$)"_s.arg(hands->statement())), u"4"_s)
        << qUtf8Printable(hands->statement());
}

TEST_P(Shards, SortAndGoBack)
{
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::sort(dialog, {u"price"_s}, true); }});
    ASSERT_TRUE(load());
    hands->click(u"Sort"_s);
    EXPECT_EQ(hands->texts(u"id"_s).first(), QString::number(records));
    hands->click(u"ToPreview"_s);
    expectAll();
    EXPECT_EQ(takeMessages(), QStringList());
}

TEST_P(Shards, DeleteOneRecord)
{
    ASSERT_TRUE(load());
    hands->messages.answerNext(QMessageBox::Yes);
    hands->choose(9, 77);
    EXPECT_EQ(takeMessages(), QStringList(u"确实要删除该记录?"_s));
    EXPECT_EQ(hands->rows(), records - 1);
    EXPECT_EQ(stored(u"id"_s, 77), QString());
    EXPECT_EQ(database->ask(u"SELECT count(*) FROM shard_goods"_s), QString::number(records - 1));
}

TEST_P(Shards, KeepWhatTheUserWritesIntoOneRecord)
{
    ASSERT_TRUE(load());
    hands->clickCell(77, 2);
    EXPECT_TRUE(hands->writeListed(u"name"_s, u"mine"_s));
    hands->click(u"AllRecord"_s);
    EXPECT_EQ(takeMessages(), QStringList());
    EXPECT_EQ(stored(u"name"_s, 77), u"mine"_s);
    EXPECT_EQ(database->ask(u"SELECT count(*) FROM shard_goods WHERE name = 'mine'"_s), u"1"_s);
}

TEST_P(Shards, CanBeLostAndComeBack)
{
    ASSERT_TRUE(load());
    way.set(Way::Lost);
    EXPECT_FALSE(load());
    EXPECT_EQ(takeMessages().size(), 2);
    expectAll();
    way.set(Way::Open);
    ASSERT_TRUE(load()) << qUtf8Printable(hands->messages.texts().join(u'|'));
    expectAll();
    EXPECT_EQ(takeMessages(), QStringList());
}

TEST_P(Shards, CanBeFrozenWhileTheUserCancels)
{
    ASSERT_TRUE(load());
    way.set(Way::Frozen);
    QElapsedTimer sinceEscape;
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, &user, [&] {
        const auto *const line = hands->grid.findChild<QProgressBar *>();
        if (sinceEscape.isValid() || !line)
            return;
        sinceEscape.start();
        QTest::keyClick(&hands->grid, Qt::Key_Escape);
    });
    user.start(10);
    EXPECT_FALSE(load());
    ASSERT_TRUE(sinceEscape.isValid());
    EXPECT_LT(sinceEscape.elapsed(), 3000) << "the rest is for a machine that is busy with other things";
    EXPECT_EQ(takeMessages(), QStringList()) << "the user knows what he did";
    expectAll();
    way.set(Way::Open);
    ASSERT_TRUE(load()) << qUtf8Printable(hands->messages.texts().join(u'|'));
    expectAll();
}
