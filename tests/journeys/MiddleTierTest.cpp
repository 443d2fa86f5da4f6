// A connection pool between the control and its database, named in the file beside the library.
#include "JourneyDatabase.h"

#include "../control/commands/Hands.h"
#include "servers/Servers.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <gtest/gtest.h>

#include <dlfcn.h>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class MiddleTierJourney : public testing::Test
{
protected:
    void SetUp() override
    {
        if (pool.isEmpty())
            GTEST_SKIP() << "KOVA_TEST_PGBOUNCER is not set";
        OdbcSession(direct).run({u"DROP TABLE IF EXISTS journey_pooled"_s,
                                 u"CREATE TABLE journey_pooled AS SELECT g AS id, 'name ' || g AS name "
                                 "FROM generate_series(1, 20000) g"_s});
    }
    ~MiddleTierJourney() override { QFile::remove(switchFile()); }

    // Beside the library, wherever that was built.
    static QString switchFile()
    {
        Dl_info library{};
        const QMetaObject *meta = &KOVAVSFDataGrid::staticMetaObject;
        dladdr(meta, &library);
        return QFileInfo(QFile::decodeName(library.dli_fname)).canonicalPath() + u"/MERIXUSER3TIER.cfg"_s;
    }
    static void configure(const QString &lines)
    {
        QFile file(switchFile());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write((u"[Use3Tier]\nMERIX=YES\n"_s + lines).toUtf8());
    }
    static QString portOf(const QString &connection)
    {
        static const QRegularExpression port(u"Port=(\\d+)"_s);
        return port.match(connection).captured(1);
    }

    const QString direct = serverConnection("KOVA_TEST_POSTGRESQL");
    const QString pool = serverConnection("KOVA_TEST_PGBOUNCER");
    // Nothing listens there: only through the tier it leads anywhere.
    const QString dead = QString(direct).replace(u"Port="_s + portOf(direct), u"Port=1"_s);
};

} // namespace

TEST_F(MiddleTierJourney, ItsServerAndPortReplaceTheDatabases)
{
    configure(u"Server=127.0.0.1\nPort="_s + portOf(pool));
    Hands hands(dead, KOVAVSFDataGrid::dbOracle);
    ASSERT_TRUE(hands.load(u"SELECT * FROM journey_pooled"_s, {}))
        << qUtf8Printable(hands.messages.texts().join(u'|'));
    EXPECT_EQ(hands.rows(), 20000);
    EXPECT_EQ(hands.grid.ConnectionString(), dead) << "the host's text stays its own";

    // All kinds of queries use the same route.
    WindowAnswers dialogs({[](QDialog &dialog) { Hands::filter(dialog, u"id <= 10"_s); },
                           [](QDialog &dialog) { Hands::find(dialog, u"name 7"_s); },
                           [](QDialog &dialog) { Hands::sort(dialog, {u"id"_s}, true); }});
    hands.click(u"FromResult"_s);
    hands.click(u"Filter"_s);
    EXPECT_EQ(hands.rows(), 10);
    hands.click(u"QuickFilter"_s);
    EXPECT_EQ(hands.texts(u"id"_s), QStringList({u"7"_s}));
    hands.click(u"ToOrigin"_s);
    hands.click(u"Sort"_s);
    EXPECT_EQ(hands.texts(u"id"_s).first(), u"20000"_s);
}

TEST_F(MiddleTierJourney, ItsWholeConnectionTextReplacesTheDatabases)
{
    // Who connects is the host's to say.
    configure(u"Connection="_s + QString(pool).remove(QRegularExpression(u"UID=[^;]*;PWD=[^;]*"_s)));
    Hands hands(dead, KOVAVSFDataGrid::dbOracle);
    EXPECT_TRUE(hands.load(u"SELECT * FROM journey_pooled"_s, {}))
        << qUtf8Printable(hands.messages.texts().join(u'|'));
}

TEST_F(MiddleTierJourney, ASwitchWithoutANameKeepsTheConnection)
{
    configure({});
    Hands hands(direct, KOVAVSFDataGrid::dbOracle);
    EXPECT_TRUE(hands.load(u"SELECT * FROM journey_pooled"_s, {}));
}

TEST_F(MiddleTierJourney, RefusesAWrongPasswordAsTheDatabaseWould)
{
    Hands hands(QString(pool).replace(markerPassword(), u"wrong"_s), KOVAVSFDataGrid::dbSQLServer);
    EXPECT_FALSE(hands.load(u"SELECT * FROM journey_pooled"_s, {}));
    EXPECT_TRUE(hands.messages.texts().value(0).contains(u"数据库服务器拒绝登录"))
        << qUtf8Printable(hands.messages.texts().join(u'|'));
}

// With transaction pooling, each transaction may run in another session of the server, so nothing may rely on
// state that it left there.
TEST_F(MiddleTierJourney, ManyControlsShareAFewSessionsOfTheServer)
{
    configure(u"Server=127.0.0.1\nPort="_s + portOf(pool));
    std::vector<std::unique_ptr<Hands>> many;
    for (int i = 0; i < 8; ++i) // the pool holds 4 sessions
        many.push_back(std::make_unique<Hands>(dead, KOVAVSFDataGrid::dbOracle));
    for (int round = 0; round < 3; ++round) {
        for (auto &hands : many) {
            hands->grid.PutDBType(KOVAVSFDataGrid::dbOracle);
            ASSERT_TRUE(hands->load(u"SELECT * FROM journey_pooled WHERE id <= 100 ORDER BY id"_s, {}))
                << qUtf8Printable(hands->messages.texts().join(u'|'));
            EXPECT_EQ(hands->texts(u"name"_s).last(), u"name 100"_s);
        }
    }
}
