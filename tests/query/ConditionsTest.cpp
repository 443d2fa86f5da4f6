#include "query/conditions/Conditions.h"

#include "CaseFile.h"
#include "query/QueryTexts.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

const QString kFromT = QStringLiteral("SELECT * FROM T");

// The condition, or "-" if the command ends.
QString like(AllDBType database, const QString &text, const std::vector<TypedField> &fields,
             const QString &statement = kFromT)
{
    QString condition = u"untouched"_s;
    if (BuildLikeCondition(text, fields, statement, database, condition))
        return condition;
    EXPECT_EQ(condition, u"untouched"_s);
    return u"-"_s;
}

const std::vector<TypedField> kTwo{{QStringLiteral("A"), 202}, {QStringLiteral("B"), 3}};

} // namespace

TEST(QuickFilter, SearchesEachWordInEveryFieldOnAccess)
{
    EXPECT_EQ(
        like(dbAccess, u"ab%cd"_s, kTwo),
        u" (T.[A] LIKE '%ab%' OR T.[B] LIKE '%ab%' ) And  (T.[A] LIKE '%cd%' OR T.[B] LIKE '%cd%' ) "_s);
}

TEST(QuickFilter, WritesBareNamesOnServers)
{
    const QString expected = u" (A LIKE '%ab%' OR B LIKE '%ab%' ) And  (A LIKE '%cd%' OR B LIKE '%cd%' ) "_s;
    EXPECT_EQ(like(dbSQLServer, u"ab%cd"_s, kTwo), expected);
    EXPECT_EQ(like(dbOracle, u"ab%cd"_s, kTwo), expected);
}

TEST(QuickFilter, QuotesNamesThatNeedItOnServers)
{
    EXPECT_EQ(like(dbSQLServer, u"x"_s, {{u"A B"_s, {}}}), u" ([A B] LIKE '%x%' ) "_s);
    EXPECT_EQ(like(dbOracle, u"x"_s, {{u"A B"_s, {}}}), u" (\"A B\" LIKE '%x%' ) "_s);
}

TEST(QuickFilter, WritesForAccessWhatTheEngineReads)
{
    const std::vector<TypedField> fields{{u"A B"_s, 202}, {u"name"_s, 202}, {u"a]b"_s, 202}};
    const auto written = [&](Engine engine) {
        QString condition;
        EXPECT_TRUE(BuildLikeCondition(u"x"_s, fields, kFromT, dbAccess, condition, engine));
        return condition;
    };
    EXPECT_EQ(written(Engine::Access),
              u" (T.[A B] LIKE '%x%' OR T.[name] LIKE '%x%' OR T.[a]]b] LIKE '%x%' ) "_s);
    EXPECT_EQ(written(Engine::SQLite),
              u" (T.[A B] LIKE '%x%' OR T.[name] LIKE '%x%' OR T.\"a]b\" LIKE '%x%' ) "_s);
    EXPECT_EQ(written(Engine::PostgreSQL),
              u" (CAST(\"A B\" AS TEXT) LIKE '%x%' OR CAST(name AS TEXT) LIKE '%x%' OR "
              "CAST(\"a]b\" AS TEXT) LIKE '%x%' ) "_s);
    EXPECT_EQ(written(Engine::MySQL), u" (`A B` LIKE '%x%' OR name LIKE '%x%' OR `a]b` LIKE '%x%' ) "_s);
}

TEST(QuickFilter, FindsWholeValuesThatTheEngineWritesOtherwise)
{
    const std::vector<TypedField> fields{{u"A"_s, 202}, {u"D"_s, 5}, {u"B"_s, 11}};
    const auto written = [&](const QString &word, const EngineMode &engine) {
        QString condition;
        EXPECT_TRUE(BuildLikeCondition(word, fields, kFromT, dbSQLServer, condition, engine));
        return condition;
    };
    const QString likes = u" (A LIKE '%%1%' OR D LIKE '%%1%' OR B LIKE '%%1%' "_s;
    EXPECT_EQ(written(u"1E+19"_s, Engine::SQLite),
              likes.arg(u"1E+19"_s) + u"OR D BETWEEN 9.999999999999951e+18 AND 1.000000000000005e+19 ) "_s);
    EXPECT_EQ(written(u"true"_s, Engine::SQLite), likes.arg(u"true"_s) + u"OR B <> 0 ) "_s);
    EXPECT_EQ(written(u"False"_s, Engine::SQLite), likes.arg(u"False"_s) + u"OR B = 0 ) "_s);
    for (const QString &word : {u"19"_s, u"E+19"_s, u"1E"_s, u"tru"_s, u"0E1"_s})
        EXPECT_EQ(written(word, Engine::SQLite), likes.arg(word) + u") "_s);
    EXPECT_EQ(written(u"1E+19"_s, Engine::Other), likes.arg(u"1E+19"_s) + u") "_s);
    EXPECT_EQ(written(u"True"_s, Engine::Other), likes.arg(u"True"_s) + u") "_s);
}

