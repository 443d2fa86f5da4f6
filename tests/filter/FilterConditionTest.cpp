#include "filter/FilterCondition.h"

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
    EXPECT_EQ(sql(number, NotEquals, u"-5"_s), "F <> -5");
    EXPECT_EQ(sql(number, Greater, u"5"_s), "F > 5");
    EXPECT_EQ(sql(number, Less, u"5"_s), "F < 5");
    EXPECT_EQ(sql(number, AtLeast, u"5"_s), "F >= 5");
    EXPECT_EQ(sql(number, AtMost, u"5"_s), "F <= 5");
    EXPECT_EQ(sql(number, Between, u"-2"_s, u"5"_s), "(F >= -2 AND F <= 5)");
    EXPECT_EQ(sql(number, InList, u"1，2,3"_s), "F IN (1, 2, 3)");
    EXPECT_EQ(sql(number, IsEmpty), "F IS NULL");
    EXPECT_EQ(sql(number, IsNotEmpty), "F IS NOT NULL");
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
    EXPECT_EQ(sqlOf(NotEquals, u"0.5"_s), "F NOT BETWEEN " + from + " AND " + to);
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
    EXPECT_EQ(sql(date, Equals, u"2024-05-01 00:00:00"_s, {}, engine), "COALESCE(date(F), F) = '2024-05-01'");
    EXPECT_EQ(sql(date, Equals, u"2024-05-01 00:00:00"_s), "F = '2024-05-01'");
    EXPECT_TRUE(sql(date, Equals, u"2024-05-01 12:00"_s, {}, engine).ends_with("= '2024-05-01 12:00:00'"));
    EXPECT_TRUE(sql(date, Equals, u"2024-05-01 12:00"_s).starts_with("fault"));
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
    EXPECT_EQ(sql(moment, NotEquals, day), "(F < '2024-01-05' OR F >= '2024-01-06')");
    EXPECT_EQ(sql(moment, Greater, day), "F >= '2024-01-06'");
    EXPECT_EQ(sql(moment, AtMost, day), "F < '2024-01-06'");
    EXPECT_EQ(sql(moment, Between, day, u"2024-01-31 12:00"_s),
              "(F >= '2024-01-05' AND F <= '2024-01-31 12:00:00')");
    EXPECT_EQ(sql(moment, InList, u"2024-01-05, 2024-01-07 08:00"_s),
              "(F IN ('2024-01-07 08:00:00') OR (F >= '2024-01-05' AND F < '2024-01-06'))");
    EXPECT_EQ(sql(moment, Equals, day, {}, oracleServer), "(F >= {d '2024-01-05'} AND F < {d '2024-01-06'})");
}

TEST(FilterCondition, YesAndNoAreToldByNumberOrOnServersByText)
{
    EXPECT_EQ(sql(FieldClass::Boolean, Equals, u"是"_s), "F <> 0");
    EXPECT_EQ(sql(FieldClass::Boolean, NotEquals, u"是"_s), "F = 0");
    EXPECT_EQ(sql(FieldClass::Boolean, Equals, u"否"_s, {}, oracleServer), "F = '0'");
    EXPECT_EQ(sql(FieldClass::Boolean, Equals, u"是"_s, {}, {dbSQLServer, true}), "F = '1'");
    EXPECT_EQ(sql(FieldClass::Boolean, Equals, u"是"_s, {}, {dbAccess, true}), "F <> 0");
}

TEST(FilterCondition, FaultsAreSaidInsteadOfACondition)
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

TEST(FilterOperators, FitTheFieldsClass)
{
    EXPECT_TRUE(operatorsFor(FieldClass::Text).contains(Contains));
    EXPECT_FALSE(operatorsFor(FieldClass::Number).contains(Contains));
    EXPECT_EQ(operatorsFor(FieldClass::Other), (QList<FilterOperator>{IsEmpty, IsNotEmpty}));
    EXPECT_EQ(operatorsFor(FieldClass::Text).size(), 13);
    EXPECT_EQ(captionOf(IsNotEmpty), u"不为空"_s);
    EXPECT_EQ(valueCount(Between), 2);
    EXPECT_EQ(valueCount(IsEmpty), 0);
}
