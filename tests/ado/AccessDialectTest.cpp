#include "Printing.h"

#include "ado/providers/access/sql/AccessDateLiteral.h"
#include "ado/providers/access/sql/AccessDialect.h"

#include <gtest/gtest.h>

using namespace ADODB;
using namespace Qt::Literals::StringLiterals;

namespace {

QString sqlite(const QString &access)
{
    return AccessDialect::toSqlite(access);
}

} // namespace

TEST(AccessDialectTest, PlainStatementsStayAsTheyAre)
{
    for (const QString &sql :
         {u"SELECT * FROM [Order Details] WHERE [a#b] LIKE '%#%&True%' ORDER BY 1 -- & #1/1/20#"_s,
          u"SELECT a != b, T.[True], T.True, Mod FROM T"_s, u"SELECT * FROM A LEFT JOIN B ON A.x = B.x"_s,
          u"SELECT TOP FROM T"_s, u"#"_s, u"SELECT -a, +1 x, 1e+5, 2 * -b FROM [a-b] WHERE c = -1"_s,
          u"&"_s.left(0)})
        EXPECT_EQ(sqlite(sql), sql);
}

TEST(AccessDialectTest, ConstantsAndOperatorsAreTranslated)
{
    EXPECT_EQ(sqlite(u"SELECT True, FALSE, yes, No FROM T!A"_s), u"SELECT -1, 0, -1, 0 FROM T.A"_s);
    EXPECT_EQ(sqlite(u"SELECT a AS No, yes as Yes FROM T"_s), u"SELECT a AS No, -1 as Yes FROM T"_s);
    EXPECT_EQ(sqlite(u"a MOD 2"_s), u"a % 2"_s);
    EXPECT_EQ(
        sqlite(u"SELECT Left(a,1), RIGHT (b,2), IsNull(c) FROM T"_s),
        u"SELECT \"Left\"(a,1) COLLATE ACCESS_TEXT, \"Right\" (b,2) COLLATE ACCESS_TEXT, \"IsNull\"(c) FROM T"_s);
}

TEST(AccessDialectTest, ConcatenationTakesWholeExpressions)
{
    EXPECT_EQ(sqlite(u"SELECT a & b + 1 & c AS d, e FROM T"_s),
              u"SELECT access_concat(a , access_add(b , 1) , c) COLLATE ACCESS_TEXT AS d, e FROM T"_s);
    EXPECT_EQ(
        sqlite(u"WHERE a & b = c & d AND f(a & (b & c)) LIKE '&'"_s),
        u"WHERE access_concat(a , b) COLLATE ACCESS_TEXT = access_concat(c , d) COLLATE ACCESS_TEXT"
        " AND f(access_concat(a , (access_concat(b , c) COLLATE ACCESS_TEXT)) COLLATE ACCESS_TEXT) LIKE '&'"_s);
}

TEST(AccessDialectTest, TopBecomesLimit)
{
    EXPECT_EQ(sqlite(u"SELECT TOP 5 a FROM T ORDER BY a;"_s), u"SELECT   a FROM T ORDER BY a LIMIT 5;"_s);
    EXPECT_EQ(
        sqlite(u"SELECT * FROM (SELECT TOP 2 a & b FROM T) AS S"_s),
        u"SELECT * FROM (SELECT   access_concat(a , b) COLLATE ACCESS_TEXT FROM T ORDER BY NULL LIMIT 2) AS S"_s)
        << "a sort outside leaves the same records";
    EXPECT_EQ(sqlite(u"SELECT * FROM (SELECT TOP 2 a FROM T ORDER BY b) AS S"_s),
              u"SELECT * FROM (SELECT   a FROM T ORDER BY b LIMIT 2) AS S"_s);
}

