#include "filter/conditions/FilterSql.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KOVAVSFDataGridLib::FilterSql;
using namespace Qt::StringLiterals;

namespace {

constexpr Dialect sqliteFile{dbAccess, false};
constexpr Dialect sqlServer{dbSQLServer, true};

void expectText(const QString &text, const char *expected)
{
    EXPECT_STREQ(qUtf8Printable(text), expected);
}

} // namespace

TEST(FilterSql, TermsAreJoinedUnchanged)
{
    expectText(join({}), "");
    expectText(join({{u"a"_s}}), "a");
    expectText(join({{u"a"_s}, {u"b"_s}, {u"c"_s}}), "a AND b AND c");
    expectText(join({{u"a"_s, 0, 0, true}}), "a");
}

TEST(FilterSql, AnOrOutsideAllBracketsIsEnclosedSoThatMoreCanBeJoinedByAnd)
{
    expectText(join({{u"a"_s, 0, 0, true}, {u"b"_s}}), "(a OR b)");
    expectText(join({{u"a"_s}, {u"b"_s, 1, 0, true}, {u"c"_s, 0, 1}}), "a AND (b OR c)");
    expectText(join({{u"a"_s, 1, 0, true}, {u"b"_s, 0, 1, true}, {u"c"_s}}), "((a OR b) OR c)");
}

TEST(FilterSql, BracketsWithoutCounterpartAreFound)
{
    EXPECT_EQ(unmatchedBracket({{u"a"_s, 2, 1}, {u"b"_s, 0, 1}}), -1);
    EXPECT_EQ(unmatchedBracket({{u"a"_s}, {u"b"_s, 1, 0}, {u"c"_s}}), 1);
    EXPECT_EQ(unmatchedBracket({{u"a"_s, 0, 1}, {u"b"_s, 1, 0}}), 0);
    EXPECT_EQ(unmatchedBracket({{u"a"_s, 1, 0}, {u"b"_s, 1, 1}}), 0);
}

TEST(FilterSql, DistinctValuesAreLimitedAsTheDatabaseSaysIt)
{
    expectText(distinctValues(sqliteFile, u"F"_s, u"T"_s, 200),
               "SELECT DISTINCT F FROM T WHERE F IS NOT NULL ORDER BY F LIMIT 200");
    expectText(
        distinctValues(sqlServer, u"F"_s, u"T"_s, 200),
        "SELECT DISTINCT F FROM T WHERE F IS NOT NULL ORDER BY F OFFSET 0 ROWS FETCH NEXT 200 ROWS ONLY");
}
