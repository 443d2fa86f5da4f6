// The values that a field can have because it references another table, for keys of each type, on each engine
// that reports references.
#include "SessionFixture.h"

#include "../journeys/JourneyDatabase.h"

#include "ado/ConnectionString.h"
#include "ado/Recordset.h"
#include "ado/providers/Provider.h"
#include "query/SharedValues.h"
#include "session/LoadResult.h"
#include "session/Session.h"
#include "session/records/FilledFields.h"
#include "session/records/ForeignValues.h"

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class References : public testing::TestWithParam<JourneyEngine>
{
protected:
    void SetUp() override
    {
        if (!engine.isThere())
            GTEST_SKIP() << engine.variable << " is not set";
        database.emplace(engine);
        dropTables();
        const bool isPostgres = QLatin1StringView(engine.name).startsWith("PostgreSQL"_L1);
        const QString guid = isPostgres ? u"UUID"_s : u"CHAR(36)"_s;
        database->run(
            {u"CREATE TABLE kova_fruits (k %1 PRIMARY KEY, t VARCHAR(20))"_s.arg(guid),
             u"INSERT INTO kova_fruits VALUES ('10000000-0000-0000-0000-00000000000a', 'pear')"_s,
             u"INSERT INTO kova_fruits VALUES ('20000000-0000-0000-0000-00000000000b', 'apple')"_s,
             u"CREATE TABLE kova_days (d DATE PRIMARY KEY, n INTEGER, t VARCHAR(20))"_s,
             u"INSERT INTO kova_days VALUES ('2024-10-01', 1, 'october')"_s,
             u"INSERT INTO kova_days VALUES ('2024-01-01', 2, NULL)"_s,
             u"CREATE TABLE kova_refs (id INTEGER PRIMARY KEY, k %1, d DATE, FOREIGN KEY (k) REFERENCES "
             "kova_fruits (k), FOREIGN KEY (d) REFERENCES kova_days (d))"_s.arg(guid),
             u"INSERT INTO kova_refs VALUES (1, NULL, NULL)"_s});
        SharedValues::instance().dbType = static_cast<AllDBType>(engine.dbType);
        session->texts.connectionString = database->connectionString();
        session->texts.sqlShow = u"SELECT id, k, d FROM kova_refs"_s;
        ASSERT_TRUE(loadResult(*session)) << qUtf8Printable(user.messages.join(u'|'));
    }
    void TearDown() override
    {
        session->detach();
        if (database)
            dropTables();
    }
    void dropTables()
    {
        for (const QString &table : {u"kova_refs"_s, u"kova_fruits"_s, u"kova_days"_s})
            database->run({u"DROP TABLE IF EXISTS "_s + table});
    }
    ADODB::Field &field(const QString &name) { return session->result().recordset()->Fields().Item(name); }
    ForeignValues values(const QString &name, const QString &search = {})
    {
        return foreignValues(*session, field(name), search).value_or(ForeignValues());
    }

    const JourneyEngine &engine = GetParam();
    std::optional<JourneyDatabase> database;
    ADODB::Adodc adodc;
    PlainWindow window;
    PlainUser user;
    PlainHost host;
    std::shared_ptr<Session> session = std::make_shared<Session>(window, user, host, controlRules, &adodc);
};

// Where a DATE includes a time, it is read with it.
QStringList days(QStringList texts)
{
    return texts.replaceInStrings(u" 00:00:00"_s, QString());
}

std::vector<JourneyEngine> enginesWithReferences()
{
    std::vector<JourneyEngine> engines = journeyEngines();
    std::erase_if(engines, [](const JourneyEngine &each) { return each.store == JourneyEngine::AccessFile; });
    return engines;
}

