// What all controls of a process share, and what each keeps for itself.
#include "query/SharedValues.h"
#include "control/face/KOVAVSFDataGrid.h"
#include "support/TestDatabase.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

struct Shared : testing::Test
{
    Shared() { values = {}; }
    ~Shared() override { values = {}; }

    SharedValues &values = SharedValues::instance();
    KOVAVSFDataGrid one;
    KOVAVSFDataGrid two;
};

} // namespace

TEST_F(Shared, WritingAPropertyWritesThroughAtOnce)
{
    one.PutConnectionString(u"Provider=SQLite;Data Source=a"_s);
    EXPECT_EQ(values.connectionString, u"Provider=SQLite;Data Source=a"_s);
    one.PutSQLShow(u"select a from T"_s);
    EXPECT_EQ(values.sqlShow, u"select a from T"_s);
    EXPECT_EQ(values.sqlShowCopy, u"select a from T"_s);
    one.PutTableType(KOVAVSFDataGrid::DefSQL);
    EXPECT_EQ(values.tableType, 2);
    one.PutDBType(KOVAVSFDataGrid::dbOracle);
    EXPECT_EQ(values.dbType, 2);
    EXPECT_EQ(values.dbType16, 2);
}

TEST_F(Shared, TheLastWriterSetsItForAll)
{
    one.PutConnectionString(u"a"_s);
    two.PutConnectionString(u"b"_s);
    EXPECT_EQ(values.connectionString, u"b"_s);
    EXPECT_EQ(one.ConnectionString(), u"a"_s);
    one.PutDBType(KOVAVSFDataGrid::dbSQLServer);
    EXPECT_EQ(two.DBType(), KOVAVSFDataGrid::dbSQLServer);
}

TEST_F(Shared, AStatementIsParsedIntoTheSharedFieldList)
{
    one.PutSQLShow(u"select [ID], Name ,[Full Name] from Staff where Dept=1"_s);
    EXPECT_EQ(values.parsed.strSQLTable, u"Staff"_s);
    EXPECT_EQ(values.parsed.colSQLFields, QStringList({u"ID"_s, u"Name"_s, u"Full Name"_s}));
    two.PutConnectionString(u"x"_s);
    EXPECT_EQ(values.parsed.colSQLFields, QStringList()) << "a connection string empties it";
}

TEST_F(Shared, ALoadCountsItsRecords)
{
    const TestDatabase database(u"CREATE TABLE T (A); INSERT INTO T VALUES (1),(2)"_s);
    one.PutConnectionString(database.connectionString());
    one.PutSQLShow(u"select A from T"_s);
    ASSERT_TRUE(one.IsLoadData());
    EXPECT_EQ(values.recordCount, 2);
    EXPECT_EQ(values.hasRecords, 1);
    EXPECT_EQ(values.recordCountSnapshot, 2);
    EXPECT_EQ(values.recordPosition, 1);
    two.PutConnectionString(database.connectionString());
    two.PutSQLShow(u"select A from T where A > 5"_s);
    ASSERT_TRUE(two.IsLoadData());
    EXPECT_EQ(values.recordCount, 0);
    EXPECT_EQ(values.hasRecords, 0);
    EXPECT_EQ(one.CurrPosition(), 1) << "the first control still has its own";
}
