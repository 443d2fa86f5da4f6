// Splitting conditions and putting them into words.
#include "query/conditions/ConditionParts.h"
#include "sql/Engine.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

struct PartsCase
{
    const char *name;
    QString condition;
    QStringList words;       // of each part
    QStringList fields = {}; // of the first part
};

void PrintTo(const PartsCase &test, std::ostream *out)
{
    *out << test.name;
}

struct ConditionWords : testing::TestWithParam<PartsCase>
{
};

const PartsCase cases[] = {
    {"Number", u"ID > 3"_s, {u"ID > 3"_s}, {u"ID"_s}},
    {"Two", u"ID >= 3 AND 城市 = '大连'"_s, {u"ID ≥ 3"_s, u"城市 = “大连”"_s}, {u"ID"_s}},
    {"OnlyNumbers", u"(ID >= 3 AND ID < '') AND (价格 > 5 AND 价格 < '')"_s, {u"ID ≥ 3"_s, u"价格 > 5"_s}},
    {"Brackets", u"((ID <> 3) AND (价格 <= 5))"_s, {u"ID ≠ 3"_s, u"价格 ≤ 5"_s}, {u"ID"_s}},
    {"Or", u"(ID = 1 OR ID = 2) AND 停用 <> 0"_s, {u"ID = 1，或者 ID = 2"_s, u"停用 ≠ 0"_s}, {u"ID"_s}},
    {"OrAbove",
     u"ID = 1 OR ID = 2 AND 停用 <> 0"_s,
     {u"ID = 1，或者 ID = 2，并且 停用 ≠ 0"_s},
     {u"ID"_s, u"停用"_s}},
    {"Contains", u"名称 LIKE '%茶%'"_s, {u"名称 包含“茶”"_s}},
    {"Begins", u"名称 like '绿%'"_s, {u"名称 开头是“绿”"_s}},
    {"Ends", u"名称 LIKE '%茶'"_s, {u"名称 结尾是“茶”"_s}},
    {"Equals", u"名称 like '绿茶'"_s, {u"名称 = “绿茶”"_s}},
    {"OnlyPercent", u"名称 like '%'"_s, {u"名称 结尾是“”"_s}},
    {"Escaped", u"名称 LIKE '%50!%%' ESCAPE '!'"_s, {u"名称 包含“50%”"_s}},
    {"LikeNumber", u"ID like 7"_s, {u"ID = 7"_s}},
    {"Repeated",
     u"城市 IN (SELECT 城市\nFROM 商品\nWHERE 城市 IS NOT NULL GROUP BY 城市 HAVING COUNT(*) > 1)"_s,
     {u"城市 的值有重复"_s}},
    {"Largest",
     u"价格 IN (SELECT KovaValue\nFROM (SELECT 价格 AS KovaValue\nFROM 商品\nORDER BY 价格 DESC LIMIT 3) KovaFirst)"_s,
     {u"价格 是最大的 3 个之一"_s}},
    {"FirstTexts",
     u"名称 IN (SELECT KovaValue\nFROM (SELECT 名称 AS KovaValue\nFROM 商品\nWHERE 名称 <> ''\nORDER BY 名称 "
     u"LIMIT "
     "3) KovaFirstTexts)"_s,
     {u"名称 是按顺序排在最前的 3 个之一"_s}},
    {"LastTexts",
     u"名称 IN (SELECT KovaValue\nFROM (SELECT 名称 AS KovaValue\nFROM 商品\nWHERE 名称 <> ''\nORDER BY 名称 "
     u"DESC "
     "LIMIT 3) KovaFirstTexts)"_s,
     {u"名称 是按顺序排在最后的 3 个之一"_s}},
    {"Cast", u"CAST(名称 AS TEXT) LIKE '%茶%'"_s, {u"名称 包含“茶”"_s}, {u"名称"_s}},
    {"Function", u"ABS(价格) > 5"_s, {u"ABS(价格) > 5"_s}, {u"价格"_s}},
    {"Sum", u"价格 * 2 > 5"_s, {u"价格 * 2 > 5"_s}, {u"价格"_s}},
    {"Day", u"date(日期) >= '2024-01-31'"_s, {u"日期 ≥ “2024-01-31”"_s}, {u"日期"_s}},
    {"Moment",
     u"COALESCE(CASE WHEN length(rtrim(t, '0')) < 24 THEN REPLACE(strftime('%Y-%m-%d %H:%M:%f', t), "
     "'.000', '') END, t) = '2024'"_s,
     {u"t = “2024”"_s},
     {u"t"_s}},
    {"DoubleAsText",
     u"(COALESCE(CASE WHEN abs(价格) BETWEEN 0.0001 AND 1e15 THEN CAST(CAST(价格 AS NUMERIC) AS TEXT) END, "
     "CAST(价格 AS TEXT)) LIKE '%1.5%' OR CAST(名称 AS TEXT) LIKE '%1.5%' )"_s,
     {u"价格 包含“1.5”，或者 名称 包含“1.5”"_s},
     {u"价格"_s, u"名称"_s}},
    {"Quoted", u"商品.[Unit Price] > 12.5"_s, {u"Unit Price > 12.5"_s}, {u"Unit Price"_s}},
    {"Apostrophe", u"名称 = 'O''Neil 红茶'"_s, {u"名称 = “O'Neil 红茶”"_s}},
    {"Null", u"日期 IS NULL AND 城市 is not null"_s, {u"日期 为空"_s, u"城市 不为空"_s}},
    {"List", u"城市 IN ('大连', '北京')"_s, {u"城市 是 '大连', '北京' 之一"_s}},
    {"NotIn", u"城市 NOT IN ('大连')"_s, {u"城市 NOT IN ('大连')"_s}},
    {"Between", u"ID BETWEEN 1 AND 5 AND 停用 = 0"_s, {u"ID BETWEEN 1 AND 5"_s, u"停用 = 0"_s}},
    {"Range",
     u"(价格 >= 5 AND 价格 <= 9.5) AND ID = 1"_s,
     {u"价格 介于 5 和 9.5"_s, u"ID = 1"_s},
     {u"价格"_s}},
    {"OpenRange", u"(价格 > 5 AND 价格 < 9)"_s, {u"价格 > 5，并且 价格 < 9"_s}},
    {"NoRange", u"(价格 > 5 AND 单价 < 9)"_s, {u"价格 > 5"_s, u"单价 < 9"_s}},
    {"TwoConditions", u"价格 > 5 AND 价格 < 9"_s, {u"价格 > 5"_s, u"价格 < 9"_s}},
    {"Month",
     u"(date(日期) >= '2024-02-01' AND date(日期) < '2024-03-01')"_s,
     {u"日期 = 2024-02"_s},
     {u"日期"_s}},
    {"DayOfMoments", u"(t >= {d '2024-02-29'} AND t < {d '2024-03-01'})"_s, {u"t = 2024-02-29"_s}},
    {"Years",
     u"NOT ((t >= '2024-01-01' AND t < '2025-01-01') OR (t >= '2020-01-01' AND t < '2021-01-01'))"_s,
     {u"不满足（t = 2024年，或者 t = 2020年）"_s}},
    {"ShownAlike",
     u"价 BETWEEN 9.99999999999995 AND 10.00000000000005 AND ID = 1"_s,
     {u"价 = 10"_s, u"ID = 1"_s}},
    {"NotShownAlike", u"价 NOT BETWEEN -0.1000005 AND -0.0999995"_s, {u"价 ≠ -0.1"_s}},
    {"Case",
     u"CASE WHEN ID = 1 AND ID = 2 THEN 1 ELSE 0 END = 1"_s,
     {u"CASE WHEN ID = 1 AND ID = 2 THEN 1 ELSE 0 END = 1"_s}},
    {"Not", u"NOT (ID = 1)"_s, {u"不满足 ID = 1"_s}},
    {"NotAll",
     u"NOT (ID < 100 AND 数量 = 3) OR 停用 = 1"_s,
     {u"不满足（ID < 100，并且 数量 = 3），或者 停用 = 1"_s}},
    {"NotOpenRange", u"NOT (价格 > 5 AND 价格 < 9)"_s, {u"不满足（价格 > 5，并且 价格 < 9）"_s}},
    {"Blanks",
     u"名称 = 'a  b' AND 城市  IN\n('a  b',  'c')\nAND upper(名称)  || 'x  y' > 城市"_s,
     {u"名称 = “a  b”"_s, u"城市 是 'a  b', 'c' 之一"_s, u"upper(名称) || 'x  y' > 城市"_s}},
    {"Everywhere",
     u"([A].[a] LIKE '%茶%' OR [A].[b] LIKE '%茶%' OR [A].[c] LIKE '%茶%')"_s,
     {u"3 个字段之一 包含“茶”"_s},
     {u"a"_s, u"b"_s, u"c"_s}},
    {"AndInText", u"名称 = 'A AND B' AND ID = 1"_s, {u"名称 = “A AND B”"_s, u"ID = 1"_s}},
    {"Exists",
     u"EXISTS (SELECT 1 FROM B WHERE B.x = 1 AND B.y = 2)"_s,
     {u"EXISTS (SELECT 1 FROM B WHERE B.x = 1 AND B.y = 2)"_s}},
};

} // namespace

