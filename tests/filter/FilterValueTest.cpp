#include "filter/conditions/FilterValue.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

constexpr Dialect sqliteDialect{dbAccess, false};

// The literal; "-" if the text is not such a value.
std::string literal(FieldClass fieldClass, const QString &typed)
{
    const auto value = readFilterValue(sqliteDialect, fieldClass, typed, QDate(2024, 2, 29));
    return value ? value->literal.toStdString() : "-";
}

} // namespace

TEST(FilterValue, NumbersKeepEveryDigitThatWasTyped)
{
    const FieldClass number = FieldClass::Number;
    EXPECT_EQ(literal(number, u" 12 "_s), "12");
    EXPECT_EQ(literal(number, u"+7"_s), "7");
    EXPECT_EQ(literal(number, u"-0.10"_s), "-0.10");
    EXPECT_EQ(literal(number, u"12345678901234567890.123"_s), "12345678901234567890.123");
    EXPECT_EQ(literal(number, u"1e-5"_s), "1e-5");
    EXPECT_EQ(literal(number, u"－１２．５"_s), "-12.5"); // full-width
    EXPECT_EQ(literal(number, u"\u2212"
                              "3"_s),
              "-3");
}

TEST(FilterValue, OtherTextsAreNoNumbers)
{
    for (const QString &typed :
         {u""_s, u"abc"_s, u"1,000"_s, u"--1"_s, u"1.2.3"_s, u"0x10"_s, u"nan"_s, u"1 OR 1"_s})
        EXPECT_EQ(literal(FieldClass::Number, typed), "-") << qUtf8Printable(typed);
}

// The values of a column are offered as the engine writes them, so they must be taken.
TEST(FilterValue, AnEnginesOwnNumbersAndTimesAreTaken)
{
    const auto literal = [](Engine engine, FieldClass fieldClass, const QString &typed) {
        const auto value = readFilterValue(dialectOf(dbSQLServer, engine), fieldClass, typed, {});
        return value ? value->literal : u"none"_s;
    };
    const Engine postgres = Engine::PostgreSQL;
    EXPECT_EQ(literal(postgres, FieldClass::Number, u"NaN"_s), u"'NaN'"_s);
    EXPECT_EQ(literal(postgres, FieldClass::Number, u"-Infinity"_s), u"'-Infinity'"_s);
    EXPECT_EQ(literal(postgres, FieldClass::Number, u"NaN 1"_s), u"none"_s);
    EXPECT_EQ(literal(Engine::SQLite, FieldClass::Number, u"NaN"_s), u"none"_s);
    const Engine mySql = Engine::MySQL;
    EXPECT_EQ(literal(mySql, FieldClass::Time, u"-100:00:00"_s), u"'-100:00:00'"_s);
    EXPECT_EQ(literal(mySql, FieldClass::Time, u"838:59:59.5"_s), u"'838:59:59.5'"_s);
    EXPECT_EQ(literal(mySql, FieldClass::Time, u"-0:75:00"_s), u"none"_s);
    EXPECT_EQ(literal(postgres, FieldClass::Time, u"25:00"_s), u"none"_s);
}

TEST(FilterValue, DaysAreReadInTheUsualForms)
{
    for (const QString &typed : {u"2024-01-05"_s, u"2024-1-5"_s, u"2024/1/5"_s, u"2024.01.05"_s,
                                 u"20240105"_s, u"2024年1月5日"_s, u"２０２４－０１－０５"_s})
        EXPECT_EQ(literal(FieldClass::Date, typed), "'2024-01-05'") << qUtf8Printable(typed);
    for (const QString &typed :
         {u"2024-13-01"_s, u"2023-02-29"_s, u"5.1.2024"_s, u"2024-01-05 08:00"_s, u"tomorrow"_s})
        EXPECT_EQ(literal(FieldClass::Date, typed), "-") << qUtf8Printable(typed);
}

