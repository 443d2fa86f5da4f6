#include "query/derivation/SqlText.h"
#include "sql/StatementLines.h"

#include "CaseFile.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

TEST(SqlText, CutsStatementsAtTheirKeywords)
{
    for (const Case &c : ReadCases(u"split.cases"_s)) {
        SCOPED_TRACE(c.place.toStdString());
        const auto sentence = SplitSQLSentence(c[u"statement"_s]);
        ASSERT_TRUE(sentence);
        EXPECT_EQ(sentence->fields, c[u"fields"_s]);
        EXPECT_EQ(sentence->where, c[u"where"_s]);
        EXPECT_EQ(sentence->order, c[u"order"_s]);
    }
}

TEST(SqlText, DoesNotSplitEmptyTexts)
{
    EXPECT_FALSE(SplitSQLSentence({}));
    EXPECT_FALSE(SplitByKeyword({}, u" WHERE "_s));
    EXPECT_FALSE(SplitByKeyword(u"select"_s, {}));
}

TEST(SqlText, SplitsByKeywordInAnyCaseAndKeepsTheKeywordsFirstCharacterInFront)
{
    const auto cut = SplitByKeyword(u"a wHeRe b where c"_s, u" Where "_s);
    ASSERT_TRUE(cut);
    EXPECT_EQ(cut->before, u"a "_s);
    EXPECT_EQ(cut->after, u"wHeRe b where c"_s);
}

TEST(SqlText, AbsentKeywordLeavesAllInFront)
{
    const auto cut = SplitByKeyword(u"select a"_s, u" where "_s);
    ASSERT_TRUE(cut);
    EXPECT_EQ(cut->before, u"select a"_s);
    EXPECT_EQ(cut->after, QString());
}

TEST(SqlText, FindsTableAndMakesNoRowStatement)
{
    for (const Case &c : ReadCases(u"tables.cases"_s)) {
        SCOPED_TRACE(c.place.toStdString());
        EXPECT_EQ(GetSQLTableName(c[u"statement"_s]), c[u"table"_s]);
        EXPECT_EQ(GetNoRowSQL(c[u"statement"_s]), c[u"noRow"_s]);
    }
}

TEST(SqlText, DerivesStatements)
{
    for (const Case &c : ReadCases(u"derived.cases"_s)) {
        SCOPED_TRACE(c.place.toStdString());
        const QString statement = c[u"statement"_s];
        auto sentence = SplitSQLSentence(statement).value_or(SQLSentence());
        QString result;
        if (c.Has(u"filter"_s)) {
            addCondition(sentence, c[u"filter"_s]);
            result = joinSQLSentence(sentence);
        } else if (c.Has(u"sort"_s)) {
            sentence.order = c[u"sort"_s].isEmpty() ? QString() : u" ORDER BY "_s + c[u"sort"_s];
            result = joinSQLSentence(sentence);
        } else if (c.Has(u"head"_s)) {
            result = ReplaceSQLFieldPart(statement, c[u"head"_s]);
        } else if (c.Has(u"append"_s)) {
            result = AppendOrderWord(statement, c[u"append"_s]);
        } else {
            ASSERT_TRUE(c.Has(u"replaceSort"_s));
            result = replaceOrderWord(statement, c[u"replaceSort"_s]);
        }
        EXPECT_EQ(result, c[u"result"_s]);
    }
}

TEST(SqlText, ComposesPartsThatAreThere)
{
    EXPECT_EQ(ComposeSQL(u"select a from T"_s, {}, {}), u"select a from T"_s);
    EXPECT_EQ(ComposeSQL(u"select a from T "_s, u"where b"_s, {}), u"select a from T  where b"_s);
    EXPECT_EQ(ComposeSQL(u"h"_s, u"w"_s, u"o"_s), u"h w o"_s);
    EXPECT_EQ(ComposeSQL(u"h"_s, {}, u"o"_s), u"h o"_s);
}

TEST(SqlText, CutsAffixesOnceAtTheWantedEnds)
{
    const QString quoted = u"\"\"A\"\""_s;
    const QString quote = u"\""_s;
    EXPECT_EQ(CutStringEnds(quoted, quote, CutBegin), u"\"A\"\""_s);
    EXPECT_EQ(CutStringEnds(quoted, quote, CutEnd), u"\"\"A\""_s);
    EXPECT_EQ(CutStringEnds(quoted, quote, CutBoth), u"\"A\""_s);
    EXPECT_EQ(CutStringEnds(quoted, quote, CutEnds{0}), quoted);
    EXPECT_EQ(CutStringEnds(quoted, quote, CutEnds{4}), quoted);
    EXPECT_EQ(CutStringEnds(u"abA"_s, u"a"_s, CutBoth), u"bA"_s) << "letter for letter";
    EXPECT_EQ(CutStringEnds(quote, quote, CutBoth), QString()) << "one character is either end, not both";
}

TEST(SqlText, EmptyAffixEmptiesTheText)
{
    EXPECT_EQ(CutStringEnds(u"A"_s, {}, CutBoth), QString());
    EXPECT_EQ(CutStringEnds({}, u"A"_s, CutBoth), QString());
}

TEST(SqlText, FromPartReachesToTheEnd)
{
    EXPECT_EQ(getFromPart(u"select a From T where b order by c"_s), u" From T where b order by c"_s);
    EXPECT_EQ(getFromPart(u"select a"_s), QString());
}

TEST(SqlText, JoinsStatementLines)
{
    for (const Case &c : ReadCases(u"lines.cases"_s)) {
        SCOPED_TRACE(c.place.toStdString());
        EXPECT_EQ(joinStatementLines(c[u"written"_s]), c[u"taken"_s]);
    }
}
