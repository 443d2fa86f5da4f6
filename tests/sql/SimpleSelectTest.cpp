#include "sql/select/SimpleSelect.h"
#include "sql/SqlScanner.h"

#include <QtCore/QStringList>
#include <gtest/gtest.h>

#include <vector>

using namespace Qt::Literals::StringLiterals;
using namespace KOVAVSFDataGridLib;

namespace {

using Fault = SimpleSelect::Fault;

SimpleSelect parse(const QString &sql)
{
    return SimpleSelect::parse(SqlScanner(sql));
}

struct Accepted
{
    QString sql;
    QString schema;
    QString table;
    QString alias;
    QString head;   // up to the end of the select list
    QString source; // from there to the end of the table
};

TEST(SimpleSelect, FindsThePartsOfASelectOfOneTable)
{
    const std::vector<Accepted> cases{
        {u"select * from t"_s, QString(), u"t"_s, u"t"_s, u"select *"_s, u" from t"_s},
        {u"SELECT a, (select max(x) from u) AS b FROM t AS k WHERE a > 1"_s, QString(), u"t"_s, u"k"_s,
         u"SELECT a, (select max(x) from u) AS b"_s, u" FROM t AS k"_s},
        {u"select all a from main.[my t] x order by 1;"_s, u"main"_s, u"my t"_s, u"x"_s, u"select all a"_s,
         u" from main.[my t] x"_s},
        {u"select a /* from u */ from t -- where\n limit 3"_s, QString(), u"t"_s, u"t"_s, u"select a"_s,
         u" /* from u */ from t"_s},
        {u"select a from t indexed by i where a=1"_s, QString(), u"t"_s, u"t"_s, u"select a"_s,
         u" from t indexed by i"_s},
        {u"select a from t not indexed"_s, QString(), u"t"_s, u"t"_s, u"select a"_s,
         u" from t not indexed"_s},
        {u"select a from \"where\" where b in (select 1 union select 2)"_s, QString(), u"where"_s, u"where"_s,
         u"select a"_s, u" from \"where\""_s},
    };
    for (const Accepted &c : cases) {
        const SimpleSelect select = parse(c.sql);
        EXPECT_EQ(select.fault, Fault::None) << c.sql.toStdString();
        EXPECT_EQ(select.schema, c.schema) << c.sql.toStdString();
        EXPECT_EQ(select.table, c.table) << c.sql.toStdString();
        EXPECT_EQ(select.alias, c.alias) << c.sql.toStdString();
        EXPECT_EQ(c.sql.left(select.listEnd), c.head);
        EXPECT_EQ(c.sql.mid(select.listEnd, select.sourceEnd - select.listEnd), c.source);
    }
}

struct Refused
{
    QString sql;
    Fault fault;
};

TEST(SimpleSelect, SaysWhyARowCantBeFoundAgain)
{
    const std::vector<Refused> cases{
        {QString(), Fault::NoTable},
        {u"select"_s, Fault::NoTable},
        {u"select 1"_s, Fault::NoTable},
        {u"select a from"_s, Fault::NoTable},
        {u"values (1)"_s, Fault::NoTable},
        {u"with c as (select 1) select * from c"_s, Fault::NoTable},
        {u"select * from json_each('[]')"_s, Fault::NoTable},
        {u"select distinct a from t"_s, Fault::Distinct},
        {u"select a from t union select b from u"_s, Fault::Compound},
        {u"select a from t group by a"_s, Fault::Grouped},
        {u"select a from t, u"_s, Fault::Join},
        {u"select a from t x left join u on 1"_s, Fault::Join},
        {u"select a from t natural join u"_s, Fault::Join},
        {u"select a from (select a from t)"_s, Fault::Join},
        {u"select a from (t)"_s, Fault::Join},
    };
    for (const Refused &c : cases)
        EXPECT_EQ(parse(c.sql).fault, c.fault) << c.sql.toStdString();
}

TEST(SimpleSelect, DistinguishesPlainColumnsFromComputedOnes)
{
    const SimpleSelect select = parse(
        u"select all *, k.*, main.t.*, a, k.b, main.t.[c d], \"e\"\"f\" as g, h 'i', j AS \"l\", `m` n,"
        " o + 1, -p, (q), (select r from t) as r, (select s from t), upper(u), 'v', 7, w collate nocase,"
        " case when x then y end, a.b.c + 1, max(a, b), k.* + 1 from t k"_s);
    QStringList items;
    for (const SimpleSelect::Item &item : select.items)
        items += item.all ? u"*"_s : item.column;
    EXPECT_EQ(items.join(u'|'), u"*|*|*|a|b|c d|e\"f|h|j|m|||||||||||||"_s);
}

TEST(SimpleSelect, SaysWhetherEveryRowOfTheTableIsInTheResult)
{
    for (const QString &sql :
         {u"select * from t"_s, u"select all t.*, a b from main.t order by (select c from u limit 1), 2;"_s,
          u"select a from t as limits -- where x"_s, u"select a from t indexed by i order by \"limit\""_s})
        EXPECT_TRUE(parse(sql).isWhole) << sql.toStdString();
    for (const QString &sql :
         {u"select * from t where a"_s, u"select * from t limit 3"_s,
          u"select * from t order by a limit 3, 4"_s, u"select * from t order by a fetch first 3 rows only"_s,
          u"select * from t order by a offset 3"_s, u"select max(a) from t"_s, u"select distinct a from t"_s,
          u"select a from t union select 1"_s, u"select a from t group by a"_s, u"select t.a from t, u"_s,
          u"select a from t for update"_s, u"select * from f(1)"_s,
          u"with t as (select 1) select * from t"_s})
        EXPECT_FALSE(parse(sql).isWhole) << sql.toStdString();
    const auto isWholeInMySql = [](const QString &sql) {
        return SimpleSelect::parse(SqlScanner(sql, SqlDialect::MySql)).isWhole;
    };
    EXPECT_TRUE(isWholeInMySql(u"select sql_no_cache * from t"_s));
    for (const QString &sql :
         {u"select * from t /*! where a */"_s, u"select * from t order by a /*! limit 3 */"_s,
          u"select * from t partition (p)"_s})
        EXPECT_FALSE(isWholeInMySql(sql)) << sql.toStdString();
}

TEST(SimpleSelect, ReadsCommentsThatMySqlRuns)
{
    const auto faultOf = [](const QString &sql) {
        return SimpleSelect::parse(SqlScanner(sql, SqlDialect::MySql)).fault;
    };
    EXPECT_EQ(faultOf(u"select /*!40001 sql_no_cache */ /*M!100100 high_priority */ a from t"_s),
              Fault::None);
    for (const QString &words : {u"/*!40001 sql_no_cache */ distinct"_s, u"sql_no_cache /*! */ distinctrow"_s,
                                 u"/*! distinct */"_s, u"/*! sql_no_cache distinct */"_s})
        EXPECT_EQ(faultOf(u"select %1 a from t"_s.arg(words)), Fault::Distinct) << qPrintable(words);
    EXPECT_EQ(parse(u"select /*! distinct */ a from t"_s).fault, Fault::None) << "a comment elsewhere";
}

TEST(SimpleSelect, RefusesWindowsExceptInSubqueries)
{
    for (const QString &sql : {u"select sum(v) over () from t"_s, u"select (sum(v) over w) + 1 from t"_s,
                               u"select a from t order by row_number() over (order by a)"_s})
        EXPECT_EQ(parse(sql).fault, Fault::Grouped) << sql.toStdString();
    for (const QString &sql :
         {u"select a, (select sum(v) over () from u limit 1) from t"_s, u"select over from t"_s})
        EXPECT_EQ(parse(sql).fault, Fault::None) << sql.toStdString();
}

} // namespace
