#include "pages/PartFields.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

QString listed(const QString &statement, AllDBType database = dbAccess)
{
    const auto named = PartFields::read(statement, database);
    return named ? named->fields.join(u'|') + u" @ "_s + named->table : u"nothing"_s;
}

} // namespace

TEST(PartFields, AreReadWithTheirTable)
{
    EXPECT_EQ(listed(u"select ID, Name from Customers where Age > 30 order by Name"_s),
              u"ID|Name @ Customers"_s);
    EXPECT_EQ(listed(u"SELECT a FROM Orders o ORDER BY a"_s), u"a @ Orders o"_s);
    EXPECT_EQ(listed(u"select a,\n\tb\nfrom T\nwhere a = 1"_s), u"a|b @ T"_s);
}

TEST(PartFields, LoseBracketsOnlyForAccessWhichGetsThemBack)
{
    const QString statement = u"select ID, [Full Name], T.[A] from T"_s;
    EXPECT_EQ(listed(statement, dbAccess), u"ID|Full Name|T.[A] @ T"_s);
    EXPECT_EQ(listed(statement, dbSQLServer), u"ID|[Full Name]|T.[A] @ T"_s);
}

TEST(PartFields, AStarNamesNone)
{
    EXPECT_EQ(listed(u"select * from T"_s), u" @ T"_s);
    EXPECT_EQ(listed(u"select T.*, b from T"_s), u"b @ T"_s);
}

TEST(PartFields, AreForAStarThoseOfItsTables)
{
    QStringList asked;
    const auto reader = [&](const QString &statement) -> std::optional<QStringList> {
        asked.append(statement);
        if (statement.contains(u"Gone"))
            return {};
        return QStringList{u"ID"_s, u"Full Name"_s, u"a.b"_s, u"Twice"_s, u"Twice"_s, u"占比%"_s};
    };
    const auto read = [&](const QString &statement, AllDBType database) {
        const auto named = PartFields::read(statement, database, reader);
        return named ? PartFields::compose(*named, database) : QString();
    };
    EXPECT_EQ(read(u"select * from T where ID > 3"_s, dbAccess),
              u"select [ID],[Full Name],[a.b],[占比%] from T"_s);
    EXPECT_EQ(read(u"select t.*, b as c from T t"_s, dbAccess),
              u"select t.[ID],t.[Full Name],t.[a.b],t.[占比%],b as c from T t"_s);
    EXPECT_EQ(read(u"select distinct * from T"_s, dbSQLServer),
              u"select distinct ID,[Full Name],[a.b],[占比%] from T"_s);
    EXPECT_EQ(read(u"select t.* from T t"_s, dbOracle),
              u"select t.ID,t.\"Full Name\",t.\"a.b\",t.\"占比%\" from T t"_s);
    EXPECT_EQ(read(u"select *, 1 as One from Gone"_s, dbAccess), u"select 1 as One from Gone"_s);
    EXPECT_EQ(asked, QStringList({u"select * from T"_s, u"select t.* from T t"_s, u"select * from T"_s,
                                  u"select t.* from T t"_s, u"select * from Gone"_s}));
}

TEST(PartFields, AreNotReadWithoutATable)
{
    for (const QString &statement :
         {u""_s, u"delete from T"_s, u"select 1"_s, u"select a, from T"_s, u"from T"_s})
        EXPECT_EQ(listed(statement), u"nothing"_s) << qPrintable(statement);
}

TEST(PartFields, AreComposedWithBracketsForAccess)
{
    const PartFields::NamedFields named{{u"ID"_s, u"Full Name"_s}, u"T"_s};
    EXPECT_EQ(PartFields::compose(named, dbAccess), u"select [ID],[Full Name] from T"_s);
    EXPECT_EQ(PartFields::compose(named, dbOracle), u"select ID,Full Name from T"_s);
    EXPECT_EQ(PartFields::compose({{}, u"T"_s}, dbAccess), QString());
}

TEST(PartFields, WhatIsMoreThanANameStaysAsItIs)
{
    EXPECT_EQ(
        PartFields::compose({{u"T.A"_s, u"T.[B]"_s, u"count(x)"_s, u"a AS b"_s, u"'x'"_s}, u"T"_s}, dbAccess),
        u"select [T].[A],T.[B],count(x),a AS b,'x' from T"_s);
}

TEST(PartFields, RunWhateverIsListed)
{
    const auto again = [](const QString &statement) {
        const auto named = PartFields::read(statement, dbAccess);
        return named ? PartFields::compose(*named, dbAccess) : QString();
    };
    EXPECT_EQ(again(u"select distinct ID, [Full Name] from T where ID > 1"_s),
              u"select distinct [ID],[Full Name] from T"_s);
    EXPECT_EQ(again(u"select top 5 ID as No, Name N, coalesce(a, b), Qty*2 from T"_s),
              u"select top 5 ID as No,Name AS N,coalesce(a, b),Qty*2 from T"_s);
    EXPECT_EQ(again(u"select D + interval '1' month, D - '1'::interval day, 5 N from T"_s),
              u"select D + interval '1' month,D - '1'::interval day,5 AS N from T"_s);
    EXPECT_EQ(again(u"select [A-B], [a.b], [单价(元)], 'x, y' from T"_s),
              u"select [A-B],[a.b],[单价(元)],'x, y' from T"_s);
    EXPECT_EQ(again(u"select (select max(x) from U where U.i = T.i) m, 订单.编号 from T, 订单 order by 1"_s),
              u"select (select max(x) from U where U.i = T.i) AS m,[订单].[编号] from T, 订单"_s);
    EXPECT_EQ(again(u"select dept, count(*) as n from emp where id > 1 group by dept having count(*) > 1 "
                    "order by dept"_s),
              u"select [dept],count(*) as n from emp group by dept having count(*) > 1"_s);
    EXPECT_EQ(again(u"select count(*) as n from emp having count(*) > 1 limit 5"_s),
              u"select count(*) as n from emp having count(*) > 1"_s);
    EXPECT_EQ(again(u"select (select a from U group by a) as a from T union select b from V group by b"_s),
              u"select (select a from U group by a) as a from T"_s);
}

TEST(PartFields, AreTheSameWithAndWithoutBrackets)
{
    EXPECT_TRUE(PartFields::isSame(u"[Full Name]"_s, u"full name"_s));
    EXPECT_FALSE(PartFields::isSame(u"Name"_s, u"Names"_s));
}
