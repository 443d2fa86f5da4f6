#include "filter/FilterSql.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KOVAVSFDataGridLib::FilterSql;
using namespace Qt::StringLiterals;

namespace {

constexpr Dialect sqliteFile{dbAccess, false};
constexpr Dialect sqlServer{dbSQLServer, true};

void expectText(const QString &text, const char *expected)
{
    EXPECT_STREQ(qUtf8Printable(text), expected);
}

} // namespace

TEST(FilterSql, WhatIsReportedAsTextIsComparedAsTextOnPostgreSql)
{
    constexpr Dialect postgres{dbOracle, true, false, Engine::PostgreSQL};
    expectText(isEmptyText(postgres, u"F"_s), "(F IS NULL OR CAST(F AS TEXT) = '')");
    expectText(isNotEmptyText(postgres, u"F"_s), "CAST(F AS TEXT) LIKE '_%'");
    expectText(isTrue({dbAccess, true, false, Engine::PostgreSQL}, u"F"_s, true), "F = '1'");
}

TEST(FilterSql, ValuesAreLimitedInTheEnginesOwnWords)
{
    const auto limited = [](const Dialect &dialect) { return distinctValues(dialect, u"F"_s, u"T"_s, 5); };
    for (const Engine engine : {Engine::SQLite, Engine::PostgreSQL, Engine::MySQL})
        EXPECT_TRUE(limited({dbSQLServer, true, false, engine}).endsWith(u" LIMIT 5"));
    EXPECT_TRUE(limited(sqliteFile).endsWith(u" LIMIT 5"));
    EXPECT_TRUE(limited(sqlServer).endsWith(u" OFFSET 0 ROWS FETCH NEXT 5 ROWS ONLY"));
}

TEST(FilterSql, TermsAreJoinedAsTheyStand)
{
    expectText(join({}), "");
    expectText(join({{u"a"_s}}), "a");
    expectText(join({{u"a"_s}, {u"b"_s}, {u"c"_s}}), "a AND b AND c");
    expectText(join({{u"a"_s, 0, 0, true}}), "a");
}

TEST(FilterSql, AnOrOutsideAllBracketsIsEnclosedSoThatMoreCanBeJoinedByAnd)
{
    expectText(join({{u"a"_s, 0, 0, true}, {u"b"_s}}), "(a OR b)");
    expectText(join({{u"a"_s}, {u"b"_s, 1, 0, true}, {u"c"_s, 0, 1}}), "a AND (b OR c)");
    expectText(join({{u"a"_s, 1, 0, true}, {u"b"_s, 0, 1, true}, {u"c"_s}}), "((a OR b) OR c)");
}

TEST(FilterSql, BracketsWithoutCounterpartAreFound)
{
    EXPECT_EQ(unmatchedBracket({{u"a"_s, 2, 1}, {u"b"_s, 0, 1}}), -1);
    EXPECT_EQ(unmatchedBracket({{u"a"_s}, {u"b"_s, 1, 0}, {u"c"_s}}), 1);
    EXPECT_EQ(unmatchedBracket({{u"a"_s, 0, 1}, {u"b"_s, 1, 0}}), 0);
    EXPECT_EQ(unmatchedBracket({{u"a"_s, 1, 0}, {u"b"_s, 1, 1}}), 0);
}

TEST(FilterSql, DistinctValuesAreLimitedAsTheDatabaseSaysIt)
{
    expectText(distinctValues(sqliteFile, u"F"_s, u"T"_s, 200),
               "SELECT DISTINCT F FROM T WHERE F IS NOT NULL ORDER BY F LIMIT 200");
    expectText(
        distinctValues(sqlServer, u"F"_s, u"T"_s, 200),
        "SELECT DISTINCT F FROM T WHERE F IS NOT NULL ORDER BY F OFFSET 0 ROWS FETCH NEXT 200 ROWS ONLY");
}
