#include "filter/FilterSql.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KOVAVSFDataGridLib::FilterSql;
using namespace Qt::StringLiterals;

namespace {

constexpr Dialect SqliteFile{dbAccess, false};
constexpr Dialect AccessServer{dbAccess, true};
constexpr Dialect OracleServer{dbOracle, true};
constexpr Dialect SqlServer{dbSQLServer, true};
constexpr Dialect MariaDb{dbSQLServer, true, true};

void expectText(const QString &text, const char *expected)
{
    EXPECT_STREQ(qUtf8Printable(text), expected);
}

} // namespace

TEST(FilterSql, OdbcIsReadOffTheConnectionString)
{
    EXPECT_TRUE(DialectOf(dbOracle, u"DSN=prod;UID=me"_s).isOdbc);
    EXPECT_TRUE(DialectOf(dbOracle, u"driver={PostgreSQL Unicode};Server=db"_s).isOdbc);
    EXPECT_TRUE(DialectOf(dbOracle, u"Provider=MSDASQL.1;FileDSN=x.dsn"_s).isOdbc);
    EXPECT_FALSE(DialectOf(dbSQLServer, u"Provider=SQLite;Data Source=shop.db"_s).isOdbc);
    EXPECT_FALSE(DialectOf(dbAccess, u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source=nwind.mdb"_s).isOdbc);
    EXPECT_FALSE(DialectOf(dbAccess, u"Data Source='not closed"_s).isOdbc);
}

TEST(FilterSql, NamesAreEnclosedWhereTheyNeedIt)
{
    struct Case
    {
        QString name;
        const char *access;
        const char *oracle;
        const char *sqlServer;
    };
    const Case cases[] = {
        {u"NAME"_s, "NAME", "NAME", "NAME"},
        {u"客户名称"_s, "客户名称", "客户名称", "客户名称"},
        {u"Unit Price"_s, "[Unit Price]", "\"Unit Price\"", "\"Unit Price\""},
        {u"单价(元)"_s, "[单价(元)]", "\"单价(元)\"", "\"单价(元)\""},
        {u"Mixed"_s, "Mixed", "\"Mixed\"", "Mixed"},
        {u"2024"_s, "[2024]", "\"2024\"", "\"2024\""},
        {u"Order"_s, "[Order]", "\"Order\"", "\"Order\""},
        {u"ORDER"_s, "[ORDER]", "\"ORDER\"", "\"ORDER\""},
        {u"desc"_s, "[desc]", "\"desc\"", "\"desc\""},
        {u"Current_Date"_s, "[Current_Date]", "\"Current_Date\"", "\"Current_Date\""},
        {u"a\"b"_s, "[a\"b]", "\"a\"\"b\"", "\"a\"\"b\""},
        {u"a]b"_s, "\"a]b\"", "\"a]b\"", "\"a]b\""},
    };
    for (const Case &c : cases) {
        expectText(FieldName(SqliteFile, c.name), c.access);
        expectText(FieldName(OracleServer, c.name), c.oracle);
        expectText(FieldName(SqlServer, c.name), c.sqlServer);
    }
}

TEST(FilterSql, ApostrophesInTextAreDoubled)
{
    expectText(Text(SqliteFile, u"O'Brien's"_s), "'O''Brien''s'");
    expectText(Text(SqliteFile, u"'"_s), "''''");
    expectText(Text(SqliteFile, u"北京"_s), "'北京'");
}

TEST(FilterSql, OnlySqlServerNeedsToBeToldOfUnicode)
{
    expectText(Text(SqlServer, u"北京"_s), "N'北京'");
    expectText(Text(SqlServer, u"Beijing"_s), "'Beijing'");
    expectText(Text(OracleServer, u"北京"_s), "'北京'");
    expectText(Text({dbSQLServer, false}, u"北京"_s), "'北京'");
    expectText(Text({dbSQLServer, true, false, Engine::MySQL}, u"北京"_s), "'北京'");
}

TEST(FilterSql, WordsThatBeginAClauseAreTakenApartSoThatNoStatementIsCutThere)
{
    struct Case
    {
        QString text;
        const char *sqlite;
        const char *server;
    };
    const Case cases[] = {
        {u"a order by b"_s, "('a o' || 'rder by b')", "{fn CONCAT('a o', 'rder by b')}"},
        {u" Order By b"_s, "(' O' || 'rder By b')", "{fn CONCAT(' O', 'rder By b')}"},
        {u"FROM 北京"_s, "('F' || 'ROM 北京')", "{fn CONCAT('F', 'ROM 北京')}"},
        {u"WHERE ORDER BY "_s, "(('W' || 'HERE O') || 'RDER BY ')",
         "{fn CONCAT({fn CONCAT('W', 'HERE O')}, 'RDER BY ')}"},
        {u"letter from where"_s, "'letter from where'", "'letter from where'"},
        {u"order by"_s, "'order by'", "'order by'"},
    };
    for (const Case &c : cases) {
        expectText(Text(SqliteFile, c.text), c.sqlite);
        expectText(Text(OracleServer, c.text), c.server);
    }
    expectText(Like(SqliteFile, u"F"_s, u"x order by 5%"_s, Anchor::None),
               "F LIKE ('%x o' || 'rder by 5!%%') ESCAPE '!'");
}

TEST(FilterSql, ABackslashIsMatchedAsItself)
{
    expectText(Text(OracleServer, uR"(C:\temp\)"_s), R"('C:\temp\')");
    expectText(Text(MariaDb, uR"(C:\temp\)"_s), R"('C:\\temp\\')");
    expectText(Text(MariaDb, uR"(\'北)"_s), R"('\\''北')");
    // PostgreSQL's and MariaDB's patterns have it as an escape where no other one is named.
    expectText(Like(OracleServer, u"F"_s, uR"(a\b)"_s, Anchor::Begin), R"(F LIKE 'a\b%' ESCAPE '!')");
    expectText(Like(MariaDb, u"F"_s, uR"(a\%)"_s, Anchor::End), R"(F LIKE '%a\\!%' ESCAPE '!')");
}

TEST(FilterSql, DatesAreIsoTextOrOdbcEscapes)
{
    const QDate day(2024, 1, 5);
    const QDateTime moment(day, QTime(8, 30), Qt::UTC);
    expectText(Date(SqliteFile, day), "'2024-01-05'");
    expectText(Time(SqliteFile, QTime(8, 30, 1)), "'08:30:01'");
    expectText(Moment(SqliteFile, moment), "'2024-01-05 08:30:00'");
    expectText(Moment(SqliteFile, moment.addMSecs(250)), "'2024-01-05 08:30:00.250'");
    expectText(Date(AccessServer, day), "{d '2024-01-05'}");
    expectText(Time(OracleServer, QTime(8, 30, 1)), "{t '08:30:01'}");
    expectText(Moment(SqlServer, moment), "{ts '2024-01-05 08:30:00'}");
}

TEST(FilterSql, LikeMatchesItsOwnWildcardsAsThemselves)
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
        expectText(Like(SqliteFile, u"F"_s, c.text, c.anchor), c.sqlite);
        expectText(Like(SqlServer, u"F"_s, c.text, c.anchor), c.sqlServer);
    }
}

