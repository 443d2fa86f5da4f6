#include "filter/conditions/FilterCondition.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;
using enum FilterOperator;

namespace {

constexpr Dialect sqlite{dbAccess, false};
constexpr Dialect oracleServer{dbOracle, true};

FilterField field(FieldClass fieldClass)
{
    return {u"F"_s, u"F"_s, fieldClass};
}

std::string sql(FieldClass fieldClass, FilterOperator op, const QString &value = {}, const QString &last = {},
                const Dialect &dialect = sqlite)
{
    const FilterCondition found = conditionOf(dialect, {field(fieldClass), op, value, last});
    EXPECT_NE(found.sql.isEmpty(), found.fault.isEmpty());
    return found.fault.isEmpty() ? found.sql.toStdString() : "fault: " + found.fault.toStdString();
}

} // namespace

TEST(FilterCondition, ComparesNumbers)
{
    const auto number = FieldClass::Number;
    EXPECT_EQ(sql(number, Equals, u"5"_s), "F = 5");
    EXPECT_EQ(sql(number, NotEquals, u"-5"_s), "(F <> -5 OR F IS NULL)");
    EXPECT_EQ(sql(number, Greater, u"5"_s), "F > 5");
    EXPECT_EQ(sql(number, Less, u"5"_s), "F < 5");
    EXPECT_EQ(sql(number, AtLeast, u"5"_s), "F >= 5");
    EXPECT_EQ(sql(number, AtMost, u"5"_s), "F <= 5");
    EXPECT_EQ(sql(number, Between, u"-2"_s, u"5"_s), "(F >= -2 AND F <= 5)");
    EXPECT_EQ(sql(number, InList, u"1，2,3"_s), "F IN (1, 2, 3)");
    EXPECT_EQ(sql(number, IsEmpty), "F IS NULL");
    EXPECT_EQ(sql(number, IsNotEmpty), "F IS NOT NULL");
}

TEST(FilterCondition, WhatIsLargerThanANumberIsNoTextOfSqlite)
{
    const Dialect engine{.engine = Engine::SQLite};
    const auto number = FieldClass::Number;
    EXPECT_EQ(sql(number, Greater, u"5"_s, {}, engine), "(F > 5 AND F < '')");
    EXPECT_EQ(sql(number, AtLeast, u"5"_s, {}, engine), "(F >= 5 AND F < '')");
    EXPECT_EQ(sql(number, Less, u"5"_s, {}, engine), "F < 5");
    EXPECT_EQ(sql(number, Between, u"-2"_s, u"5"_s, engine), "(F >= -2 AND F <= 5)");
    EXPECT_EQ(sql(FieldClass::Text, Greater, u"5"_s, {}, engine), "F > '5'");
}

TEST(FilterCondition, MoneyOfPostgresIsComparedAsANumber)
{
    FilterField money = field(FieldClass::Number);
    money.isMoney = true;
    const auto sqlOf = [&](Engine engine, FilterOperator op, const QString &value) {
        return conditionOf({.isOdbc = true, .engine = engine}, {money, op, value, {}}).sql.toStdString();
    };
    EXPECT_EQ(sqlOf(Engine::PostgreSQL, Equals, u"12.5"_s), "CAST(F AS NUMERIC) = 12.5");
    EXPECT_EQ(sqlOf(Engine::PostgreSQL, InList, u"0, 12.5"_s), "CAST(F AS NUMERIC) IN (0, 12.5)");
    EXPECT_EQ(sqlOf(Engine::PostgreSQL, IsEmpty, {}), "F IS NULL");
    EXPECT_EQ(sqlOf(Engine::Access, Less, u"12.5"_s), "F < 12.5");
}

