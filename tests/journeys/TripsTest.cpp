// How many round trips a control needs. On a remote server, each one takes as long as the network latency.
#include "EngineJourney.h"

#include "servers/LoopbackProxy.h"
#include "servers/Servers.h"
#include "support/Dialogs.h"

#include <QtWidgets/QComboBox>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct FarServer
{
    const char *name;
    const char *variable;
    qint32 dbType;
    // The number of round trips for each; more than that is a failure.
    int load;
    int loadAgain;
    int sort;
    int filterDialog;
};

std::ostream &operator<<(std::ostream &out, const FarServer &server)
{
    return out << server.name;
}

class Trips : public testing::TestWithParam<FarServer>
{
protected:
    void SetUp() override
    {
        const QString connection = serverConnection(server.variable);
        if (connection.isEmpty())
            GTEST_SKIP() << server.variable << " is not set";
        OdbcSession session(connection);
        session.run({u"DROP TABLE IF EXISTS far_goods"_s,
                     u"CREATE TABLE far_goods (id INTEGER PRIMARY KEY, name VARCHAR(20), price INTEGER)"_s,
                     u"INSERT INTO far_goods VALUES (1,'b',30),(2,'a',20),(3,'c',10)"_s});
        proxy.emplace(LoopbackProxy::portOf(connection));
        hands.emplace(proxy->in(connection), server.dbType);
        ASSERT_TRUE(load());
    }
    bool load() { return hands->load(u"SELECT * FROM far_goods"_s, u"SELECT id,name FROM far_goods"_s); }
    // The number of round trips of an action.
    int tripsOf(const char *what, const std::function<void()> &action)
    {
        proxy->forget();
        action();
        EXPECT_EQ(proxy->connections(), isLoading ? 1 : 0) << what << ": there is a session already";
        EXPECT_TRUE(hands->messages.shown().empty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
        RecordProperty(what, proxy->trips());
        return proxy->trips();
    }

    const FarServer &server = GetParam();
    bool isLoading = false;
    std::optional<LoopbackProxy> proxy;
    std::optional<Hands> hands;
};

INSTANTIATE_TEST_SUITE_P(
    Servers, Trips,
    testing::Values(FarServer{"PostgreSQL", "KOVA_TEST_POSTGRESQL", KOVAVSFDataGrid::dbOracle, 14, 7, 5, 4},
                    FarServer{"PgBouncer", "KOVA_TEST_PGBOUNCER", KOVAVSFDataGrid::dbOracle, 14, 7, 5, 4},
                    FarServer{"MariaDB", "KOVA_TEST_MARIADB", KOVAVSFDataGrid::dbSQLServer, 13, 4, 4, 3}),
    [](const auto &server) { return std::string(server.param.name); });

} // namespace

TEST_P(Trips, OfTheFirstLoad)
{
    hands->grid.Clear();
    isLoading = true;
    EXPECT_LE(tripsOf("load", [&] { ASSERT_TRUE(load()); }), server.load);
    isLoading = false;
    EXPECT_LE(tripsOf("load again", [&] { ASSERT_TRUE(load()); }), server.loadAgain);
}

TEST_P(Trips, OfSortingFilteringAndGoingBack)
{
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::sort(dialog, {u"price"_s}); },
                           [](QDialog &dialog) { Hands::find(dialog, u"b"_s, u"name"_s); }});
    EXPECT_LE(tripsOf("sort", [&] { hands->click(u"Sort"_s); }), server.sort);
    EXPECT_EQ(hands->texts(u"id"_s), QStringList({u"3"_s, u"2"_s, u"1"_s}));
    EXPECT_LE(tripsOf("quick filter", [&] { hands->click(u"QuickFilter"_s); }), server.sort);
    EXPECT_EQ(hands->texts(u"id"_s), QStringList(u"1"_s));
    EXPECT_LE(tripsOf("back", [&] { hands->click(u"ToPreview"_s); }), server.sort);
    EXPECT_EQ(hands->texts(u"id"_s), QStringList({u"3"_s, u"2"_s, u"1"_s}));
}

TEST_P(Trips, OfTheFilterDialog)
{
    WindowAnswers dialogs({[&](QDialog &dialog) {
        RecordProperty("until it shows", proxy->trips());
        EXPECT_LE(proxy->trips(), server.filterDialog) << "until it shows";
        buildFilter(dialog, u"name"_s, u"等于"_s, u"b"_s);
    }});
    EXPECT_LE(tripsOf("filter dialog", [&] { hands->click(u"Filter"_s); }),
              server.filterDialog + server.sort);
    EXPECT_EQ(hands->texts(u"id"_s), QStringList(u"1"_s));
}