TEST(FilterSql, WhatIsReportedAsTextIsComparedAsTextOnPostgreSql)
{
    constexpr Dialect postgres{dbOracle, true, false, Engine::PostgreSQL};
    expectText(Like(postgres, u"F"_s, u"a"_s, Anchor::End), "CAST(F AS TEXT) LIKE '%a'");
    expectText(IsEmptyText(postgres, u"F"_s), "(F IS NULL OR CAST(F AS TEXT) = '')");
    expectText(IsNotEmptyText(postgres, u"F"_s), "CAST(F AS TEXT) LIKE '_%'");
    expectText(IsTrue({dbAccess, true, false, Engine::PostgreSQL}, u"F"_s, true), "F = '1'");
}

TEST(FilterSql, ValuesAreLimitedInTheEnginesOwnWords)
{
    const auto limited = [](const Dialect &dialect) { return DistinctValues(dialect, u"F"_s, u"T"_s, 5); };
    for (const Engine engine : {Engine::SQLite, Engine::PostgreSQL, Engine::MySQL})
        EXPECT_TRUE(limited({dbSQLServer, true, false, engine}).endsWith(u" LIMIT 5"));
    EXPECT_TRUE(limited(SqliteFile).endsWith(u" LIMIT 5"));
    EXPECT_TRUE(limited(SqlServer).endsWith(u" OFFSET 0 ROWS FETCH NEXT 5 ROWS ONLY"));
}

TEST(FilterSql, TermsAreJoinedAsTheyStand)
{
    expectText(Join({}), "");
    expectText(Join({{u"a"_s}}), "a");
    expectText(Join({{u"a"_s}, {u"b"_s}, {u"c"_s}}), "a AND b AND c");
    expectText(Join({{u"a"_s, 0, 0, true}}), "a");
}

TEST(FilterSql, AnOrOutsideAllBracketsIsEnclosedSoThatMoreCanBeJoinedByAnd)
{
    expectText(Join({{u"a"_s, 0, 0, true}, {u"b"_s}}), "(a OR b)");
    expectText(Join({{u"a"_s}, {u"b"_s, 1, 0, true}, {u"c"_s, 0, 1}}), "a AND (b OR c)");
    expectText(Join({{u"a"_s, 1, 0, true}, {u"b"_s, 0, 1, true}, {u"c"_s}}), "((a OR b) OR c)");
}

TEST(FilterSql, BracketsWithoutCounterpartAreFound)
{
    EXPECT_EQ(UnmatchedBracket({{u"a"_s, 2, 1}, {u"b"_s, 0, 1}}), -1);
    EXPECT_EQ(UnmatchedBracket({{u"a"_s}, {u"b"_s, 1, 0}, {u"c"_s}}), 1);
    EXPECT_EQ(UnmatchedBracket({{u"a"_s, 0, 1}, {u"b"_s, 1, 0}}), 0);
    EXPECT_EQ(UnmatchedBracket({{u"a"_s, 1, 0}, {u"b"_s, 1, 1}}), 0);
}

TEST(FilterSql, DistinctValuesAreLimitedAsTheDatabaseSaysIt)
{
    expectText(DistinctValues(SqliteFile, u"F"_s, u"T"_s, 200),
               "SELECT DISTINCT F FROM T WHERE F IS NOT NULL ORDER BY F LIMIT 200");
    expectText(
        DistinctValues(SqlServer, u"F"_s, u"T"_s, 200),
        "SELECT DISTINCT F FROM T WHERE F IS NOT NULL ORDER BY F OFFSET 0 ROWS FETCH NEXT 200 ROWS ONLY");
}
