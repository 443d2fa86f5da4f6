// Reading field names: through which connection, for which statements, and how often.
#include "session/statement/ConnectionFieldReader.h"
#include "ado/Adodc.h"
#include "ado/Connection.h"
#include "ado/ConnectionFactory.h"
#include "ado/Recordset.h"
#include "query/SharedValues.h"
#include "session/ResultSet.h"
#include "sql/AllDBType.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// Counts the connections that are made.
class CountingFactory final : public ADODB::ConnectionFactory
{
public:
    explicit CountingFactory(int &connections) : m_connections(connections) {}
    void SetThreeTier(bool) override {}
    bool ThreeTier() const override { return false; }
    std::shared_ptr<ADODB::Connection> newConnection(qint32) override
    {
        ++m_connections;
        return std::make_shared<ADODB::Connection>();
    }
    std::shared_ptr<ADODB::Recordset> newRecordset(qint32) override
    {
        return std::make_shared<ADODB::Recordset>();
    }

private:
    int &m_connections;
};

struct Reader : testing::Test
{
    Reader()
    {
        ADODB::ConnectionFactory::setInstance(std::make_unique<CountingFactory>(connections));
        SharedValues::instance().dbType = dbSQLServer;
    }
    ~Reader() override
    {
        ADODB::ConnectionFactory::setInstance(nullptr);
        SharedValues::instance().dbType = dbAccess;
    }

    void show(const QString &connectionString, const QString &statement)
    {
        result.replaceBy(ResultSet::open(connectionString, statement, dbSQLServer, {}));
    }
    QStringList names(const QString &connectionString, const QString &statement)
    {
        QStringList list;
        if (const auto fields = reader.Read(connectionString, statement)) {
            for (const SourceField &field : *fields)
                list.append(field.name);
        }
        return list;
    }

    int connections = 0;
    TestDatabase database{u"CREATE TABLE T (A TEXT, B INTEGER, C BLOB); INSERT INTO T VALUES ('x',1,NULL)"_s};
    const QString here = database.connectionString();
    ADODB::Adodc adodc;
    ResultSet result{&adodc};
    ConnectionFieldReader reader{result};
};

struct StatementToRead
{
    const char *text;
    QStringList names;
};

struct ReadStatement : Reader, testing::WithParamInterface<StatementToRead>
{
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    Statements, ReadStatement,
    testing::Values(StatementToRead{"select * from T", {u"A"_s, u"B"_s, u"C"_s}},
                    StatementToRead{"select A from T where B = 1 order by A", {u"A"_s}},
                    StatementToRead{"select A, count(*) as N from T group by A", {u"A"_s, u"N"_s}},
                    StatementToRead{"select A from T group by A having count(*) > 1", {u"A"_s}},
                    StatementToRead{"select A from T union select B from T", {u"A"_s}},
                    StatementToRead{"select X from (select A as X from T where B = 1) S", {u"X"_s}},
                    StatementToRead{"select A from T limit 1", {u"A"_s}},
                    StatementToRead{"select Nothing from T", {}}, StatementToRead{"delete from T", {}},
                    StatementToRead{"", {}}));

TEST_P(ReadStatement, NamesItsFieldsOrNothing)
{
    EXPECT_EQ(names(here, QString::fromUtf8(GetParam().text)), GetParam().names);
    EXPECT_EQ(database.ask(u"select count(*) from T"_s), u"1"_s);
}

TEST_F(Reader, ReportsTheTypes)
{
    const auto fields = reader.Read(here, u"select * from T"_s);
    ASSERT_TRUE(fields);
    EXPECT_EQ((*fields)[2].adoType, 205);
}

TEST_F(Reader, GoesThroughTheControlsOwnConnection)
{
    show(here, u"select * from T"_s);
    ASSERT_EQ(connections, 1);
    EXPECT_TRUE(reader.Open(here));
    EXPECT_EQ(names(here, u"select B from T"_s), QStringList(u"B"_s));
    EXPECT_EQ(connections, 1);
}

TEST_F(Reader, SeesTheDatabaseInMemoryThatTheControlSees)
{
    const QString memory = u"Provider=SQLite;Data Source=:memory:"_s;
    show(memory, u"select 1 as One from (select 2)"_s);
    EXPECT_EQ(names(memory, u"select 1 as One from (select 2)"_s), QStringList(u"One"_s));
    EXPECT_EQ(connections, 1);
}

TEST_F(Reader, OpensAConnectionOfItsOwnForAnotherDatabaseAndKeepsIt)
{
    const TestDatabase other(u"CREATE TABLE U (X)"_s);
    show(here, u"select * from T"_s);
    EXPECT_EQ(names(other.connectionString(), u"select X from U"_s), QStringList(u"X"_s));
    EXPECT_EQ(names(other.connectionString(), u"select X as Y from U"_s), QStringList(u"Y"_s));
    EXPECT_EQ(connections, 2);
}

TEST_F(Reader, OpensAConnectionOfItsOwnOnceTheControlHasClosedIts)
{
    show(here, u"select * from T"_s);
    result.close();
    EXPECT_EQ(names(here, u"select B from T"_s), QStringList(u"B"_s));
    EXPECT_EQ(connections, 2);
}

TEST_F(Reader, ReadsAStatementOnceUntilItIsReset)
{
    EXPECT_EQ(names(here, u"select * from T"_s).size(), 3);
    database.run(u"ALTER TABLE T ADD COLUMN D"_s);
    EXPECT_EQ(names(here, u"select * from T"_s).size(), 3);
    EXPECT_EQ(connections, 1);
    reader.forget();
    EXPECT_EQ(names(here, u"select * from T"_s).size(), 4);
    EXPECT_EQ(connections, 2);
}

TEST_F(Reader, AFailureIsTriedAgain)
{
    EXPECT_EQ(names(here, u"select D from T"_s), QStringList());
    database.run(u"ALTER TABLE T ADD COLUMN D"_s);
    EXPECT_EQ(names(here, u"select D from T"_s), QStringList(u"D"_s));
}

TEST_F(Reader, AnUnusableConnectionStringIsAnAnswer)
{
    EXPECT_FALSE(reader.Open(u"Provider=SQLite;Data Source=/nowhere/at.all"_s));
    EXPECT_FALSE(reader.Read(u"nonsense"_s, u"select 1"_s));
}
