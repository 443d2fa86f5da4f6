#include "sql/Like.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

constexpr Dialect sqliteFile{dbAccess, false};
constexpr Dialect oracleServer{dbOracle, true};
constexpr Dialect sqlServer{dbSQLServer, true};
constexpr Dialect mariaDb{dbSQLServer, true, true};

void expectText(const QString &text, const char *expected)
{
    EXPECT_STREQ(qUtf8Printable(text), expected);
}

} // namespace

TEST(Like, LikeMatchesItsOwnWildcardsAsThemselves)
{
    struct Case
    {
        QString text;
        Anchor anchor;
        const char *sqlite;
        const char *sqlServer;
    };
    const Case cases[] = {
        {u"ab"_s, Anchor::None, "F LIKE '%ab%'", "F LIKE '%ab%'"},
        {u"ab"_s, Anchor::Begin, "F LIKE 'ab%'", "F LIKE 'ab%'"},
        {u"ab"_s, Anchor::End, "F LIKE '%ab'", "F LIKE '%ab'"},
        {u"50%"_s, Anchor::None, "F LIKE '%50!%%' ESCAPE '!'", "F LIKE '%50!%%' ESCAPE '!'"},
        {u"a_b"_s, Anchor::None, "F LIKE '%a!_b%' ESCAPE '!'", "F LIKE '%a!_b%' ESCAPE '!'"},
        {u"a[b"_s, Anchor::None, "F LIKE '%a[b%'", "F LIKE '%a![b%' ESCAPE '!'"},
        {u"100!_"_s, Anchor::End, "F LIKE '%100!!!_' ESCAPE '!'", "F LIKE '%100!!!_' ESCAPE '!'"},
        {u"it's"_s, Anchor::Begin, "F LIKE 'it''s%'", "F LIKE 'it''s%'"},
        {u"北_"_s, Anchor::Begin, "F LIKE '北!_%' ESCAPE '!'", "F LIKE N'北!_%' ESCAPE '!'"},
    };
    for (const Case &c : cases) {
        expectText(like(sqliteFile, u"F"_s, c.text, c.anchor), c.sqlite);
        expectText(like(sqlServer, u"F"_s, c.text, c.anchor), c.sqlServer);
    }
}

TEST(Like, TakesWordsThatBeginAClauseApart)
{
    expectText(like(sqliteFile, u"F"_s, u"x order by 5%"_s, Anchor::None),
               "F LIKE ('%x o' || 'rder by 5!%%') ESCAPE '!'");
}

TEST(Like, MatchesABackslashAsItself)
{
    // In PostgreSQL and MariaDB it is the default escape if no other one is given.
    expectText(like(oracleServer, u"F"_s, uR"(a\b)"_s, Anchor::Begin), R"(F LIKE 'a\b%' ESCAPE '!')");
    expectText(like(mariaDb, u"F"_s, uR"(a\%)"_s, Anchor::End), R"(F LIKE '%a\\!%' ESCAPE '!')");
}

TEST(Like, SeesTheDigitsOfADoubleThatAreShown)
{
    EXPECT_EQ(likeOperandOfDouble(Engine::MySQL, u"F"_s), u"F"_s);
    EXPECT_EQ(likeOperandOfDouble(Engine::PostgreSQL, u"F"_s),
              u"COALESCE(CASE WHEN abs(F) BETWEEN 0.0001 AND 1e15 THEN CAST(CAST(F AS NUMERIC) AS TEXT) END, "
              "CAST(F AS TEXT))"_s);
}

TEST(Like, SeesMoneyWithoutTheZerosThatAreNotShown)
{
    EXPECT_EQ(likeOperandOfMoney(Engine::SqlServer, u"F"_s), u"F"_s);
    EXPECT_EQ(likeOperandOfMoney(Engine::PostgreSQL, u"F"_s),
              u"CAST(CAST(CAST(F AS NUMERIC) AS DOUBLE PRECISION) AS TEXT)"_s);
}

TEST(Like, CastsWhatIsReportedAsTextOnPostgreSql)
{
    const Dialect postgres = dialectOf(dbOracle, Engine::PostgreSQL);
    expectText(like(postgres, u"F"_s, u"a"_s, Anchor::End), "CAST(F AS TEXT) LIKE '%a'");
    EXPECT_EQ(likeOperand(Engine::SQLite, u"F"_s), u"F"_s);
    EXPECT_TRUE(likesTextsOnly(Engine::PostgreSQL));
    EXPECT_FALSE(likesTextsOnly(Engine::MySQL));
}
