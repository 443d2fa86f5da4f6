// How each engine's names are written and read.
#include "sql/Names.h"

#include "sql/words/ReservedWords.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

void expectWritten(AllDBType database, Engine engine, const QString &name, const char *expected)
{
    EXPECT_STREQ(qUtf8Printable(writtenName(dialectOf(database, engine), name)), expected);
}

} // namespace

TEST(Names, PlainNamesBeginWithALetterOfAnyScript)
{
    for (const QString &name : {u"A"_s, u"_a1"_s, u"客户2"_s, u"Straße"_s, u"v$session#"_s, u"𠀀1"_s})
        EXPECT_TRUE(isPlainName(name)) << name.toStdString();
    for (const QString &name : {QString(), u"1A"_s, u"A B"_s, u"$a"_s, u"年龄（岁）"_s, u"a-b"_s, u"T.A"_s})
        EXPECT_FALSE(isPlainName(name)) << name.toStdString();
}

TEST(Names, AreBareWhereTheDeclaredTypeAllowsIt)
{
    struct Case
    {
        QString name;
        const char *access;
        const char *oracle;
        const char *sqlServer;
    };
    const Case cases[] = {
        {u"NAME"_s, "NAME", "NAME", "NAME"},
        {u"AGE"_s, "AGE", "AGE", "AGE"},
        {u"name"_s, "name", "name", "name"},
        {u"Qty"_s, "Qty", "\"Qty\"", "Qty"}, // it only exists in quotes
        {u"客户名称"_s, "客户名称", "客户名称", "客户名称"},
        {u"Unit Price"_s, "[Unit Price]", "\"Unit Price\"", "[Unit Price]"},
        {u"单价(元)"_s, "[单价(元)]", "\"单价(元)\"", "[单价(元)]"},
        {u"2023年"_s, "[2023年]", "\"2023年\"", "[2023年]"},
        {u"占比%"_s, "[占比%]", "\"占比%\"", "[占比%]"},
        {u"A-B"_s, "[A-B]", "\"A-B\"", "[A-B]"},
        {u"order"_s, "[order]", "\"order\"", "[order]"},
        {u"GROUP"_s, "[GROUP]", "\"GROUP\"", "[GROUP]"},
        {u"desc"_s, "[desc]", "\"desc\"", "[desc]"},
        {u"no#"_s, "[no#]", "no#", "no#"},
        {u"it's"_s, "[it's]", "\"it's\"", "[it's]"},
        {u"a\"b"_s, "[a\"b]", "\"a\"\"b\"", "[a\"b]"},
        {u"a]b"_s, "[a]]b]", "\"a]b\"", "[a]]b]"},
        {u"a`b"_s, "[a`b]", "\"a`b\"", "[a`b]"},
        {QString(), "[]", "\"\"", "[]"},
    };
    for (const Case &c : cases) {
        expectWritten(dbAccess, Engine::Other, c.name, c.access);
        expectWritten(dbOracle, Engine::Other, c.name, c.oracle);
        expectWritten(dbSQLServer, Engine::Other, c.name, c.sqlServer);
    }
}

TEST(Names, AreWrittenAsTheEngineWantsItWhateverTheDeclaredType)
{
    struct Case
    {
        QString name;
        const char *sqlite;
        const char *postgreSql;
        const char *mySql;
        const char *oracle;
        const char *standard;
    };
    const Case cases[] = {
        {u"name"_s, "name", "name", "name", "\"name\"", "name"},
        {u"NAME"_s, "NAME", "\"NAME\"", "NAME", "NAME", "NAME"},
        {u"Qty"_s, "Qty", "\"Qty\"", "Qty", "\"Qty\"", "Qty"},
        {u"unit price"_s, "[unit price]", "\"unit price\"", "`unit price`", "\"unit price\"",
         "\"unit price\""},
        {u"order"_s, "[order]", "\"order\"", "`order`", "\"order\"", "\"order\""},
        {u"key"_s, "key", "key", "`key`", "\"key\"", "\"key\""},
        {u"no#"_s, "[no#]", "\"no#\"", "`no#`", "\"no#\"", "\"no#\""},
        {u"a]b"_s, "\"a]b\"", "\"a]b\"", "`a]b`", "\"a]b\"", "\"a]b\""},
        {u"a\"b"_s, "[a\"b]", "\"a\"\"b\"", "`a\"b`", "\"a\"\"b\"", "\"a\"\"b\""},
        {u"a`b"_s, "[a`b]", "\"a`b\"", "`a``b`", "\"a`b\"", "\"a`b\""},
    };
    for (const Case &c : cases) {
        for (const AllDBType database : {dbAccess, dbSQLServer}) {
            expectWritten(database, Engine::SQLite, c.name, c.sqlite);
            expectWritten(database, Engine::PostgreSQL, c.name, c.postgreSql);
            expectWritten(database, Engine::MySQL, c.name, c.mySql);
            expectWritten(database, Engine::Oracle, c.name, c.oracle);
            expectWritten(database, Engine::Standard, c.name, c.standard);
        }
    }
    expectWritten(dbOracle, Engine::SQLite, u"unit price"_s, "\"unit price\"");
    expectWritten(dbOracle, Engine::MySQL, u"unit price"_s, "`unit price`");
}