TEST(QuickFilter, LeavesOutFieldsThatCannotBeSearchedOnAccess)
{
    EXPECT_EQ(like(dbAccess, u"x"_s, {{u"A"_s, 11}, {u"B"_s, 3}}), u" (T.[B] LIKE '%x%' ) "_s);
    EXPECT_EQ(like(dbSQLServer, u"x"_s, {{u"A"_s, 11}}), u" (A LIKE '%x%' ) "_s);
}

TEST(QuickFilter, EndsWhenThereIsNothingToSearchIn)
{
    EXPECT_EQ(like(dbAccess, u"x"_s, {}), u"-"_s);
    EXPECT_EQ(like(dbAccess, u"x"_s, {{u"A"_s, 11}}), u"-"_s);
    EXPECT_EQ(like(AllDBType{}, u"x"_s, kTwo), u"-"_s);
    EXPECT_EQ(like(dbAccess, u"x"_s, {{u"A"_s, {}}, {u"B"_s, 3}}), u"-"_s) << "a type that nobody knows";
    EXPECT_EQ(like(dbAccess, u"x"_s, kTwo, u"SELECT 'WHERE ' FROM T"_s), u"-"_s);
}

TEST(QuickFilter, EmptyTextIsAnEmptyCondition)
{
    EXPECT_EQ(like(dbAccess, {}, kTwo), QString());
    EXPECT_EQ(like(dbAccess, {}, {}), QString());
}

TEST(QuickFilter, EmptyWordsMatchEveryValueAndATrailingSeparatorAddsNone)
{
    EXPECT_EQ(like(dbSQLServer, u"%a%"_s, {{u"A"_s, 3}}), u" (A LIKE '%%' ) And  (A LIKE '%a%' ) "_s);
    EXPECT_EQ(like(dbSQLServer, u"a%%b"_s, {{u"A"_s, 3}}),
              u" (A LIKE '%a%' ) And  (A LIKE '%%' ) And  (A LIKE '%b%' ) "_s);
}

TEST(QuickFilter, DoublesApostrophes)
{
    EXPECT_EQ(like(dbSQLServer, u"O'Neil"_s, {{u"A"_s, 202}}), u" (A LIKE '%O''Neil%' ) "_s);
}

TEST(QuickFilter, CanSearchOneField)
{
    QString condition;
    EXPECT_TRUE(BuildLikeAllCondition(u"a%b"_s, {u"F"_s, 202}, kFromT, dbAccess, condition));
    EXPECT_EQ(condition, u" (T.[F] LIKE '%a%' ) And  (T.[F] LIKE '%b%' ) "_s);
    EXPECT_FALSE(BuildLikeAllCondition(u"a"_s, {u"F"_s, 205}, kFromT, dbAccess, condition));
}

TEST(QuickFilter, FindsTheTableAndWritesItBeforeTheField)
{
    for (const Case &c : ReadCases(u"qualifiers.cases"_s)) {
        SCOPED_TRACE(c.place.toStdString());
        const auto table = GetTableOfSQL(c[u"statement"_s]);
        EXPECT_EQ(table.has_value(), c.Has(u"table"_s));
        EXPECT_EQ(table.value_or(QString()), c[u"table"_s]);
        const QString condition = c.Has(u"field"_s) ? u" ("_s + c[u"field"_s] + u" LIKE '%x%' ) "_s : u"-"_s;
        EXPECT_EQ(like(dbAccess, u"x"_s, {{u"F"_s, 202}}, c[u"statement"_s]), condition);
    }
}

TEST(SplitText, GivesThePiecesBeforeEachSeparator)
{
    EXPECT_EQ(splitText(u"%a%%b"_s, u"%"_s), (QStringList{QString(), u"a"_s, QString(), u"b"_s}));
    EXPECT_EQ(splitText(u"a%"_s, u"%"_s), QStringList{u"a"_s});
    EXPECT_EQ(splitText(u"a%b"_s, u"%"_s, true), (QStringList{u"a%"_s, u"b"_s}));
    EXPECT_EQ(splitText(u"a"_s, {}), QStringList{u"a"_s});
    EXPECT_TRUE(splitText({}, u"%"_s).isEmpty());
}

TEST(FieldTypes, AreNumbersTextsDatesOrOther)
{
    for (const qint32 number : {2, 3, 4, 5, 14, 16, 17, 18, 19, 20, 21, 72, 131, 139})
        EXPECT_EQ(classifyFieldType(number), u"1"_s) << number;
    for (const qint32 text : {8, 129, 130, 200, 201, 202, 203})
        EXPECT_EQ(classifyFieldType(text), u"2"_s) << text;
    for (const qint32 date : {7, 64, 133, 134, 135})
        EXPECT_EQ(classifyFieldType(date), u"3"_s) << date;
    for (const qint32 other : {-1, 0, 1, 6, 11, 128, 132, 136, 204, 205, 9999})
        EXPECT_EQ(classifyFieldType(other), u"0"_s) << other;
}