// A driver that doesn't tell which tables the values come from, as those of some servers.
class Untold : public ADODB::Provider
{
    class Answer : public ADODB::Statement
    {
    public:
        explicit Answer(std::unique_ptr<ADODB::Statement> real) : m_real(std::move(real)) {}
        const std::vector<ADODB::FieldInfo> &fields() const override
        {
            m_fields = m_real->fields();
            for (ADODB::FieldInfo &field : m_fields)
                field.baseTable = field.baseColumn = QString();
            return m_fields;
        }
        int columns() const override { return m_real->columns(); }
        void fetch(ADODB::RowStore &rows, const std::function<bool(qint64)> &shouldContinue) override
        {
            m_real->fetch(rows, shouldContinue);
        }
        std::unique_ptr<ADODB::RowWriter> releaseWriter() override { return m_real->releaseWriter(); }
        QString whyReadOnly() const override { return m_real->whyReadOnly(); }

    private:
        std::unique_ptr<ADODB::Statement> m_real;
        mutable std::vector<ADODB::FieldInfo> m_fields;
    };

    class Open : public ADODB::Session
    {
    public:
        explicit Open(std::shared_ptr<ADODB::Session> real) : m_real(std::move(real)) {}
        QString engineName() const override { return m_real->engineName(); }
        std::unique_ptr<ADODB::Statement> prepare(const QString &sql, ADODB::Access access,
                                                  const std::function<bool()> &shouldContinue) override
        {
            return std::make_unique<Answer>(m_real->prepare(sql, access, shouldContinue));
        }
        std::optional<ADODB::TableColumn> reference(const ADODB::TableColumn &column,
                                                    const std::function<bool()> &shouldContinue) override
        {
            return m_real->reference(column, shouldContinue);
        }
        QString tableStatement(const QString &table) const override { return m_real->tableStatement(table); }
        void close() override { m_real->close(); }

