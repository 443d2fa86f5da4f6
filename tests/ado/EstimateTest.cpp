// How many records a load tells beforehand: only what SQLite's statistics know of the very same rows.
#include "TestDatabase.h"

#include "ado/recordset/RecordsSoFar.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace ADODB;
using AdoTest::TestDatabase;

namespace {

constexpr int count = 60'000; // of some megabytes: small results tell nothing

struct Estimate : testing::Test
{
    // What was known at the end of a load, through a session of its own.
    std::optional<qint64> of(const QString &statement) const
    {
        Recordset recordset;
        EXPECT_EQ(estimatedRecords(recordset), std::nullopt) << "nothing is being read";
        std::optional<qint64> estimate;
        recordset.SetProgress([&](qint64) {
            estimate = estimatedRecords(recordset);
            return true;
        });
        recordset.Open(statement, database.connect(), adOpenKeyset, adLockOptimistic);
        EXPECT_EQ(estimatedRecords(recordset), std::nullopt) << "all is read";
        return estimate;
    }

    const TestDatabase database{
        u"CREATE TABLE Goods(ID INTEGER PRIMARY KEY, Name TEXT);"
        "CREATE TABLE \"it's\"(ID INTEGER PRIMARY KEY, Name TEXT);"
        "WITH RECURSIVE s(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM s WHERE i < %1)"
        "INSERT INTO Goods SELECT i, 'a name that is long enough for a megabyte: ' || i FROM s;"
        "INSERT INTO \"it's\" SELECT * FROM Goods;"
        "CREATE INDEX Few ON Goods(Name) WHERE ID < 10;"
        "CREATE VIEW Seen AS SELECT * FROM Goods;"_s.arg(count)};
};

} // namespace

TEST_F(Estimate, IsTheNumberThatTheStatisticsHaveOfAWholeTable)
{
    database.execute(u"ANALYZE"_s);
    for (const char *statement :
         {"SELECT * FROM Goods", "select goods.ID, Name from main.GOODS order by Name desc;",
          "SELECT Name n FROM Goods g -- all of them", "SELECT * FROM [Goods]", R"(SELECT * FROM "it's")"})
        EXPECT_EQ(of(QString::fromLatin1(statement)), count) << statement;
}

TEST_F(Estimate, IsNotOfferedForRowsThatTheStatisticsDontKnow)
{
    database.execute(u"ANALYZE"_s);
    for (const char *statement :
         {"SELECT * FROM Goods WHERE ID > 1", "SELECT * FROM Goods LIMIT 50000", "SELECT * FROM Seen",
          "SELECT ID, upper(Name) FROM Goods", "SELECT DISTINCT * FROM Goods",
          "SELECT g.* FROM Goods g JOIN Goods h USING (ID)", "SELECT * FROM Goods UNION ALL SELECT 1, ''"})
        EXPECT_EQ(of(QString::fromLatin1(statement)), std::nullopt) << statement;
}

TEST_F(Estimate, IsNotThereWithoutStatistics)
{
    EXPECT_EQ(of(u"SELECT * FROM Goods"_s), std::nullopt);
    database.execute(u"ANALYZE; DELETE FROM sqlite_stat1"_s);
    EXPECT_EQ(of(u"SELECT * FROM Goods"_s), std::nullopt);
}

// Which is what the statistics are when the table has changed much since then.
TEST_F(Estimate, MayBeWrong)
{
    database.execute(u"ANALYZE; DELETE FROM sqlite_stat1 WHERE idx IS NOT NULL;"
                     "UPDATE sqlite_stat1 SET stat = '3000000'"_s);
    EXPECT_EQ(of(u"SELECT * FROM Goods"_s), 3'000'000);
    database.execute(u"UPDATE sqlite_stat1 SET stat = NULL"_s);
    EXPECT_EQ(of(u"SELECT * FROM Goods"_s), std::nullopt);
}