TEST(CellFilterText, NumbersAreComparedBare)
{
    for (const qint32 type : {2, 3, 4, 5, 14, 16, 18, 20, 21, 72, 131, 139})
        EXPECT_EQ(buildCellFilter(u"Qty"_s, type, u"12"_s).condition, u"Qty like 12"_s) << type;
}

TEST(CellFilterText, BlanksUpToTheFieldsLengthAreLeftOutWhereTheCastDropsThem)
{
    constexpr int fixed = 130;
    constexpr int varying = 202;
    EXPECT_EQ(buildCellFilter(u"C"_s, fixed, u"a b  "_s, Engine::PostgreSQL).condition,
              u"CAST(C AS TEXT) like 'a b'"_s);
    EXPECT_EQ(buildCellFilter(u"C"_s, varying, u"a b  "_s, Engine::PostgreSQL).condition,
              u"CAST(C AS TEXT) like 'a b  '"_s);
    EXPECT_EQ(buildCellFilter(u"C"_s, fixed, u"a b  "_s, Engine::SQLite).condition, u"C like 'a b  '"_s);
}

// PostgreSQL casts an inet to a text with its mask, which is not shown.
TEST(CellFilterText, AnAddressIsComparedAsItIsShown)
{
    const auto condition = [](const QString &text, Engine engine) {
        return buildCellFilter(u"A"_s, 202, text, engine).condition;
    };
    for (const QString &address : {u"10.0.0.1"_s, u"fe80::1"_s, u"::ffff:10.0.0.1"_s, u"08:00:2b:01:02:03"_s})
        EXPECT_EQ(condition(address, Engine::PostgreSQL), u"concat(A) like '%1'"_s.arg(address));
    for (const QString &text : {u"10.0.1"_s, u"8:30"_s, u"v1.2.3.4"_s, QString()})
        EXPECT_EQ(condition(text, Engine::PostgreSQL), u"CAST(A AS TEXT) like '%1'"_s.arg(text));
    EXPECT_EQ(condition(u"10.0.0.1"_s, Engine::MySQL), u"A like '10.0.0.1'"_s);
}

TEST(CellFilterText, MoneyIsComparedAsANumber)
{
    constexpr int money = 6;
    EXPECT_EQ(buildCellFilter(u"M"_s, money, u"12.5"_s, Engine::PostgreSQL).condition,
              u"CAST(M AS NUMERIC) = 12.5"_s);
    EXPECT_EQ(buildCellFilter(u"M"_s, money, u"12.5"_s, Engine::Access).condition, u"M = 12.5"_s);
    const TypedField field{u"m"_s, money};
    QString condition;
    EXPECT_TRUE(BuildLikeAllCondition(u"1234"_s, field, u"SELECT m FROM T"_s, dbOracle, condition,
                                      Engine::PostgreSQL));
    EXPECT_EQ(condition, u" (CAST(CAST(CAST(m AS NUMERIC) AS DOUBLE PRECISION) AS TEXT) LIKE '%1234%' ) "_s);
}

TEST(CellFilterText, TextsAreComparedInQuotesAndLetterForLetter)
{
    for (const qint32 type : {129, 130, 200, 202})
        EXPECT_EQ(buildCellFilter(u"T.[A]"_s, type, u"a%b"_s).condition, u"T.[A] like 'a%b'"_s) << type;
}

TEST(CellFilterText, ApostropheIsRefused)
{
    const CellFilter filter = buildCellFilter(u"A"_s, 202, u"O'Neil"_s);
    EXPECT_EQ(filter.condition, QString());
    EXPECT_EQ(filter.message, u"对不起，过滤内容中不能含有\"  ' \"符号!"_s);
}

TEST(CellFilterText, OtherTypesAreRefused)
{
    for (const qint32 type : {7, 8, 11, 17, 19, 201, 203, 205}) {
        const CellFilter filter = buildCellFilter(u"A"_s, type, u"12"_s);
        EXPECT_EQ(filter.condition, QString());
        EXPECT_EQ(filter.message, u"对不起，过滤操作不支持选中内容的数据类型！"_s) << type;
    }
}

TEST(CellFilterText, NullIsAskedForByName)
{
    EXPECT_EQ(buildCellFilter(u"A"_s, 202, std::nullopt).condition, u"A IS NULL"_s);
    EXPECT_EQ(buildCellFilter(u"A"_s, 3, std::nullopt).condition, u"A IS NULL"_s);
    EXPECT_EQ(buildCellFilter(u"A"_s, 7, std::nullopt).message, QueryTexts::TypeNotFiltered);
}

TEST(CellFilterText, NothingComesOfAnUnknownField)
{
    for (const CellFilter &filter : {buildCellFilter({}, 3, u"1"_s), buildCellFilter(u"A"_s, {}, u"1"_s)})
        EXPECT_EQ(filter.condition + filter.message, QString());
}
