#include "query/conditions/SelectionText.h"
#include "query/FilterTableName.h"
#include "query/QueryTexts.h"
#include "query/conditions/FindText.h"

#include "CaseFile.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

TEST(FieldChoice, BracketsNamesWithBlanksAndParentheses)
{
    EXPECT_EQ(composeFieldList({{u"A"_s, true},
                                {u"B"_s, false},
                                {u"Unit Price"_s, true},
                                {u"Price(net)"_s, true},
                                {u"[C D]"_s, true},
                                {u"E F]"_s, true}}),
              u"A,[Unit Price],[Price(net)],[C D],E F]"_s);
    EXPECT_EQ(composeFieldList({{u"A"_s, false}}), QString());
}

TEST(FieldChoice, ChecksPartFieldsInAnySpelling)
{
    EXPECT_EQ(SetListFieldCheck({u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"a"_s}, {u"A"_s, u"[B]"_s, u"\"C\""_s}),
              (QList<bool>{true, true, true, false, false}));
}

TEST(SortChoice, RecognisesDescendingTermsInAnyCase)
{
    EXPECT_EQ(splitSortTerm(u"name desc"_s).field, u"name"_s);
    EXPECT_EQ(splitSortTerm(u"name desc"_s).orderWord, u"降序"_s);
    EXPECT_EQ(splitSortTerm(u"Name"_s).field, u"Name"_s);
    EXPECT_EQ(splitSortTerm(u"Name"_s).orderWord, u"升序"_s);
    EXPECT_EQ(splitSortTerm(u"ß DESC nulls last"_s).field, u"ß"_s);
}

TEST(SortChoice, ComposesTermsWithoutAKeywordForAscending)
{
    EXPECT_EQ(composeSortList({{u"NAME"_s, QueryTexts::Descending}, {u"AGE"_s, QueryTexts::Ascending}}),
              u"NAME DESC,AGE"_s);
    EXPECT_EQ(composeSortList({}), QString());
}

TEST(FindText, WordsAreJoinedByOnePercentSign)
{
    EXPECT_EQ(prepareFindText(u" a  b\u3000c "_s), u"a%b%c"_s);
    EXPECT_EQ(prepareFindText(u"a\u3000\u3000b"_s), u"a%b"_s);
    EXPECT_EQ(prepareFindText(u"%%"_s), u"%"_s);
    EXPECT_FALSE(prepareFindText(u"   "_s));
}

TEST(FindText, FindAnswersTheFieldChosen)
{
    const FindAnswer one = pressFind(u"a b"_s, u"Name"_s);
    EXPECT_EQ(one.strFindText, u"a%b"_s);
    EXPECT_EQ(one.strFieldName, u"Name"_s);
    EXPECT_TRUE(one.bIsAppointField);
    EXPECT_TRUE(one.unloads);
    const FindAnswer all = pressFind(u"a"_s, u"全部"_s);
    EXPECT_FALSE(all.bIsAppointField);
    EXPECT_TRUE(all.unloads);
}

TEST(FindText, DialogStaysOpenWithoutTextOrField)
{
    EXPECT_FALSE(pressFind(u"  "_s, u"Name"_s).unloads);
    const FindAnswer answer = pressFind(u"a"_s, u" "_s);
    EXPECT_FALSE(answer.unloads);
    EXPECT_EQ(answer.strFindText, u"a"_s);
    EXPECT_EQ(answer.strFieldName, QString());
}

TEST(FilterTable, LosesItsOuterBrackets)
{
    EXPECT_EQ(SetFilterTableName(u"[Order [x] Details]"_s), u"Order [x] Details"_s);
    EXPECT_EQ(SetFilterTableName(u"T"_s), u"T"_s);
}

TEST(FilterTable, OwnerPrecedesTheFirstPoint)
{
    const FilterTableName name = SplitFilterTableName(u"\"S\".\"T.U\""_s);
    EXPECT_EQ(name.owner, u"S"_s);
    EXPECT_EQ(name.table, u"T.U"_s);
    const FilterTableName single = SplitFilterTableName(u"T"_s);
    EXPECT_EQ(single.owner + single.table, QString());
}