// Bare, they would be constants and operators. SQLite reads Access's files where there is no Access.
TEST(Names, ThatAccessReadsAsSomethingElseAreInBrackets)
{
    for (const QString &name : {u"No"_s, u"YES"_s, u"off"_s, u"True"_s, u"Mod"_s, u"Like"_s, u"ALike"_s,
                                u"Top"_s, u"DistinctRow"_s, u"On"_s}) {
        const std::string written = qPrintable(u'[' + name + u']');
        expectWritten(dbAccess, Engine::SQLite, name, written.c_str());
        expectWritten(dbAccess, Engine::Access, name, written.c_str());
        expectWritten(dbSQLServer, Engine::Access, name, written.c_str());
    }
    expectWritten(dbSQLServer, Engine::SQLite, u"No"_s, "No");
    expectWritten(dbAccess, Engine::MySQL, u"Yes"_s, "Yes");
    expectWritten(dbSQLServer, Engine::Standard, u"No"_s, "No");
}

TEST(Names, AreReservedByTheirEngineAlone)
{
    EXPECT_TRUE(isReservedWord(Engine::MySQL, u"Rank"_s));
    EXPECT_TRUE(isReservedWord(Engine::MySQL, u"rownum"_s)) << "its number of the row in ORACLE mode";
    EXPECT_FALSE(isReservedWord(Engine::SQLite, u"Rank"_s));
    EXPECT_TRUE(isReservedWord(Engine::Oracle, u"LEVEL"_s));
    EXPECT_FALSE(isReservedWord(Engine::PostgreSQL, u"LEVEL"_s));
    for (const Engine engine : {Engine::SQLite, Engine::Access, Engine::SqlServer, Engine::Oracle,
                                Engine::PostgreSQL, Engine::MySQL, Engine::Standard}) {
        EXPECT_TRUE(isReservedWord(engine, u"Select"_s));
        EXPECT_FALSE(isReservedWord(engine, u"Name"_s));
    }
    EXPECT_TRUE(isReservedWord(Engine::Standard, u"rank"_s)) << "some engine has it";
}

TEST(Names, LastPartLosesItsQuotes)
{
    EXPECT_EQ(lastNamePart(u"dbo.T.\"Name\""_s), u"Name"_s);
    EXPECT_EQ(lastNamePart(u"[T].[Order.Date]"_s), u"Order.Date"_s);
    EXPECT_EQ(lastNamePart(u"dbo.T.Name"_s), u"Name"_s);
    EXPECT_EQ(lastNamePart(u"Name"_s), u"Name"_s);
    EXPECT_EQ(lastNamePart(u"\""_s), QString());
    EXPECT_EQ(lastNamePart(u"T.A as [x y]"_s), QString()) << "an alias is no part of a name";
    EXPECT_EQ(lastNamePart(u"T.A \"x\""_s), QString());
    EXPECT_EQ(lastNamePart(u"T.`a.b`"_s), u"a.b"_s);
    EXPECT_EQ(lastNamePart({}), QString());
}

TEST(Names, BracketsBecomeQuotesOutsideQuotes)
{
    EXPECT_EQ(bracketsToQuotes(u"SELECT [A B],T.[C],D"_s), u"SELECT \"A B\",T.\"C\",D"_s);
    EXPECT_EQ(bracketsToQuotes(u"where a like '[x]%' and \"[b]\"=[c\"d]"_s),
              u"where a like '[x]%' and \"[b]\"=\"c\"\"d\""_s);
    EXPECT_EQ(bracketsToQuotes(u"O'Neil,[A],[B"_s), u"O'Neil,\"A\",[B"_s) << "what never ends is no quote";
}

TEST(Names, ThatDifferInCaseOnlyAreTwoWhereTheEngineTellsThemApart)
{
    for (const Engine engine : {Engine::PostgreSQL, Engine::Oracle})
        EXPECT_FALSE(isOneName({dbAccess, true, false, engine}, u"Name"_s, u"name"_s));
    for (const Engine engine : {Engine::SQLite, Engine::Access, Engine::MySQL, Engine::SqlServer})
        EXPECT_TRUE(isOneName({dbAccess, true, false, engine}, u"Name"_s, u"name"_s));
    EXPECT_TRUE(isOneName({dbAccess, true, false, Engine::PostgreSQL}, u"name"_s, u"name"_s));
    EXPECT_FALSE(isOneName({dbAccess, true, false, Engine::SQLite}, u"name"_s, u"names"_s));
}