TEST(FilterCondition, AFractionMeansAllNumbersThatAreShownAsIt)
{
    const auto sqlOf = [](FilterOperator op, const QString &value, bool isComputed = false) {
        FilterField floating = field(FieldClass::Number);
        floating.floatSize = FloatSize::Double;
        floating.isComputed = isComputed;
        return conditionOf(sqlite, {floating, op, value, {}}).sql.toStdString();
    };
    const std::string from = "0.4999999999999995";
    const std::string to = "0.5000000000000006";
    EXPECT_EQ(sqlOf(Equals, u"0.5"_s), "F BETWEEN " + from + " AND " + to);
    EXPECT_EQ(sqlOf(NotEquals, u"0.5"_s), "(F NOT BETWEEN " + from + " AND " + to + " OR F IS NULL)");
    EXPECT_EQ(sqlOf(Greater, u"0.5"_s), "F > " + to);
    EXPECT_EQ(sqlOf(Less, u"0.5"_s), "F < " + from);
    EXPECT_EQ(sqlOf(AtLeast, u"0.5"_s), "F >= " + from);
    EXPECT_EQ(sqlOf(AtMost, u"0.5"_s), "F <= " + to);
    EXPECT_EQ(sqlOf(InList, u"1, 0.5"_s), "(F IN (1) OR F BETWEEN " + from + " AND " + to + ")");
    EXPECT_EQ(sqlOf(Equals, u"10"_s), "F = 10");
    EXPECT_EQ(sqlOf(Equals, u"10"_s, true), "F BETWEEN 9.99999999999995 AND 10.00000000000005");
    EXPECT_EQ(sqlOf(Equals, u"0.12345678901234567"_s), "F = 0.12345678901234567") << "more than is shown";
}

TEST(FilterCondition, AnUntypedValueIsComparedAsWhatItIs)
{
    const auto sqlOf = [](FilterOperator op, const QString &value, const QString &last = {}) {
        FilterField untyped = field(FieldClass::Text);
        untyped.isUntyped = true;
        return conditionOf(sqlite, {untyped, op, value, last}).sql.toStdString();
    };
    EXPECT_EQ(sqlOf(Less, u"4"_s), "CASE typeof(F) WHEN 'text' THEN F < '4' ELSE F < 3.999999999999995 END");
    EXPECT_EQ(sqlOf(Less, u"abc"_s), "F < 'abc'");
    EXPECT_EQ(sqlOf(Contains, u"4"_s), "F LIKE '%4%'");
    EXPECT_EQ(sqlOf(Equals, u"0"_s), "CASE typeof(F) WHEN 'text' THEN F = '0' ELSE F = 0 END");
    EXPECT_EQ(sqlOf(Between, u"a"_s, u"b"_s), "(F >= 'a' AND F <= 'b')");
}

TEST(FilterCondition, ADayOfSqliteCanHaveATime)
{
    constexpr Dialect engine{.database = dbAccess, .engine = Engine::SQLite};
    const auto date = FieldClass::Date;
    const std::string shown = "COALESCE(REPLACE(strftime('%Y-%m-%d %H:%M:%f', F), ' 00:00:00.000', ''), F)";
    EXPECT_EQ(sql(date, Equals, u"2024-05-01 00:00:00"_s, {}, engine), shown + " = '2024-05-01'");
    EXPECT_EQ(sql(date, InList, u"2024-05-01"_s, {}, engine), shown + " IN ('2024-05-01')");
    EXPECT_EQ(sql(date, AtMost, u"2024-05-01"_s, {}, engine), "COALESCE(date(F), F) <= '2024-05-01'");
    EXPECT_EQ(sql(date, Equals, u"2024-05-01 00:00:00"_s), "F = '2024-05-01'");
    EXPECT_TRUE(sql(date, Equals, u"2024-05-01 12:00"_s, {}, engine).ends_with("= '2024-05-01 12:00:00'"));
    EXPECT_TRUE(sql(date, Equals, u"2024-05-01 12:00"_s).starts_with("fault"));
}

