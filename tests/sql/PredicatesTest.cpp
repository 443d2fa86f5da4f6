#include "sql/Predicates.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

constexpr Dialect sqliteFile{dbAccess, false};
constexpr Dialect sqlServer{dbSQLServer, true};

void expectText(const QString &text, const char *expected)
{
    EXPECT_STREQ(qUtf8Printable(text), expected);
}

} // namespace

TEST(Predicates, WhatIsReportedAsTextIsComparedAsTextOnPostgreSql)
{
    constexpr Dialect postgres{dbOracle, true, false, Engine::PostgreSQL};
    expectText(isEmptyText(postgres, u"F"_s), "(F IS NULL OR CAST(F AS TEXT) = '')");
    expectText(isNotEmptyText(postgres, u"F"_s), "CAST(F AS TEXT) LIKE '_%'");
}

TEST(Predicates, AValueThatNoEmptyTextComparesWithIsNotEmptyOnMariaDb)
{
    expectText(isNotEmptyText({dbSQLServer, true, false, Engine::MySQL}, u"F"_s),
               "COALESCE(F <> '', F IS NOT NULL)");
}

TEST(Predicates, ABooleanIsComparedWithWhatTheEngineTakes)
{
    expectText(isTrue({dbAccess, true, false, Engine::PostgreSQL}, u"F"_s, true), "F = '1'");
    expectText(isTrue(sqlServer, u"F"_s, false), "F = '0'");
    expectText(isTrue(sqliteFile, u"F"_s, true), "F <> 0");
    expectText(isTrue({dbAccess, true, false, Engine::Access}, u"F"_s, false), "F = 0");
}

TEST(Predicates, RowsAreLimitedInTheEnginesOwnWords)
{
    for (const Engine engine : {Engine::SQLite, Engine::PostgreSQL, Engine::MySQL})
        expectText(rowLimit({dbSQLServer, true, false, engine}, 5).behindSort, " LIMIT 5");
    expectText(rowLimit(sqliteFile, 5).behindSort, " LIMIT 5");
    expectText(rowLimit(sqliteFile, 5).beforeList, "");
    expectText(rowLimit(sqlServer, 5).behindSort, " OFFSET 0 ROWS FETCH NEXT 5 ROWS ONLY");
}

TEST(Predicates, AccessItselfLimitsRowsBeforeTheList)
{
    constexpr Dialect access{dbAccess, true, false, Engine::Access};
    expectText(rowLimit(access, 5).beforeList, "TOP 5 ");
    expectText(rowLimit(access, 5).behindSort, "");
    // Its files are read through SQLite, so SQLite's syntax is used.
    expectText(rowLimit({dbAccess, false, false, Engine::Access}, 5).behindSort, " LIMIT 5");
}

TEST(Predicates, SqlServerIsGivenASortToLimitRowsWithoutOne)
{
    for (const Dialect &dialect : {sqlServer, Dialect{dbAccess, true, false, Engine::SqlServer}})
        expectText(rowLimitWithoutSort(dialect, 5).behindSort,
                   " ORDER BY (SELECT NULL) OFFSET 0 ROWS FETCH NEXT 5 ROWS ONLY");
    expectText(rowLimitWithoutSort({dbOracle, true, false, Engine::Oracle}, 5).behindSort,
               " OFFSET 0 ROWS FETCH NEXT 5 ROWS ONLY");
    expectText(rowLimitWithoutSort(sqliteFile, 5).behindSort, " LIMIT 5");
}

TEST(Predicates, OracleTakesNoWordBeforeTheAliasOfAnInnerTable)
{
    EXPECT_EQ(innerTableAlias({dbAccess, false, false, Engine::SQLite}, u"Q"_s), u" AS Q"_s);
    EXPECT_EQ(innerTableAlias({dbAccess, true, false, Engine::Oracle}, u"Q"_s), u" Q"_s);
    EXPECT_EQ(innerTableAlias({dbOracle}, u"Q"_s), u" Q"_s) << "the declared type is all that is known";
    EXPECT_EQ(innerTableAlias({dbOracle, true, false, Engine::PostgreSQL}, u"Q"_s), u" AS Q"_s);
}

TEST(Predicates, SqlServerAndMySqlKeepNoOrderWithinATable)
{
    EXPECT_FALSE(keepsInnerSort({dbAccess, true, false, Engine::SqlServer}));
    EXPECT_FALSE(keepsInnerSort({dbSQLServer}));
    EXPECT_FALSE(keepsInnerSort({dbSQLServer, true, false, Engine::MySQL}));
    EXPECT_TRUE(keepsInnerSort({dbSQLServer, true, false, Engine::PostgreSQL}));
    EXPECT_TRUE(keepsInnerSort({dbSQLServer, false, false, Engine::SQLite}));
}
