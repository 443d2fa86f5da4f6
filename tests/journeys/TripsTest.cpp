// How many round trips a control needs. On a remote server, each one takes as long as the network latency.
#include "EngineJourney.h"

#include "servers/LoopbackProxy.h"
#include "servers/Servers.h"
#include "support/Dialogs.h"

#include <QtTest/QTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QMenu>

#include <string_view>

using namespace KovaTest;
using namespace Qt::StringLiterals;
using namespace std::string_view_literals;

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

    QMenu *openMenu(int col)
    {
        hands->clickCell(1, col);
        hands->table->setFocus();
        QTest::keyClick(hands->table, Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
        auto *menu = hands->grid.findChild<QMenu *>(u"ColumnMenu"_s);
        EXPECT_TRUE(menu && menu->isVisible());
        return menu;
    }

    const FarServer &server = GetParam();
    bool isLoading = false;
    std::optional<LoopbackProxy> proxy;
    std::optional<Hands> hands;
};

// Fields of types that have no order, or none that the driver knows.
class FarShapes : public Trips
{
protected:
    void SetUp() override
    {
        if (server.variable == "KOVA_TEST_MARIADB"sv)
            GTEST_SKIP() << "sorts by all types";
        Trips::SetUp();
        if (IsSkipped())
            return;
        OdbcSession session(serverConnection(server.variable));
        session.run(
            {u"DROP TABLE IF EXISTS far_shapes"_s,
             u"CREATE TABLE far_shapes (id INTEGER PRIMARY KEY, doc json, place point, bits bit(2), page xml)"_s,
             u"INSERT INTO far_shapes VALUES (1,'{\"a\": 1}','(1,2)','01','<a/>'),(2,'[]','(0,1)','00','<b/>')"_s});
    }
    // The menu of a column of far_shapes, which says whether it can be sorted by.
    void expectReason(int col)
    {
        const QString &reason = reasons.at(col - 1);
        QMenu *menu = openMenu(col);
        for (const char *key : {"SortAscending", "SortDescending", "AddToSort", "FilterByColumn"}) {
            const auto *entry = menu->findChild<QAction *>(u"ColumnMenu"_s + QLatin1StringView(key));
            ASSERT_TRUE(entry) << key;
            EXPECT_EQ(entry->isEnabled(), reason.isEmpty()) << key << col;
            if (!reason.isEmpty()) {
                EXPECT_EQ(entry->toolTip(), reason) << key;
            }
        }
        menu->close();
    }

    const QStringList reasons{{},
                              u"数据库不能按字段“d”的数据类型排序，也不能列出它的值。"_s,
                              u"数据库不能按字段“place”的数据类型排序，也不能列出它的值。"_s,
                              {},
                              u"数据库不能按字段“page”的数据类型排序，也不能列出它的值。"_s};
};

const FarServer servers[] = {{"PostgreSQL", "KOVA_TEST_POSTGRESQL", KOVAVSFDataGrid::dbOracle, 14, 7, 5, 4},
                             {"PgBouncer", "KOVA_TEST_PGBOUNCER", KOVAVSFDataGrid::dbOracle, 14, 7, 5, 4},
                             {"MariaDB", "KOVA_TEST_MARIADB", KOVAVSFDataGrid::dbSQLServer, 13, 4, 4, 3}};

std::string nameOf(const testing::TestParamInfo<FarServer> &server)
{
    return server.param.name;
}

INSTANTIATE_TEST_SUITE_P(Servers, Trips, testing::ValuesIn(servers), nameOf);
INSTANTIATE_TEST_SUITE_P(Servers, FarShapes, testing::ValuesIn(servers), nameOf);

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

TEST_P(Trips, OfTheMenuOfAColumn)
{
    for (int col = 1; col <= 3; ++col) {
        EXPECT_EQ(tripsOf("menu of a column", [&] { openMenu(col)->close(); }), 0);
    }
}

// Only the database knows whether a type that its driver can't name has an order. It is asked once.
TEST_P(FarShapes, OfTheMenuOfAColumnWithoutAnOrder)
{
    ASSERT_TRUE(hands->load(u"SELECT id, doc AS d, place, bits, page FROM far_shapes WHERE id > 0"_s, {}));
    for (int col = 1; col <= 5; ++col) {
        const auto look = [&] { expectReason(col); };
        EXPECT_LE(tripsOf("first menu", look), col == 1 ? 0 : server.sort) << col;
        EXPECT_EQ(tripsOf("second menu", look), 0) << col;
    }
    // The dialogs say so too, before anything is typed or clicked.
    WindowAnswers dialogs({[&](QDialog &dialog) {
                               part<QComboBox>(dialog, "cmbFields").setCurrentText(u"d"_s);
                               EXPECT_FALSE(part(dialog, "cmdAddField").isEnabled());
                               EXPECT_EQ(part(dialog, "cmdAddField").toolTip(), reasons.at(1));
                               Hands::sort(dialog, {u"bits"_s}, true);
                           },
                           [&](QDialog &dialog) {
                               part<QComboBox>(dialog, "cmbField1").setCurrentText(u"d"_s);
                               const auto &operators = part<QComboBox>(dialog, "cmbOperator1");
                               EXPECT_EQ(operators.findText(u"前 N 个"_s), -1);
                               EXPECT_EQ(operators.findText(u"重复的值"_s), -1);
                               auto *offer =
                                   part<QLineEdit>(dialog, "txtValue1").findChild<QAction *>(u"actOffer"_s);
                               ASSERT_TRUE(offer);
                               EXPECT_FALSE(offer->isEnabled());
                               EXPECT_EQ(offer->toolTip(), reasons.at(1));
                               buildFilter(dialog, u"d"_s, u"包含"_s, u"a"_s);
                           }});
    hands->click(u"Sort"_s);
    EXPECT_EQ(hands->texts(u"id"_s), QStringList({u"1"_s, u"2"_s}));
    hands->click(u"Filter"_s);
    EXPECT_EQ(hands->texts(u"id"_s), QStringList(u"1"_s));
    EXPECT_TRUE(hands->messages.shown().empty()) << qUtf8Printable(hands->messages.texts().join(u'|'));
}

// What selects from a statement has its fields, and the database is not asked about them again.
TEST_P(FarShapes, OfTheMenuOfAColumnWithoutAnOrderAfterAFilter)
{
    for (const QString &statement :
         {u"SELECT far_shapes.id, doc AS d, place, bits, page FROM far_shapes"_s,
          u"SELECT s.id, s.doc AS d, place, bits, page FROM far_shapes s LIMIT 9"_s,
          u"SELECT id, d, place, bits, page FROM (SELECT *, doc AS d FROM far_shapes) s"_s,
          u"SELECT s.* FROM (SELECT id, doc AS d, place, bits, page FROM far_shapes) s"_s,
          u"SELECT id, doc AS d, place, bits, page, count(*) OVER () AS n FROM far_shapes"_s}) {
        SCOPED_TRACE(qUtf8Printable(statement));
        ASSERT_TRUE(hands->load(statement, {}));
        const auto lookAtAll = [&] {
            for (int col = 1; col <= 5; ++col)
                expectReason(col);
        };
        lookAtAll();
        hands->clickCell(1, 1);
        QTest::keyClick(hands->table, Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier); // the cell filter
        ASSERT_EQ(hands->texts(u"id"_s), QStringList(u"1"_s));
        EXPECT_EQ(tripsOf("menus after a filter", lookAtAll), 0) << qUtf8Printable(hands->statement());
    }
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
