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
        expectText(rowLimit({dbSQLServer, true, false, engine}, 5), "LIMIT 5");
    expectText(rowLimit(sqliteFile, 5), "LIMIT 5");
    expectText(rowLimit(sqlServer, 5), "OFFSET 0 ROWS FETCH NEXT 5 ROWS ONLY");
}