TEST(FilterValue, TimesAndMomentsAreRead)
{
    EXPECT_EQ(literal(FieldClass::Time, u"8:30"_s), "'08:30:00'");
    EXPECT_EQ(literal(FieldClass::Time, u"08：30：05"_s), "'08:30:05'");
    EXPECT_EQ(literal(FieldClass::Time, u"25:00"_s), "-");
    EXPECT_EQ(literal(FieldClass::Moment, u"2024-01-05 8:30"_s), "'2024-01-05 08:30:00'");
    EXPECT_EQ(literal(FieldClass::Moment, u"2024-01-05T08:30:01.5"_s), "'2024-01-05 08:30:01.500'");
    EXPECT_EQ(literal(FieldClass::Moment, u"8:30"_s), "-");
}

TEST(FilterValue, ADayInAMomentFieldKnowsWhereItEnds)
{
    const auto value = readFilterValue(sqliteDialect, FieldClass::Moment, u"2023-12-31"_s, {});
    ASSERT_TRUE(value);
    EXPECT_EQ(value->nextDay, u"'2024-01-01'"_s);
}

TEST(FilterValue, TextIsTakenAsTyped)
{
    EXPECT_EQ(literal(FieldClass::Text, u" a'b "_s), "' a''b '");
    EXPECT_EQ(literal(FieldClass::Text, u"１２"_s), "'１２'");
}

TEST(FilterValue, YesAndNoAreReadInSeveralWords)
{
    for (const QString &typed : {u"是"_s, u"True"_s, u"1"_s, u"-1"_s, u"１"_s})
        EXPECT_TRUE(readFilterValue(sqliteDialect, FieldClass::Boolean, typed, {})->isTrue)
            << qUtf8Printable(typed);
    for (const QString &typed : {u"否"_s, u"FALSE"_s, u"0"_s})
        EXPECT_FALSE(readFilterValue(sqliteDialect, FieldClass::Boolean, typed, {})->isTrue)
            << qUtf8Printable(typed);
    EXPECT_EQ(literal(FieldClass::Boolean, u"maybe"_s), "-");
}

TEST(FilterValue, WhatIsMissingOrWrongIsReportedInOneLine)
{
    EXPECT_EQ(whyNoFilterValue(FieldClass::Number, u" "_s), u"请输入值。"_s);
    EXPECT_EQ(whyNoFilterValue(FieldClass::Number, u"abc"_s), u"“abc”不是数字。"_s);
    EXPECT_TRUE(whyNoFilterValue(FieldClass::Date, u"x"_s).contains(u"2024-01-31"_s));
}