TEST(FilterCondition, DecimalsOfASecondAreWrittenAsTyped)
{
    const auto moment = FieldClass::Moment;
    EXPECT_EQ(sql(moment, Equals, u"2024-05-01 12:00:00.123456"_s, {}, oracleServer),
              "F = {ts '2024-05-01 12:00:00.123456'}");
    EXPECT_EQ(sql(moment, Equals, u"2024-05-01 12:00:00.000001"_s), "F = '2024-05-01 12:00:00.000001'");
    EXPECT_EQ(sql(moment, Equals, u"2024-05-01 12:00:00.500000"_s), "F = '2024-05-01 12:00:00.500'");
    EXPECT_EQ(sql(FieldClass::Time, Equals, u"12:00:00.1234"_s), "F = '12:00:00.1234'");
    EXPECT_TRUE(sql(moment, Equals, u"2024-05-01 12:00:00.1234567890"_s).starts_with("fault"));
    EXPECT_TRUE(sql(FieldClass::Date, Equals, u"2024-05-01 00:00:00.000001"_s).starts_with("fault"));
}

TEST(FilterCondition, AZoneIsTakenWhereTheEngineHasALiteralForIt)
{
    const Dialect postgres{dbSQLServer, true, false, Engine::PostgreSQL};
    const auto moment = FieldClass::Moment;
    const auto equal = [&](const QString &typed) { return sql(moment, Equals, typed, {}, postgres); };
    EXPECT_EQ(equal(u"2024-05-01 12:00:00.123456+08"_s), "F = TIMESTAMPTZ '2024-05-01 12:00:00.123456+08'");
    EXPECT_EQ(equal(u"2024-05-01 12:00 -03:30"_s), "F = TIMESTAMPTZ '2024-05-01 12:00:00-03:30'");
    EXPECT_EQ(equal(u"2024-05-01T12:00:00Z"_s), "F = TIMESTAMPTZ '2024-05-01 12:00:00+00'");
    EXPECT_EQ(equal(u"1900-01-01 08:05:43+08:05:43"_s), "F = TIMESTAMPTZ '1900-01-01 08:05:43+08:05:43'");
    EXPECT_EQ(equal(u"2024-05-01 12:00:00"_s), "F = {ts '2024-05-01 12:00:00'}") << "in the session's zone";
    for (const QString &typed : {u"2024-05-01 12:00+8"_s, u"2024-05-01 +08"_s, u"2024-05-01 12:00+08:0"_s})
        EXPECT_TRUE(equal(typed).starts_with("fault")) << typed.toStdString();
    EXPECT_TRUE(sql(moment, Equals, u"2024-05-01 12:00:00+08"_s).starts_with("fault"));
    EXPECT_TRUE(sql(FieldClass::Date, Equals, u"2024-05-01 00:00+08"_s, {}, postgres).starts_with("fault"));
    // By the moment that is meant, not by the clock.
    EXPECT_EQ(sql(moment, Between, u"2024-05-01 12:00+08"_s, u"2024-05-01 05:00+00"_s, postgres),
              "(F >= TIMESTAMPTZ '2024-05-01 12:00:00+08' AND F <= TIMESTAMPTZ '2024-05-01 05:00:00+00')");
}

TEST(FilterCondition, AnEmptyTextIsAsEmptyAsNoText)
{
    EXPECT_EQ(sql(FieldClass::Text, IsEmpty), "(F IS NULL OR F = '')");
    EXPECT_EQ(sql(FieldClass::Text, IsNotEmpty), "F <> ''");
    EXPECT_EQ(sql(FieldClass::Text, IsNotEmpty, {}, {}, oracleServer), "F LIKE '_%'");
}

