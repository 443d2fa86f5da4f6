#include "query/fields/FieldNames.h"

#include "CaseFile.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

TEST(FieldNames, ShortNameFollowsTheFirstPoint)
{
    EXPECT_EQ(shortFieldName(u"T.[Order Date]"_s), u"Order Date"_s);
    EXPECT_EQ(shortFieldName(u"[Name]"_s), u"Name"_s);
    EXPECT_EQ(shortFieldName(u"dbo.T.Name"_s), u"T.Name"_s);
    EXPECT_EQ(shortFieldName(u"\"Name\""_s), u"\"Name\""_s);
    EXPECT_EQ(shortFieldName(u"[[x]]"_s), u"[x]"_s);
    EXPECT_EQ(shortFieldName(u"T."_s), QString());
}

TEST(FieldNames, WrittenFieldsAreTheTrimmedItemsOfTheList)
{
    EXPECT_EQ(writtenFields(u" select [A B] , T.C,\"D\" from T"_s),
              (QStringList{u"[A B]"_s, u"T.C"_s, u"\"D\""_s}));
    EXPECT_TRUE(writtenFields(u"select A"_s).isEmpty());
    EXPECT_TRUE(writtenFields(u"sel from T"_s).isEmpty());
}

TEST(FieldNames, WordsInFrontOfTheListBelongToNoItem)
{
    EXPECT_EQ(writtenFields(u"select DISTINCT T.A, C from T"_s), QStringList({u"T.A"_s, u"C"_s}));
    EXPECT_EQ(writtenFields(u"select all  [A b] from T"_s), QStringList(u"[A b]"_s));
    EXPECT_EQ(writtenFields(u"select distinct TOP 5 T.A from T"_s), QStringList(u"T.A"_s));
    EXPECT_EQ(writtenFields(u"select Distinction,Topic from T"_s),
              QStringList({u"Distinction"_s, u"Topic"_s}));
}
