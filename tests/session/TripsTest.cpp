// How often a session queries its database: each time is a wait if that is far away.
#include "SessionFixture.h"

#include "ado/ConnectionString.h"
#include "ado/providers/Provider.h"
#include "session/LoadResult.h"
#include "session/commands/CommandKeys.h"

#include <utility>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// What was asked of the database since somebody looked.
struct Trips
{
    int opened = 0;
    QStringList prepared = {};

    bool operator==(const Trips &) const = default;
};

std::ostream &operator<<(std::ostream &stream, const Trips &trips)
{
    return stream << trips.opened << " opened, prepared: " << trips.prepared.join(u"; "_s).toStdString();
}

class CountingSession final : public ADODB::Session
{
public:
    CountingSession(std::shared_ptr<ADODB::Session> session, Trips &trips)
        : m_session(std::move(session)), m_trips(trips)
    {
    }
    QString engineName() const override { return m_session->engineName(); }
    std::unique_ptr<ADODB::Statement> prepare(const QString &sql, ADODB::Access access,
                                              const std::function<bool()> &shouldContinue) override
    {
        m_trips.prepared += sql.simplified();
        return m_session->prepare(sql, access, shouldContinue);
    }
    QString tableStatement(const QString &table) const override { return m_session->tableStatement(table); }
    void close() override { m_session->close(); }
    bool isOpen() const override { return m_session->isOpen(); }

private:
    const std::shared_ptr<ADODB::Session> m_session;
    Trips &m_trips;
};

// SQLite's provider, with a counter.
class CountingProvider final : public ADODB::Provider
{
public:
    explicit CountingProvider(Trips &trips) : m_trips(trips) {}
    QString name() const override { return u"Counting"_s; }
    bool claims(const ADODB::ConnectionString &connection) const override
    {
        return connection.value(u"Provider"_s) == name();
    }
    std::shared_ptr<ADODB::Session> open(const ADODB::ConnectionString &connection) const override
    {
        ++m_trips.opened;
        const QString file = connection.value(u"Data Source"_s);
        return std::make_shared<CountingSession>(
            ADODB::openSession(ADODB::ConnectionString(u"Provider=SQLite;Data Source="_s + file)), m_trips);
    }

private:
    Trips &m_trips;
};

struct CountedTrips : SessionFixture
{
    ~CountedTrips() override { session->clear(); } // before its provider is destroyed

    bool load(const QString &statement = u"select * from T"_s, const QString &part = {})
    {
        session->texts.connectionString = u"Provider=Counting;Data Source="_s + database.path();
        session->texts.sqlShow = statement;
        session->texts.sqlPartDisplay = part;
        return loadResult(*session);
    }
    Trips sinceThen() { return std::exchange(trips, {}); }

    Trips trips;
    CountingProvider provider{trips};
    ADODB::ProviderRegistration registration{provider};
};

} // namespace

TEST_F(CountedTrips, ALoadPreparesItsStatementOnce)
{
    ASSERT_TRUE(load(u"select * from T order by ID"_s));
    EXPECT_EQ(sinceThen(), (Trips{1, {u"select * from T order by ID"_s}}));
    ASSERT_TRUE(load(u"select ID, Name from T"_s, u"select Name from T"_s));
    EXPECT_EQ(sinceThen(), (Trips{1, {u"select ID, Name from T"_s}}));
}

TEST_F(CountedTrips, ADialogThatIsCancelledAsksForNothing)
{
    ASSERT_TRUE(load());
    sinceThen();
    session->run(CommandKeys::SelField);
    session->run(CommandKeys::Sort);
    session->run(CommandKeys::Filter);
    EXPECT_EQ(sinceThen(), Trips());
}

TEST_F(CountedTrips, ACommandPreparesTheStatementThatItShowsAlone)
{
    ASSERT_TRUE(load());
    sinceThen();
    user.sort = u"Name DESC"_s;
    session->run(CommandKeys::Sort);
    EXPECT_EQ(sinceThen(), (Trips{1, {u"select * from T ORDER BY Name DESC"_s}}));
    session->run(CommandKeys::ToPreview);
    EXPECT_EQ(sinceThen(), (Trips{1, {u"select * from T"_s}}));
}

TEST_F(CountedTrips, TheFieldsOfAnotherStatementAreReadOnce)
{
    ASSERT_TRUE(load(u"select ID from T"_s, u"select upper(Name) as U from T"_s));
    EXPECT_EQ(sinceThen(),
              (Trips{1, {u"select ID from T"_s, u"select upper(Name) as U from T WHERE 0=1"_s}}));
    session->run(CommandKeys::Part);
    session->run(CommandKeys::All);
    session->run(CommandKeys::Part);
    EXPECT_EQ(sinceThen(), Trips());
}