TEST(FilterCondition, ADayInAMomentFieldMeansTheWholeDay)
{
    const auto moment = FieldClass::Moment;
    const QString day = u"2024-01-05"_s;
    EXPECT_EQ(sql(moment, Equals, day), "(F >= '2024-01-05' AND F < '2024-01-06')");
    EXPECT_EQ(sql(moment, NotEquals, day), "((F < '2024-01-05' OR F >= '2024-01-06') OR F IS NULL)");
    EXPECT_EQ(sql(moment, Greater, day), "F >= '2024-01-06'");
    EXPECT_EQ(sql(moment, AtMost, day), "F < '2024-01-06'");
    EXPECT_EQ(sql(moment, Between, day, u"2024-01-31 12:00"_s),
              "(F >= '2024-01-05' AND F <= '2024-01-31 12:00:00')");
    EXPECT_EQ(sql(moment, InList, u"2024-01-05, 2024-01-07 08:00"_s),
              "(F IN ('2024-01-07 08:00:00') OR (F >= '2024-01-05' AND F < '2024-01-06'))");
    EXPECT_EQ(sql(moment, Equals, day, {}, oracleServer), "(F >= {d '2024-01-05'} AND F < {d '2024-01-06'})");
}

TEST(FilterCondition, YesAndNoAreWrittenAsNumbersOrOnServersAsTexts)
{
    EXPECT_EQ(sql(FieldClass::Boolean, Equals, u"是"_s), "F <> 0");
    EXPECT_EQ(sql(FieldClass::Boolean, NotEquals, u"是"_s), "(F = 0 OR F IS NULL)");
    EXPECT_EQ(sql(FieldClass::Boolean, Equals, u"否"_s, {}, oracleServer), "F = '0'");
    EXPECT_EQ(sql(FieldClass::Boolean, Equals, u"是"_s, {}, {dbSQLServer, true}), "F = '1'");
    EXPECT_EQ(sql(FieldClass::Boolean, Equals, u"是"_s, {}, {dbAccess, true}), "F <> 0");
}

TEST(FilterCondition, FaultsAreReportedInsteadOfACondition)
{
    EXPECT_EQ(sql(FieldClass::Text, Equals), "fault: 请输入值。");
    EXPECT_EQ(sql(FieldClass::Text, Contains), "fault: 请输入值。");
    EXPECT_EQ(sql(FieldClass::Text, Between, u"a"_s), "fault: 请输入值。");
    EXPECT_EQ(sql(FieldClass::Number, Equals, u"五"_s), "fault: “五”不是数字。");
    EXPECT_EQ(sql(FieldClass::Number, InList, u" , "_s), "fault: 请输入值。");
    EXPECT_EQ(sql(FieldClass::Number, InList, u"1, x"_s), "fault: “x”不是数字。");
    EXPECT_EQ(sql(FieldClass::Number, Between, u"9"_s, u"10"_s), "(F >= 9 AND F <= 10)");
    EXPECT_EQ(sql(FieldClass::Number, Between, u"10"_s, u"9"_s), "fault: 结束值小于开始值。");
    EXPECT_EQ(sql(FieldClass::Date, Between, u"2024-02-01"_s, u"2024-1-31"_s), "fault: 结束值小于开始值。");
    EXPECT_EQ(sql(FieldClass::Moment, Between, u"2024-02-01"_s, u"2024-02-01"_s),
              "(F >= '2024-02-01' AND F < '2024-02-02')");
    // The day lasts until its end.
    EXPECT_EQ(sql(FieldClass::Moment, Between, u"2024-02-01 12:00"_s, u"2024-02-01"_s),
              "(F >= '2024-02-01 12:00:00' AND F < '2024-02-02')");
    EXPECT_EQ(sql(FieldClass::Moment, Between, u"2024-02-02"_s, u"2024-02-01"_s),
              "fault: 结束值小于开始值。");
    EXPECT_EQ(sql(FieldClass::Moment, Between, u"2024-02-02 00:00"_s, u"2024-02-01"_s),
              "fault: 结束值小于开始值。");
    EXPECT_EQ(conditionOf(sqlite, {}).fault, u"没有可以筛选的字段。"_s);
}

