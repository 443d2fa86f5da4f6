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