TEST_P(ConditionWords, SayWhatEachPartAsksFor)
{
    const SqlScanner statement(u"SELECT * FROM T WHERE "_s + GetParam().condition, SqlDialect::Standard,
                               {.brackets = true});
    const TextRange where = SelectParts::of(statement).where;
    ASSERT_FALSE(where.isEmpty());
    QStringList words;
    QStringList fields;
    for (const TextRange &part : conditionParts(statement, {where.begin + 1, where.end})) {
        if (words.isEmpty())
            fields = fieldsOfCondition(statement, part);
        words.append(conditionInWords(statement, part));
    }
    EXPECT_EQ(words, GetParam().words) << words.join(u" | "_s).toStdString();
    if (!GetParam().fields.isEmpty()) {
        EXPECT_EQ(fields, GetParam().fields) << fields.join(u" | "_s).toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(All, ConditionWords, testing::ValuesIn(cases),
                         [](const auto &test) { return std::string(test.param.name); });

// What the user types by himself may end anywhere.
TEST(ConditionParts, StayWithinABrokenCondition)
{
    const QString whole =
        u"((名称 LIKE '%茶%' ESCAPE '!' AND ID >= 3 OR (城市 IN ('大连')) AND NOT x IS NOT NULL"_s;
    for (qsizetype length = 1; length <= whole.size(); ++length) {
        const SqlScanner statement(u"SELECT * FROM T WHERE "_s + whole.first(length), SqlDialect::Standard,
                                   {.brackets = true});
        const TextRange where = SelectParts::of(statement).where;
        if (where.end - where.begin < 2)
            continue;
        const TextRange condition{where.begin + 1, where.end};
        for (const TextRange &part : conditionParts(statement, condition)) {
            EXPECT_GE(part.begin, condition.begin);
            EXPECT_LE(part.end, condition.end);
            conditionInWords(statement, part);
        }
    }
}

TEST(TextsSought, AreWhatLikeFindsAnywhere)
{
    struct Sought
    {
        QString condition;
        QStringList texts;
    };
    for (const auto &[condition, texts] : {
             Sought{u"名称 LIKE '%茶%'"_s, {u"茶"_s}},
             Sought{u"(名称 LIKE '%茶%' OR 城市 LIKE '%茶%')"_s, {u"茶"_s}},
             Sought{u"名称 LIKE '%red%tea%' OR A = 1"_s, {u"red"_s, u"tea"_s}},
             Sought{u"CAST(A AS TEXT) LIKE '%O''Neil%'"_s, {u"O'Neil"_s}},
             Sought{u"A LIKE '%5!%!!%' ESCAPE '!'"_s, {u"5%!"_s}},
             Sought{u"A LIKE '%a_b%'"_s, {u"a"_s, u"b"_s}},
             Sought{u"A NOT LIKE '%tea%'"_s, {}},
             Sought{u"A LIKE 'tea%'"_s, {}},
             Sought{u"A LIKE B"_s, {}},
             Sought{u"A LIKE"_s, {}},
             Sought{u"A LIKE '%%'"_s, {}},
         }) {
        const SqlScanner scanned(condition);
        EXPECT_EQ(textsSought(scanned, {0, scanned.count()}), texts) << qPrintable(condition);
    }
}

TEST(ComparableText, FoldsBlanksOutsideOfTextsOnly)
{
    const Dialect dialect{dbAccess, false, false, Engine::SQLite};
    const auto comparable = [&](const QString &condition) { return comparableText(condition, dialect); };
    EXPECT_EQ(comparable(u"a = 'x  y'"_s), comparable(u"a  = /* z */\n'x  y'"_s));
    EXPECT_NE(comparable(u"a = 'x  y'"_s), comparable(u"a = 'x y'"_s));
    EXPECT_NE(comparable(u"[a  b] = 1"_s), comparable(u"[a b] = 1"_s));
}

TEST(ClosedBrackets, AreThoseWithACounterpartOnTheRightSide)
{
    const Dialect dialect{dbAccess, false, false, Engine::SQLite};
    for (const QString &condition : {u"a = 1"_s, u"(a = 1) OR (b = ')')"_s, u"f(a) = 1"_s, u"a = 1 -- )"_s})
        EXPECT_TRUE(hasClosedBrackets(condition, dialect)) << condition.toStdString();
    for (const QString &condition : {u"a = 1) OR (1 = 1"_s, u"(a = 1"_s, u"a = 1)"_s})
        EXPECT_FALSE(hasClosedBrackets(condition, dialect)) << condition.toStdString();
}