TEST(FilterCondition, WhatIsLeftOutLeavesRecordsWithoutAValueUnlessTheyAreNotWanted)
{
    const auto text = FieldClass::Text;
    EXPECT_EQ(sql(text, NotContains, u"a"_s), "(NOT (F LIKE '%a%') OR F IS NULL)");
    EXPECT_EQ(sql(text, NotBeginsWith, u"a"_s), "(NOT (F LIKE 'a%') OR F IS NULL)");
    EXPECT_EQ(sql(text, NotEndsWith, u"a"_s), "(NOT (F LIKE '%a') OR F IS NULL)");
    EXPECT_EQ(sql(text, NotInList, u"a、b"_s), "(NOT (F IN ('a', 'b')) OR F IS NULL)");
    EXPECT_EQ(sql(FieldClass::Number, NotBetween, u"1"_s, u"2"_s),
              "(NOT ((F >= 1 AND F <= 2)) OR F IS NULL)");
    const auto withoutNull = [](const FilterField &asked, FilterOperator op, bool isNegated) {
        return conditionOf(sqlite, {asked, op, u"1"_s, {}, isNegated, false}).sql.toStdString();
    };
    EXPECT_EQ(withoutNull(field(FieldClass::Number), NotEquals, false), "F <> 1");
    EXPECT_EQ(withoutNull(field(FieldClass::Number), Greater, true), "NOT (F > 1)");
    EXPECT_EQ(withoutNull(field(FieldClass::Number), NotEquals, true), "F = 1");
    EXPECT_EQ(withoutNull(field(FieldClass::Number), IsEmpty, true), "F IS NOT NULL");
    EXPECT_EQ(withoutNull(field(FieldClass::Number), IsNotEmpty, true), "F IS NULL");
}

TEST(FilterCondition, RecordsAreComparedWithTheOnesThatAreFiltered)
{
    const auto among = [](const Dialect &dialect, FilterOperator op, const QString &count,
                          const QString &restriction = {}) {
        FilterScope scope;
        scope.records = {u"T"_s, restriction};
        const FilterCondition found = conditionOf(dialect, {field(FieldClass::Number), op, count, {}}, scope);
        return found.sql.toStdString() + found.fault.toStdString();
    };
    EXPECT_EQ(among(sqlite, Duplicated, {}),
              "F IN (SELECT F\nFROM T\nWHERE F IS NOT NULL GROUP BY F HAVING COUNT(*) > 1)");
    EXPECT_EQ(
        among(sqlite, Top, u"3"_s, u"A = 1 OR B = 2"_s),
        "F IN (SELECT KovaValue\nFROM (SELECT F AS KovaValue\nFROM T\nWHERE (A = 1 OR B = 2) AND F IS NOT "
        "NULL\nORDER BY F DESC LIMIT 3) KovaFirst)");
    EXPECT_TRUE(QString::fromStdString(among({dbSQLServer, true}, Bottom, u"3"_s))
                    .contains(u"ORDER BY F OFFSET 0 ROWS FETCH NEXT 3 ROWS ONLY"_s));
    EXPECT_TRUE(QString::fromStdString(among({dbAccess, true, false, Engine::Access}, Bottom, u"3"_s))
                    .contains(u"(SELECT TOP 3 F AS KovaValue"_s));
    EXPECT_EQ(among(sqlite, Top, u"0"_s), "“0”不是个数，请输入从 1 开始的整数。");
    EXPECT_EQ(among(sqlite, Top, {}), "请输入值。");
    EXPECT_EQ(sql(FieldClass::Number, Duplicated), "fault: 这里不能比较各条记录。");
}