TEST(FilterValue, ListsAreSplitAtNarrowAndWideCommas)
{
    EXPECT_EQ(splitFilterList(u" a, b，c ,,"_s), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(splitFilterList(u"\"a,b\", \"say \"\"hi\"\"\",c"_s),
              (QStringList{u"a,b"_s, u"say \"hi\""_s, u"c"_s}));
    EXPECT_TRUE(splitFilterList(u" ， "_s).isEmpty());
}

TEST(FilterValue, ListsPastedFromAChineseTextOrASpreadsheetAreSplit)
{
    const QStringList three{u"甲"_s, u"乙 丙"_s, u"丁"_s};
    for (const QString &typed : {u"甲、乙 丙、丁"_s, u"甲；乙 丙；丁"_s, u"甲;乙 丙 ; 丁"_s,
                                 u"甲，乙 丙，丁"_s, u"甲\n乙 丙\n丁\n"_s, u"甲\r\n乙 丙\r\n\r\n丁\r\n"_s,
                                 u"甲\t乙 丙\t丁"_s, u" 甲\u2028乙 丙 \u2029丁 "_s})
        EXPECT_EQ(splitFilterList(typed), three) << qUtf8Printable(typed);
    EXPECT_EQ(splitFilterList(u"\"甲、乙\"、\"两\n行\""_s), (QStringList{u"甲、乙"_s, u"两\n行"_s}));
}

TEST(FilterValue, AMonthOrAWordForDaysIsWhereItsDaysBeginAndEnd)
{
    const QDate leapDay(2024, 2, 29);
    const auto month = readFilterValue(sqliteDialect, FieldClass::Date, u"２月"_s, leapDay);
    ASSERT_TRUE(month);
    EXPECT_EQ(month->literal, u"'2024-02-01'"_s);
    EXPECT_EQ(month->nextDay, u"'2024-03-01'"_s);
    const auto today = readFilterValue(sqliteDialect, FieldClass::Date, u"今天"_s, leapDay);
    ASSERT_TRUE(today);
    EXPECT_EQ(today->literal, u"'2024-02-29'"_s);
    EXPECT_EQ(today->nextDay, QString()) << "a day is compared as it is";
    const auto moments = readFilterValue(sqliteDialect, FieldClass::Moment, u"最近 2 天"_s, leapDay);
    ASSERT_TRUE(moments);
    EXPECT_EQ(moments->literal, u"'2024-02-28'"_s);
    EXPECT_EQ(moments->nextDay, u"'2024-03-01'"_s);
    EXPECT_EQ(literal(FieldClass::Moment, u"今天 08:00"_s), "-");
    EXPECT_FALSE(dayOf(u"本月"_s).isValid());
    EXPECT_EQ(dayOf(u"2024-01-31 08:00"_s), QDate(2024, 1, 31));
}

TEST(FilterValue, AFieldTakesTheSameTextsInItsOwnForm)
{
    const QDate leapDay(2024, 2, 29);
    const auto plain = [&](FieldClass fieldClass, const QString &typed) {
        return plainValue(fieldClass, typed, leapDay).value_or(u"-"_s).toStdString();
    };
    EXPECT_EQ(plain(FieldClass::Number, u"－１２．５０"_s), "-12.50");
    EXPECT_EQ(plain(FieldClass::Number, u"十二"_s), "-");
    EXPECT_EQ(plain(FieldClass::Boolean, u"是"_s), "True");
    EXPECT_EQ(plain(FieldClass::Boolean, u"No"_s), "False");
    for (const QString &typed : {u"2024年3月1日"_s, u"２０２４/３/１"_s, u"20240301"_s, u"2024.3.1"_s}) {
        EXPECT_EQ(plain(FieldClass::Date, typed), "2024-03-01") << qUtf8Printable(typed);
        EXPECT_EQ(plain(FieldClass::Moment, typed), "2024-03-01") << qUtf8Printable(typed);
    }
    EXPECT_EQ(plain(FieldClass::Date, u"昨天"_s), "2024-02-28");
    for (const QString &typed : {u"本月"_s, u"2024年3月"_s, u"2024"_s, u"最近 2 天"_s, u"2024年2月30日"_s})
        EXPECT_EQ(plain(FieldClass::Date, typed), "-") << qUtf8Printable(typed);
    EXPECT_EQ(plain(FieldClass::Moment, u"2024年3月1日 ８：３０"_s), "2024-03-01 08:30:00");
    EXPECT_EQ(plain(FieldClass::Moment, u"2024-3-1T8:30:01.123456"_s), "2024-03-01 08:30:01.123456");
    EXPECT_EQ(plain(FieldClass::Moment, u"2024-3-1 8:30Z"_s), "2024-03-01 08:30:00+00");
    EXPECT_EQ(plain(FieldClass::Time, u"８：３０"_s), "08:30:00");
    EXPECT_EQ(plain(FieldClass::Text, u" １２ "_s), " １２ ");
}

TEST(FilterValue, CountsAreWholeNumbersFromOne)
{
    EXPECT_EQ(readFilterCount(u" １０ "_s), 10);
    for (const QString &typed : {u""_s, u"0"_s, u"-1"_s, u"2.5"_s, u"x"_s, u"99999999999"_s})
        EXPECT_FALSE(readFilterCount(typed)) << qUtf8Printable(typed);
}

TEST(FilterValue, AnyValueSurvivesTheWayIntoAListAndBack)
{
    for (const QString &value : {u"plain"_s, u"a,b"_s, u"甲，乙"_s, u" edge "_s, u"\"quoted\""_s, u"it's"_s,
                                 u"a\"b"_s, u"a、b"_s, u"a；b"_s, u"a;b"_s, u"a\nb"_s, u"a\tb"_s}) {
        EXPECT_EQ(splitFilterList(u"x, "_s + filterListItem(value) + u", y"_s),
                  (QStringList{u"x"_s, value, u"y"_s}))
            << qUtf8Printable(value);
    }
}
