#include "sql/Brackets.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

TEST(Brackets, AreAddedAroundTheUnchangedName)
{
    EXPECT_EQ(inBrackets(u"Unit Price"_s), u"[Unit Price]"_s);
    EXPECT_EQ(inBrackets(u"a]b"_s), u"[a]b]"_s);
    EXPECT_EQ(partsInBrackets(u"T.Unit Price"_s), u"[T].[Unit Price]"_s);
    EXPECT_TRUE(hasBracket(u"[A"_s));
    EXPECT_TRUE(hasBracket(u"A]"_s));
    EXPECT_FALSE(hasBracket(u"A[1]B"_s));
}

TEST(Brackets, AreTakenOffOnceAtEachEnd)
{
    EXPECT_EQ(withoutBrackets(u"[A B]"_s), u"A B"_s);
    EXPECT_EQ(withoutBrackets(u"[[A]"_s), u"[A"_s);
    EXPECT_EQ(withoutBrackets(u"A]"_s), u"A"_s);
    EXPECT_EQ(withoutBrackets(u"["_s), QString());
    EXPECT_EQ(withoutBrackets({}), QString());
}

TEST(Brackets, StayWhereANameCouldBeTakenForAnExpression)
{
    EXPECT_EQ(withoutSpareBrackets(u"[客户 名称]"_s), u"客户 名称"_s);
    for (const char *kept : {"[A-B]", "[A].[B]", "[A", "A", "[]"})
        EXPECT_EQ(withoutSpareBrackets(QString::fromLatin1(kept)), QString::fromLatin1(kept)) << kept;
    for (const char *more : {"A+B", "f(A)", "A as B", "'A'", "[A B]", "A=1"})
        EXPECT_TRUE(isMoreThanAName(QString::fromLatin1(more))) << more;
    EXPECT_FALSE(isMoreThanAName(u"T.Unit Price"_s));
}