TEST(FilterCondition, TheFirstTextsAreThoseThatBeginTheirOrder)
{
    FilterScope scope;
    scope.records = {u"T"_s, {}};
    const auto first = [&](FilterOperator op) {
        return conditionOf(sqlite, {field(FieldClass::Text), op, u"3"_s, {}}, scope).sql.toStdString();
    };
    EXPECT_EQ(first(Top),
              "F IN (SELECT KovaValue\nFROM (SELECT F AS KovaValue\nFROM T\nWHERE F <> ''\nORDER BY "
              "F LIMIT 3) KovaFirstTexts)");
    EXPECT_EQ(first(Bottom),
              "F IN (SELECT KovaValue\nFROM (SELECT F AS KovaValue\nFROM T\nWHERE F <> ''\nORDER "
              "BY F DESC LIMIT 3) KovaFirstTexts)");
}

TEST(FilterCondition, DaysAreThoseOfTheDayOnWhichItIsWritten)
{
    const auto on = [](QDate today, FilterOperator op, const QString &value, const QString &last = {}) {
        FilterScope scope;
        scope.today = today;
        const FilterCondition found = conditionOf(sqlite, {field(FieldClass::Date), op, value, last}, scope);
        return found.sql.toStdString() + found.fault.toStdString();
    };
    const QDate leapDay(2024, 2, 29);
    EXPECT_EQ(on(leapDay, Equals, u"今天"_s), "F = '2024-02-29'");
    EXPECT_EQ(on(leapDay.addDays(1), Equals, u"今天"_s), "F = '2024-03-01'");
    EXPECT_EQ(on(leapDay, Equals, u"上月"_s), "(F >= '2024-01-01' AND F < '2024-02-01')");
    EXPECT_EQ(on(leapDay, Greater, u"上月"_s), "F >= '2024-02-01'");
    EXPECT_EQ(on(leapDay, AtMost, u"去年"_s), "F < '2024-01-01'");
    EXPECT_EQ(on(leapDay, Between, u"上月"_s, u"本月"_s), "(F >= '2024-01-01' AND F < '2024-03-01')");
    EXPECT_EQ(on(leapDay, Between, u"本月"_s, u"上月"_s), "结束值小于开始值。");
    EXPECT_EQ(on(leapDay, Between, u"本月"_s, u"今天"_s), "(F >= '2024-02-01' AND F <= '2024-02-29')");
}

TEST(FilterOperators, AreFoundByTheirNames)
{
    for (int op = 0; op <= static_cast<int>(Bottom); ++op)
        EXPECT_EQ(operatorNamed(nameOf(static_cast<FilterOperator>(op))), static_cast<FilterOperator>(op));
    EXPECT_FALSE(operatorNamed(u"like"_s));
}

TEST(FilterOperators, FitTheFieldsClass)
{
    EXPECT_TRUE(operatorsFor(FieldClass::Text).contains(Contains));
    EXPECT_FALSE(operatorsFor(FieldClass::Number).contains(Contains));
    EXPECT_EQ(operatorsFor(FieldClass::Other), (QList<FilterOperator>{IsEmpty, IsNotEmpty}));
    EXPECT_EQ(operatorsFor(FieldClass::Text).size(), 21);
    FilterField field{u"j"_s, u"j"_s};
    EXPECT_EQ(operatorsFor(field), operatorsFor(FieldClass::Text));
    field.hasOrder = false;
    EXPECT_EQ(operatorsFor(field).size(), 18);
    for (const FilterOperator op : {Duplicated, Top, Bottom})
        EXPECT_FALSE(operatorsFor(field).contains(op));
    // Two values have many records each.
    EXPECT_EQ(operatorsFor(FieldClass::Boolean),
              (QList<FilterOperator>{Equals, NotEquals, IsEmpty, IsNotEmpty}));
    EXPECT_EQ(captionOf(Bottom), u"后 N 个"_s);
    EXPECT_EQ(valueCount(NotBetween), 2);
    EXPECT_EQ(valueCount(Duplicated), 0);
    EXPECT_EQ(captionOf(IsNotEmpty), u"不为空"_s);
    EXPECT_EQ(valueCount(Between), 2);
    EXPECT_EQ(valueCount(IsEmpty), 0);
}
