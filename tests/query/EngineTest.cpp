// What conditions look like on engines that compare values in their own way.
#include "query/conditions/Conditions.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

const std::vector<TypedField> AllKinds{
    {u"name"_s, 202}, {u"price"_s, 131}, {u"day"_s, 133}, {u"picture"_s, 205}};

QString quickFilter(Engine engine, AllDBType database, const QString &words)
{
    QString condition;
    EXPECT_TRUE(BuildLikeCondition(words, AllKinds, u"SELECT * FROM t"_s, database, condition, engine));
    return condition;
}

} // namespace

TEST(QuickFilterOnEngines, CastsWhereLikeFollowsTextsOnlyAndLeavesPicturesOut)
{
    EXPECT_EQ(quickFilter(Engine::PostgreSQL, dbOracle, u"1"_s),
              u" (CAST(name AS TEXT) LIKE '%1%' OR CAST(price AS TEXT) LIKE '%1%' "
              "OR CAST(day AS TEXT) LIKE '%1%' ) "_s);
    EXPECT_EQ(quickFilter(Engine::PostgreSQL, dbAccess, u"1"_s),
              quickFilter(Engine::PostgreSQL, dbOracle, u"1"_s));
}

TEST(QuickFilterOnEngines, WritesTheFieldsAsTheyAreOnAllOthers)
{
    const QString plain =
        u" (name LIKE '%1%' OR price LIKE '%1%' OR day LIKE '%1%' OR picture LIKE '%1%' ) "_s;
    for (const Engine engine : {Engine::Other, Engine::SQLite, Engine::MySQL})
        EXPECT_EQ(quickFilter(engine, dbSQLServer, u"1"_s), plain);
}

TEST(QuickFilterOnEngines, CastsTheOneChosenField)
{
    QString condition;
    EXPECT_TRUE(BuildLikeAllCondition(u"a"_s, {u"price"_s, 131}, u"SELECT * FROM t"_s, dbOracle, condition,
                                      Engine::PostgreSQL));
    EXPECT_EQ(condition, u" (CAST(price AS TEXT) LIKE '%a%' ) "_s);
    EXPECT_FALSE(BuildLikeAllCondition(u"a"_s, {u"picture"_s, 205}, u"SELECT * FROM t"_s, dbOracle, condition,
                                       Engine::PostgreSQL));
}

TEST(QuickFilterOnEngines, ABackslashIsFoundAsOne)
{
    const auto pattern = [](const EngineMode &engine) {
        QString condition;
        EXPECT_TRUE(BuildLikeAllCondition(uR"(C:\')"_s, {u"F"_s, 202}, u"SELECT * FROM t"_s, dbSQLServer,
                                          condition, engine));
        return condition;
    };
    EXPECT_EQ(pattern(Engine::SQLite), uR"( (F LIKE '%C:\''%' ) )"_s);
    EXPECT_EQ(pattern(Engine::PostgreSQL), uR"( (CAST("F" AS TEXT) LIKE '%C:\\''%' ) )"_s);
    EXPECT_EQ(pattern(Engine::MySQL), uR"( (F LIKE '%C:\\\\''%' ) )"_s);
    const EngineMode plain{Engine::MySQL, {.backslashEscapes = false}};
    EXPECT_EQ(pattern(plain), uR"( (F LIKE '%C:\\''%' ) )"_s);
    EXPECT_EQ(buildCellFilter(u"F"_s, 202, uR"(C:\)"_s, Engine::MySQL).condition, uR"(F like 'C:\\\\')"_s);
    EXPECT_EQ(buildCellFilter(u"F"_s, 202, uR"(C:\)"_s, plain).condition, uR"(F like 'C:\\')"_s);
}

TEST(CellFilterOnEngines, ComparesNumbersAsNumbersWhereLikeTakesNone)
{
    const auto condition = [](qint32 type, const QString &text, Engine engine) {
        return buildCellFilter(u"F"_s, type, text, engine).condition;
    };
    EXPECT_EQ(condition(3, u"12"_s, Engine::PostgreSQL), u"F = 12"_s);
    EXPECT_EQ(condition(131, u"-0.50"_s, Engine::PostgreSQL), u"F = -0.50"_s);
    EXPECT_EQ(condition(4, u"0.1"_s, Engine::PostgreSQL), u"F = CAST(0.1 AS REAL)"_s);
    EXPECT_EQ(buildCellFilter(u"F"_s, 20, u"9"_s, Engine::SQLite, true).condition,
              u"(F = 9 OR F like '9')"_s);
    EXPECT_EQ(condition(72, u"{01}"_s, Engine::PostgreSQL), u"F = '{01}'"_s);
    EXPECT_EQ(condition(202, u"a%"_s, Engine::PostgreSQL), u"CAST(F AS TEXT) like 'a%'"_s);
    EXPECT_EQ(condition(202, uR"(a\b)"_s, Engine::MySQL), uR"(F like 'a\\\\b')"_s);
    EXPECT_EQ(condition(3, u"12"_s, Engine::MySQL), u"F like 12"_s);
    EXPECT_EQ(condition(3, u"12"_s, Engine::SQLite), u"F like 12"_s);
}

