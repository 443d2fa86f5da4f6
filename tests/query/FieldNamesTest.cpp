#include "query/FieldNames.h"

#include "CaseFile.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

TEST(FieldNames, ShortNameStandsBehindTheFirstPoint)
{
    EXPECT_EQ(ShortFieldName(u"T.[Order Date]"_s), u"Order Date"_s);
    EXPECT_EQ(ShortFieldName(u"[Name]"_s), u"Name"_s);
    EXPECT_EQ(ShortFieldName(u"dbo.T.Name"_s), u"T.Name"_s);
    EXPECT_EQ(ShortFieldName(u"\"Name\""_s), u"\"Name\""_s);
    EXPECT_EQ(ShortFieldName(u"[[x]]"_s), u"[x]"_s);
    EXPECT_EQ(ShortFieldName(u"T."_s), QString());
}

TEST(FieldNames, LastPartLosesItsQuotes)
{
    EXPECT_EQ(LastNamePart(u"dbo.T.\"Name\""_s), u"Name"_s);
    EXPECT_EQ(LastNamePart(u"[T].[Order.Date]"_s), u"Order.Date"_s);
    EXPECT_EQ(LastNamePart(u"dbo.T.Name"_s), u"Name"_s);
    EXPECT_EQ(LastNamePart(u"Name"_s), u"Name"_s);
    EXPECT_EQ(LastNamePart(u"\""_s), QString());
    EXPECT_EQ(LastNamePart(u"T.A as [x y]"_s), QString()) << "an alias is no part of a name";
    EXPECT_EQ(LastNamePart(u"T.A \"x\""_s), QString());
    EXPECT_EQ(LastNamePart({}), QString());
}

TEST(FieldNames, WrittenFieldsAreTheTrimmedItemsOfTheList)
{
    EXPECT_EQ(WrittenFields(u" select [A B] , T.C,\"D\" from T"_s),
              (QStringList{u"[A B]"_s, u"T.C"_s, u"\"D\""_s}));
    EXPECT_TRUE(WrittenFields(u"select A"_s).isEmpty());
    EXPECT_TRUE(WrittenFields(u"sel from T"_s).isEmpty());
}

TEST(FieldNames, PlainNamesBeginWithALetterOfAnyScript)
{
    for (const QString &name : {u"A"_s, u"_a1"_s, u"客户2"_s, u"Straße"_s, u"v$session#"_s, u"𠀀1"_s})
        EXPECT_TRUE(IsPlainName(name)) << name.toStdString();
    for (const QString &name : {QString(), u"1A"_s, u"A B"_s, u"$a"_s, u"年龄（岁）"_s, u"a-b"_s, u"T.A"_s})
        EXPECT_FALSE(IsPlainName(name)) << name.toStdString();
}

TEST(FieldNames, OtherNamesAreQuotedAsTheDatabaseWantsIt)
{
    EXPECT_EQ(QuotedFieldName(dbAccess, u"Name"_s), u"Name"_s);
    EXPECT_EQ(QuotedFieldName(dbAccess, u"Order Date"_s), u"[Order Date]"_s);
    EXPECT_EQ(QuotedFieldName(dbSQLServer, u"a]b"_s), u"[a]]b]"_s);
    EXPECT_EQ(QuotedFieldName(dbSQLServer, u"Name"_s), u"Name"_s);
    EXPECT_EQ(QuotedFieldName(dbOracle, u"NAME"_s), u"NAME"_s);
    EXPECT_EQ(QuotedFieldName(dbOracle, u"name"_s), u"name"_s);
    EXPECT_EQ(QuotedFieldName(dbOracle, u"Name"_s), u"\"Name\""_s) << "it only exists in quotes";
    EXPECT_EQ(QuotedFieldName(dbOracle, u"A \"B\""_s), u"\"A \"\"B\"\"\""_s);
}

TEST(FieldNames, BracketsBecomeQuotesOutsideQuotes)
{
    EXPECT_EQ(BracketsToQuotes(u"SELECT [A B],T.[C],D"_s), u"SELECT \"A B\",T.\"C\",D"_s);
    EXPECT_EQ(BracketsToQuotes(u"where a like '[x]%' and \"[b]\"=[c\"d]"_s),
              u"where a like '[x]%' and \"[b]\"=\"c\"\"d\""_s);
    EXPECT_EQ(BracketsToQuotes(u"O'Neil,[A],[B"_s), u"O'Neil,\"A\",[B"_s) << "what never ends is no quote";
}

TEST(FieldNames, WordsInFrontOfTheListBelongToNoItem)
{
    EXPECT_EQ(WrittenFields(u"select DISTINCT T.A, C from T"_s), QStringList({u"T.A"_s, u"C"_s}));
    EXPECT_EQ(WrittenFields(u"select all  [A b] from T"_s), QStringList(u"[A b]"_s));
    EXPECT_EQ(WrittenFields(u"select distinct TOP 5 T.A from T"_s), QStringList(u"T.A"_s));
    EXPECT_EQ(WrittenFields(u"select Distinction,Topic from T"_s),
              QStringList({u"Distinction"_s, u"Topic"_s}));
}