TEST(AccessDialectTest, TopPercentCountsTheRecords)
{
    EXPECT_EQ(sqlite(u"SELECT DISTINCT TOP 5 PERCENT a + 1 FROM T ORDER BY a"_s).simplified(),
              u"SELECT DISTINCT access_add(a , 1) FROM T ORDER BY a LIMIT (SELECT CAST((COUNT(*) * 5 + 99)"
              " / 100 AS INTEGER) FROM (SELECT DISTINCT access_add(a , 1) FROM T ORDER BY a))"_s);
}

TEST(AccessDialectTest, SumsAndQuotientsAreThoseOfAccess)
{
    EXPECT_EQ(sqlite(u"SELECT a+b-c*2 x, d FROM T WHERE a + b != c - -1"_s),
              u"SELECT access_subtract(access_add(a,b),c*2) x, d FROM T"
              " WHERE access_add(a , b) != access_subtract(c , -1)"_s);
    EXPECT_EQ(sqlite(u"d < #2020-01-31#-1 AND f(a - (b + c)) & d-1"_s),
              u"d < access_subtract('2020-01-31 00:00:00',1)"
              " AND access_concat(f(access_subtract(a , (access_add(b , c)))) , access_subtract(d,1))"
              " COLLATE ACCESS_TEXT"_s);
    EXPECT_EQ(sqlite(u"1 + CASE a & b WHEN c - 1 THEN -d ELSE e END & f x, 2 + NOT g"_s),
              u"access_concat(access_add(1 , CASE access_concat(a , b) COLLATE ACCESS_TEXT"
              " WHEN access_subtract(c , 1) THEN -d ELSE e END) , f) COLLATE ACCESS_TEXT x, 2 + NOT g"_s);
    EXPECT_EQ(sqlite(u"a/b/2, 7 Mod (3) - 1"_s), u"a*1.0/b*1.0/2, access_subtract(7 % (3) , 1)"_s);
}

TEST(AccessDialectTest, LikeIsWhoseItIs)
{
    EXPECT_EQ(sqlite(u"a LIKE 'x%' OR a Alike 'y%'"_s), u"a LIKE 'x%' OR a LIKE 'y%'"_s);
    EXPECT_EQ(AccessDialect::toSqlite(u"a NOT LIKE 'x*' OR a ALIKE 'y%' OR [like] = T.Like"_s,
                                      AccessDialect::Patterns::Access),
              u"a NOT GLOB 'x*' OR a LIKE 'y%' OR [like] = T.Like"_s);
}

TEST(AccessDialectTest, DatesAreReadMonthFirst)
{
    const std::pair<QString, QString> dates[] = {{u"1/31/2020"_s, u"2020-01-31 00:00:00"_s},
                                                 {u"31/1/2020"_s, u"2020-01-31 00:00:00"_s},
                                                 {u"2/1/20"_s, u"2020-02-01 00:00:00"_s},
                                                 {u"2/1/95"_s, u"1995-02-01 00:00:00"_s},
                                                 {u"2020-02-29"_s, u"2020-02-29 00:00:00"_s},
                                                 {u"2020/2/9 7:05"_s, u"2020-02-09 07:05:00"_s},
                                                 {u" 1/2/2020 12:00:01 AM "_s, u"2020-01-02 00:00:01"_s},
                                                 {u"1/2/2020 1:30 pm"_s, u"2020-01-02 13:30:00"_s},
                                                 {u"13:30"_s, u"1899-12-30 13:30:00"_s},
                                                 {u"2019-02-29"_s, {}},
                                                 {u"1/2/2020 25:00"_s, {}},
                                                 {u""_s, {}},
                                                 {u"x"_s, {}},
                                                 {u"1/2/20203"_s, {}}};
    for (const auto &[literal, expected] : dates)
        EXPECT_EQ(AccessDateLiteral::text(literal), expected) << literal.toStdString();
    EXPECT_EQ(sqlite(u"d >= #1/31/2020# AND d < #bad#"_s), u"d >= '2020-01-31 00:00:00' AND d < #bad#"_s);
}