TEST(CellFilterOnEngines, WritesANumberOnlyWhereTheValueIsOne)
{
    const auto condition = [](qint32 type, const QString &text, Engine engine) {
        return buildCellFilter(u"F"_s, type, text, engine).condition;
    };
    EXPECT_EQ(condition(3, u"0 UNION SELECT token,x FROM secret --"_s, Engine::SQLite),
              u"F like ('0 UNION SELECT token,x F' || 'ROM secret --')"_s);
    EXPECT_EQ(condition(3, u"n/a"_s, Engine::MySQL), u"F like 'n/a'"_s);
    EXPECT_EQ(condition(131, u"O'Neil"_s, Engine::SQLite), u"F like 'O''Neil'"_s);
    EXPECT_EQ(condition(5, u"NaN"_s, Engine::PostgreSQL), u"F = 'NaN'"_s);
    EXPECT_EQ(condition(3, u"-7"_s, Engine::SQLite), u"F like -7"_s);
}

TEST(CellFilterOnEngines, FindsWholeNumbersInFloatingColumns)
{
    const auto condition = [](qint32 type, const QString &text, Engine engine) {
        return buildCellFilter(u"F"_s, type, text, engine).condition;
    };
    EXPECT_EQ(condition(5, u"10"_s, Engine::SQLite), u"F like 10.0"_s);
    EXPECT_EQ(condition(4, u"10.5"_s, Engine::SQLite), u"F like 10.5"_s);
    EXPECT_EQ(condition(5, u"1e+20"_s, Engine::SQLite), u"F like 1e+20"_s);
    EXPECT_EQ(condition(131, u"10"_s, Engine::SQLite), u"F like 10"_s);
    EXPECT_EQ(condition(5, u"10"_s, Engine::MySQL), u"F = 10"_s) << "which can be written 10.0000";
    EXPECT_EQ(condition(5, u"10"_s, Engine::SqlServer), u"F = 10"_s);
}

TEST(CellFilterOnEngines, FindsFractionsThatAreNotExactlyWhatIsShown)
{
    const auto condition = [](qint32 type, const QString &text, Engine engine, bool isComputed = false) {
        return buildCellFilter(u"F"_s, type, text, engine, isComputed).condition;
    };
    EXPECT_EQ(condition(5, u"0.3"_s, Engine::PostgreSQL),
              u"F BETWEEN 0.2999999999999995 AND 0.3000000000000005"_s);
    EXPECT_EQ(condition(4, u"0.1"_s, Engine::MySQL), u"F BETWEEN 0.09999950000000001 AND 0.1000005"_s);
    EXPECT_EQ(condition(5, u"1e+20"_s, Engine::MySQL),
              u"F BETWEEN 9.999999999999949e+19 AND 1.000000000000005e+20"_s);
    EXPECT_EQ(condition(5, u"-2"_s, Engine::Standard, true),
              u"F BETWEEN -2.000000000000005 AND -1.999999999999995"_s);
    EXPECT_EQ(condition(5, u"0"_s, Engine::MySQL, true), u"F = 0"_s);
}

TEST(CellFilterOnEngines, TakesCurrencyForANumber)
{
    EXPECT_EQ(buildCellFilter(u"F"_s, 6, u"12.5"_s, Engine::SQLite).condition, u"F = 12.5"_s);
    QString condition;
    EXPECT_TRUE(BuildLikeAllCondition(u"1"_s, {u"F"_s, 6}, u"SELECT * FROM T"_s, dbAccess, condition,
                                      Engine::SQLite));
    EXPECT_EQ(condition, u" (T.[F] LIKE '%1%' ) "_s);
}

TEST(QuickFilterOnEngines, LeavesOutWhatCantHoldAWordWhereLikeNeedsACast)
{
    EXPECT_EQ(
        quickFilter(Engine::PostgreSQL, dbOracle, u"a%1"_s),
        u" (CAST(name AS TEXT) LIKE '%a%' ) And  (CAST(name AS TEXT) LIKE '%1%' OR CAST(price AS TEXT) LIKE "
        "'%1%' OR CAST(day AS TEXT) LIKE '%1%' ) "_s);
    QString condition;
    EXPECT_TRUE(BuildLikeAllCondition(u"a"_s, {u"price"_s, 131}, u"SELECT * FROM t"_s, dbOracle, condition,
                                      Engine::PostgreSQL));
    EXPECT_EQ(condition, u" (CAST(price AS TEXT) LIKE '%a%' ) "_s) << "one field remains";
}

TEST(QuickFilterOnEngines, WritesWhatTheResultCallsAField)
{
    QString condition;
    EXPECT_TRUE(BuildLikeAllCondition(u"a"_s, {u"No"_s, 202, u"o.Name"_s}, u"SELECT 'WHERE ' FROM T"_s,
                                      dbAccess, condition, Engine::SQLite));
    EXPECT_EQ(condition, u" (o.Name LIKE '%a%' ) "_s);
}
