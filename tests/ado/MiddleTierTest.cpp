// The target of connections when there is a middle tier between them and the database.
#include "TestDatabase.h"
#include "Throwing.h"

#include "ado/ConnectionFactory.h"
#include "ado/ConnectionString.h"

using namespace ADODB;
using namespace Qt::StringLiterals;
using AdoTest::TestDatabase;

namespace {

constexpr qint32 accessType = 1;
constexpr qint32 oracleType = 2;

struct RewriteCase
{
    MiddleTier tier;
    QString database;
    QString rewritten;
};

const RewriteCase rewriteCases[] = {
    {{u"tier"_s, u"6432"_s, {}},
     u"Driver={PostgreSQL Unicode};Server=db;Port=5432;UID=me;PWD=secret"_s,
     u"Driver=PostgreSQL Unicode;Server=tier;Port=6432;UID=me;PWD=secret"_s},
    {{u"tier"_s, {}, {}}, u"Driver={X};SERVERNAME=db;Port=5432"_s, u"Driver=X;SERVERNAME=tier;Port=5432"_s},
    {{u"tier"_s, {}, {}}, u"Driver={X};Host=db;Server=db"_s, u"Driver=X;Server=tier"_s},
    {{{}, u"6432"_s, {}}, u"Driver={X};Server=db"_s, u"Driver=X;Server=db;Port=6432"_s},
    {{u"tier"_s, u"1"_s, {}}, u"DSN=prod;UID=me"_s, u"DSN=prod;UID=me;Server=tier;Port=1"_s},
    {{u"tier"_s, {}, {}},
     u"Provider=MSDASQL;Driver={X};Data Source=db"_s,
     u"Provider=MSDASQL;Driver=X;Server=tier"_s},
    {{u"tier"_s, {}, {}},
     u"Provider=MSDASQL;Data Source=prod"_s,
     u"Provider=MSDASQL;Data Source=prod;Server=tier"_s},
    {{u"tier"_s, u"1500"_s, {}},
     u"Provider=SQLOLEDB;Data Source=db;UID=me"_s,
     u"Provider=SQLOLEDB;UID=me;Server=tier;Port=1500"_s},
    {{u"tier"_s, {}, {}},
     u"Provider=MSOLEDBSQL;Server=db;Network Address=10.0.0.7"_s,
     u"Provider=MSOLEDBSQL;Server=tier"_s},
    // The data source is a name on the client, not a server.
    {{u"tier"_s, {}, {}}, u"Provider=MSDAORA;Data Source=orcl"_s, u"Provider=MSDAORA;Data Source=orcl"_s},
    // A file has no server.
    {{u"tier"_s, u"1"_s, {}}, u"Provider=SQLite;Data Source=a.db"_s, u"Provider=SQLite;Data Source=a.db"_s},
    {{}, u"Driver={X};Server=db"_s, u"Driver=X;Server=db"_s},
    // A complete connection string, which may omit the user.
    {{u"unused"_s, u"1"_s, u"DSN=pool"_s}, u"DSN=prod;UID=me;PWD=secret"_s, u"DSN=pool;UID=me;PWD=secret"_s},
    {{{}, {}, u"DSN=pool;User ID=it;Password=own"_s},
     u"DSN=prod;UID=me;PWD=secret"_s,
     u"DSN=pool;User ID=it;Password=own"_s},
};

class ThreeTierFactory : public testing::Test
{
protected:
    ~ThreeTierFactory() override { ConnectionFactory::setInstance(nullptr); }

    // The first field of the first row, read through the connection.
    static QString ask(const std::shared_ptr<Connection> &connection)
    {
        Recordset recordset;
        recordset.Open(u"SELECT a FROM t"_s, connection);
        return recordset.CellText(1, 0);
    }

    const TestDatabase direct{u"CREATE TABLE t(a); INSERT INTO t VALUES('direct')"_s};
    const TestDatabase tier{u"CREATE TABLE t(a); INSERT INTO t VALUES('tier')"_s};
    ConnectionFactory &factory = ConnectionFactory::instance();
};

} // namespace

TEST(MiddleTier, ReplacesTheServer)
{
    for (const RewriteCase &c : rewriteCases) {
        EXPECT_EQ(c.tier.rewritten(ConnectionString(c.database)).text(), c.rewritten)
            << qUtf8Printable(c.database);
    }
}

TEST(MiddleTier, ReportsAMalformedTextWithoutQuotingIt)
{
    const Error error = AdoTest::errorOf([] {
        MiddleTier{{}, {}, u"DSN=pool;PWD='marker"_s}.rewritten(ConnectionString(u"DSN=prod"_s));
    });
    EXPECT_TRUE(error.is(adErrInvalidArgument));
    EXPECT_FALSE(error.Description().contains(u"marker")) << error.what();
}

TEST_F(ThreeTierFactory, LeadsThroughTheTierWhileTheSwitchIsOn)
{
    factory.SetMiddleTier({{}, {}, tier.connectionString()});
    const auto connect = [&](qint32 type) {
        auto connection = factory.newConnection(type);
        connection->PutConnectionString(direct.connectionString());
        connection->Open();
        EXPECT_EQ(connection->ConnectionString(), direct.connectionString())
            << "the host's text stays its own";
        return ask(connection);
    };
    EXPECT_EQ(connect(oracleType), u"direct"_s);
    factory.SetThreeTier(true);
    EXPECT_EQ(connect(oracleType), u"tier"_s);
    EXPECT_EQ(connect(accessType), u"direct"_s) << "files are opened where they are";
    factory.SetMiddleTier({});
    EXPECT_EQ(connect(oracleType), u"direct"_s) << "a switch without a name";
}