    private:
        std::shared_ptr<ADODB::Session> m_real;
    };

public:
    QString name() const override { return u"Untold"_s; }
    bool claims(const ADODB::ConnectionString &connection) const override
    {
        return connection.value(u"Provider"_s) == name();
    }
    std::shared_ptr<ADODB::Session> open(const ADODB::ConnectionString &connection) const override
    {
        ADODB::ConnectionString real = connection;
        real.set(u"Provider"_s, u"SQLite"_s);
        return std::make_shared<Open>(ADODB::openSession(real));
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Engines, References, testing::ValuesIn(enginesWithReferences()),
                         [](const auto &each) { return std::string(each.param.name); });

TEST_P(References, ToADayAreListedWithWhatDescribesThem)
{
    EXPECT_EQ(days(values(u"d"_s).keys), QStringList({u"2024-01-01"_s, u"2024-10-01"_s}));
    EXPECT_EQ(days(values(u"d"_s).shown), QStringList({u"2024-01-01"_s, u"2024-10-01　october"_s}));
    EXPECT_EQ(days(values(u"d"_s, u"ctob"_s).keys), QStringList{u"2024-10-01"_s});
    EXPECT_EQ(days(values(u"d"_s, u"01-01"_s).keys), QStringList{u"2024-01-01"_s});
    EXPECT_FALSE(foreignValues(*session, field(u"id"_s), {}).has_value());
}

TEST_P(References, ToAGuidCanBeStoredAsTheyAreListed)
{
    const ForeignValues pears = values(u"k"_s, u"pear"_s);
    ASSERT_EQ(pears.keys.size(), 1);
    EXPECT_TRUE(pears.shown.front().contains(u"pear"_s));
    EXPECT_EQ(values(u"k"_s).keys.size(), 2);
    EXPECT_EQ(values(u"k"_s, u"0000b"_s).keys.size(), 1);
    field(u"k"_s).PutValue(pears.keys.front());
    session->result().recordset()->Update();
    EXPECT_TRUE(database->ask(u"SELECT k FROM kova_refs"_s).contains(u"10000000-"_s));
}

// A record needs no value in these columns, whichever way they have one of their own.
TEST_P(References, ColumnsThatTheDatabaseFillsAreKnown)
{
    const bool isPostgres = QLatin1StringView(engine.name).startsWith("PostgreSQL"_L1);
    const QString key = isPostgres           ? u"id SERIAL PRIMARY KEY"_s
                        : engine.isMariaDb() ? u"id INTEGER AUTO_INCREMENT PRIMARY KEY"_s
                                             : u"id INTEGER PRIMARY KEY NOT NULL"_s;
    const QString others = isPostgres ? u", i INTEGER GENERATED ALWAYS AS IDENTITY,"
                                        " g INTEGER GENERATED ALWAYS AS (c * 2) STORED NOT NULL"_s
                                      : QString();
    const auto drop = [this] { database->run({u"DROP TABLE IF EXISTS kova_filled"_s}); };
    drop();
    database->run({u"CREATE TABLE kova_filled ("_s + key +
                   u", c INTEGER NOT NULL, n INTEGER DEFAULT 5 NOT NULL, t VARCHAR(20) NOT NULL"_s + others +
                   u')'});
    session->texts.sqlShow = u"SELECT * FROM kova_filled"_s;
    ASSERT_TRUE(loadResult(*session)) << qUtf8Printable(user.messages.join(u'|'));
    const std::set<int> filled = filledFields(*session);
    EXPECT_TRUE(filled.contains(2)) << "it has a default";
    EXPECT_FALSE(filled.contains(1) || filled.contains(3)) << "these need a value";
    const bool isCountedKnown = isPostgres || engine.isMariaDb() || !engine.variable;
    EXPECT_TRUE(!isCountedKnown || filled.contains(0)) << "it is counted";
    EXPECT_TRUE(!isPostgres || (filled.contains(4) && filled.contains(5))) << "identity and computed";
    drop();
}

TEST(ReferencesOfUnnamedTables, AreReadOffTheStatement)
{
    const Untold provider;
    const ADODB::ProviderRegistration registration(provider);
    const TestDatabase database(u"CREATE TABLE fruits (k INTEGER PRIMARY KEY, name TEXT);"
                                "INSERT INTO fruits VALUES (1, 'pear'), (2, 'apple');"
                                "CREATE TABLE refs (id INTEGER PRIMARY KEY, fruit INTEGER REFERENCES fruits);"
                                "INSERT INTO refs VALUES (1, 1)"_s);
    SharedValues::instance().dbType = dbAccess;
    const auto keysOf = [&](const QString &statement, int field) {
        ADODB::Adodc adodc;
        PlainWindow window;
        PlainUser user;
        PlainHost host;
        const auto session = std::make_shared<Session>(window, user, host, controlRules, &adodc);
        session->texts.connectionString = u"Provider=Untold;Data Source="_s + database.path();
        session->texts.sqlShow = statement;
        EXPECT_TRUE(loadResult(*session)) << qUtf8Printable(user.messages.join(u'|'));
        const ADODB::Field &shown = session->result().recordset()->Fields().Item(field);
        EXPECT_EQ(shown.BaseTableName(), QString());
        const QStringList keys = foreignValues(*session, shown, {}).value_or(ForeignValues()).keys;
        session->detach();
        return keys;
    };
    const QStringList keys{u"1"_s, u"2"_s};
    EXPECT_EQ(keysOf(u"SELECT * FROM refs"_s, 1), keys);
    EXPECT_EQ(keysOf(u"SELECT r.fruit AS f, id FROM refs r"_s, 0), keys);
    EXPECT_EQ(keysOf(u"SELECT fruit + 0, id FROM refs"_s, 0), QStringList());
    EXPECT_EQ(keysOf(u"SELECT id, * FROM refs"_s, 2), QStringList()) << "it can't be told which one it is";
    EXPECT_EQ(keysOf(u"SELECT max(fruit) AS fruit FROM refs"_s, 0), QStringList());
}
