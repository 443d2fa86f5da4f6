// What a sort becomes in statements derived from its own.
#include "query/derivation/Derivation.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

Derivation derive(const EngineMode &engine, const QString &statement, const QStringList &names)
{
    std::vector<SourceField> fields;
    for (const QString &name : names)
        fields.push_back({name, 202});
    return Derivation(statement, fields, dialectOf(dbSQLServer, engine));
}

} // namespace

TEST(DerivationSort, ASortByAConstantIsLeftOutWhereTheListIsWrittenAgain)
{
    for (const QString &word : {u"distinct"_s, u"top 3"_s}) {
        const Derivation sorted = derive(
            Engine::SqlServer, u"select %1 'x' as K, 7 as N, Qty from Ord order by 1, N desc, 3"_s.arg(word),
            {u"K"_s, u"N"_s, u"Qty"_s});
        EXPECT_EQ(sorted.withFields(sorted.listed()).simplified(),
                  u"SELECT %1 'x' as K,7 as N,Qty FROM Ord ORDER BY Qty"_s.arg(word));
    }
}

TEST(DerivationSort, ASortKeepsItsMeaningWithoutTheFieldsThatItNames)
{
    const auto chosen = [](const QString &statement, const QStringList &names) {
        const Derivation derivation = derive(Engine::PostgreSQL, statement, names);
        return derivation.withFields({derivation.listed().first()}).simplified();
    };
    const QStringList two{u"id"_s, u"name"_s};
    // Of two tables, both of which have the name.
    EXPECT_EQ(chosen(u"select a.id, b.name from A a join B b on a.id = b.id order by name desc, id"_s, two),
              u"SELECT a.id FROM A a join B b on a.id = b.id ORDER BY b.name desc,a.id"_s);
    EXPECT_EQ(chosen(u"select a.id as n, b.name from A a, B b where a.id = b.id order by name, n"_s,
                     {u"n"_s, u"name"_s}),
              u"SELECT a.id as n FROM A a, B b where a.id = b.id ORDER BY b.name,a.id"_s);
    // As an engine calls an expression.
    EXPECT_EQ(chosen(u"select id, upper(name) from A order by upper, id"_s, {u"id"_s, u"upper"_s}),
              u"SELECT id FROM A ORDER BY upper(name),id"_s);
    // The tables' own names are enough.
    EXPECT_EQ(chosen(u"select a.id, a.name from A a order by name, other"_s, two),
              u"SELECT a.id from A a order by name, other"_s);
    EXPECT_EQ(chosen(u"select id, name from A join B using (id) order by name"_s, two),
              u"SELECT id from A join B using (id) order by name"_s);
    EXPECT_EQ(chosen(u"select a, b as n, c from T order by (n) desc, (3)"_s, {u"a"_s, u"n"_s, u"c"_s}),
              u"SELECT a FROM T ORDER BY b desc,c"_s);
}

// An expression can be sorted by only as long as DISTINCT has all its entries.
TEST(DerivationSort, OfDistinctGoesWithTheEntriesThatItUses)
{
    const QString statement = u"select distinct A*2 as n, B as b, C from T order by -n, abs(n - b), b"_s;
    const std::vector<SourceField> fields{{u"n"_s, 3}, {u"b"_s, 3}, {u"C"_s, 3}};
    const Derivation derivation(statement, fields, dialectOf(dbSQLServer, Engine::MySQL), {{u"`n`"_s, 0}});
    EXPECT_EQ(derivation.withFields(derivation.listed().first(2)).simplified(),
              u"SELECT distinct A*2 as n,B as b FROM T ORDER BY -n,abs(n - b),B"_s);
    EXPECT_EQ(derivation.withFields(derivation.listed().last(2)).simplified(),
              u"SELECT distinct B as b,C FROM T ORDER BY B"_s);
    EXPECT_EQ(derivation.withCondition(u"B = 1"_s).simplified(),
              u"SELECT distinct A*2 as n, B as b, C FROM T WHERE B = 1 ORDER BY -n,abs(n - b),B"_s);
}

// Expressions of the sort use aliases on some engines, where a column of that name comes first.
TEST(DerivationSort, ASortKeepsItsMeaningWithoutTheAliasesInItsExpressions)
{
    const QString statement =
        u"select A + 1 as no, upper(B) as n, C as b, D from T order by -no, "
        "coalesce(N, b, T.no, no(`n`)) desc, n collate x, (select m from U), \"n\"||''"_s;
    const auto chosen = [&](Engine engine, const QStringList &aliases) {
        const Dialect dialect = dialectOf(dbSQLServer, engine);
        const std::vector<SourceField> fields{{u"no"_s, 3}, {u"n"_s, 202}, {u"b"_s, 202}, {u"D"_s, 202}};
        StarSizes sizes;
        for (const QString &alias : aliases)
            sizes.insert(alias, 0);
        const Derivation derivation(statement, fields, dialect, sizes);
        EXPECT_EQ(derivation.aliasesToTell(), engine == Engine::PostgreSQL
                                                  ? QStringList()
                                                  : QStringList({u"`no`"_s, u"`n`"_s, u"`b`"_s}));
        return derivation.withFields({derivation.listed().last()}).simplified();
    };
    EXPECT_EQ(chosen(Engine::SQLite, {u"`no`"_s, u"`n`"_s}),
              u"SELECT D FROM T ORDER BY -(A + 1),coalesce(upper(B), b, T.no, no(upper(B))) desc,"
              "upper(B) collate x,(select m from U),upper(B)||''"_s);
    EXPECT_EQ(chosen(Engine::MySQL, {u"`no`"_s}),
              u"SELECT D FROM T ORDER BY -(A + 1),coalesce(N, b, T.no, no(`n`)) desc,"
              "n collate x,(select m from U),\"n\"||''"_s);
    EXPECT_EQ(chosen(Engine::SQLite, {}), u"SELECT D FROM T ORDER BY -no,coalesce(N, b, T.no, no(`n`)) desc,"
                                          "upper(B) collate x,(select m from U),\"n\"||''"_s);
    EXPECT_EQ(chosen(Engine::PostgreSQL, {}),
              u"SELECT D FROM T order by -no, coalesce(N, b, T.no, no(`n`)) desc, n collate x, "
              "(select m from U), \"n\"||''"_s);
}

// What stands around a position or a name, and behind it, leaves it what it is, but not on every engine.
TEST(DerivationSort, PositionsAndNamesMeanWhatTheEngineTakesThemFor)
{
    const auto chosen = [](Engine engine, const QString &sort) {
        const std::vector<SourceField> fields{{u"a"_s, 3}, {u"n"_s, 202}};
        const Derivation derivation(u"select a, b as n from T order by "_s + sort, fields,
                                    dialectOf(dbSQLServer, engine));
        return derivation.withFields({u"a"_s}).simplified().section(u" order by "_s, 1, -1,
                                                                    QString::SectionCaseInsensitiveSeps);
    };
    const Engine sqlite = Engine::SQLite;
    EXPECT_EQ(chosen(sqlite, u"2 collate nocase desc, 1"_s), u"b collate nocase desc,a"_s);
    EXPECT_EQ(chosen(sqlite, u"(2 collate x) collate nocase desc nulls last"_s),
              u"b collate x collate nocase desc nulls last"_s);
    EXPECT_EQ(chosen(sqlite, u"(n) COLLATE nocase, (+2) desc, +n"_s), u"b COLLATE nocase,b desc,+n"_s);
    EXPECT_EQ(chosen(sqlite, u"a collate nocase, 2 + 0, +a"_s), u"a collate nocase, 2 + 0, +a"_s);
    const Engine mySql = Engine::MySQL;
    EXPECT_EQ(chosen(mySql, u"+2 desc, +(n), 1"_s), u"b desc,b,a"_s);
    EXPECT_EQ(chosen(mySql, u"2 collate utf8mb4_bin"_s), u"2 collate utf8mb4_bin"_s);
    const Engine postgres = Engine::PostgreSQL;
    EXPECT_EQ(chosen(postgres, u"2 using > nulls last, n using operator(pg_catalog.<), (1) nulls first"_s),
              u"b using > nulls last,b using operator(pg_catalog.<),a nulls first"_s);
    EXPECT_EQ(chosen(postgres, u"+2, a collate \"C\" using >"_s), u"+2, a collate \"C\" using >"_s);
}

TEST(DerivationSort, OfWhatBecomesATableKeepsCollationsAndOperators)
{
    const auto sorted = [](Engine engine, const QString &sort) {
        const std::vector<SourceField> fields{{u"a"_s, 3}, {u"n"_s, 202}};
        const Derivation derivation(u"select a, b as n from T group by a, b order by "_s + sort, fields,
                                    dialectOf(dbSQLServer, engine));
        return derivation.outerTerms();
    };
    const std::vector<OuterTerm> terms = sorted(Engine::SQLite, u"2 collate nocase desc, (a)"_s);
    ASSERT_EQ(terms.size(), 2U);
    EXPECT_EQ(terms[0].text, u"n collate nocase desc"_s);
    EXPECT_TRUE(terms[0].isDescending);
    EXPECT_EQ(terms[1].text, u"a"_s);
    EXPECT_FALSE(terms[1].isDescending);
    const OuterTerm used = sorted(Engine::PostgreSQL, u"n using >"_s).front();
    EXPECT_EQ(used.text, u"n using >"_s);
    EXPECT_TRUE(used.isDescending);
}

// The tables of a sub-select have columns of their own, so only the whole statement can say what is meant.
TEST(DerivationSort, ByASubselectOfAnAliasKeepsTheStatementWhole)
{
    const QString statement =
        u"select ID, Dept as abt from Emp order by (select Name from Dept where ID = abt), ID"_s;
    const auto isTable = [&](Engine engine, const StarSizes &sizes) {
        return Derivation(statement, {{u"ID"_s, 3}, {u"abt"_s, 3}}, dialectOf(dbSQLServer, engine), sizes)
            .isTable();
    };
    EXPECT_TRUE(isTable(Engine::SQLite, {{u"`abt`"_s, 0}}));
    EXPECT_TRUE(isTable(Engine::MySQL, {{u"`abt`"_s, 0}}));
    EXPECT_FALSE(isTable(Engine::SQLite, {})); // a column has that name
    EXPECT_FALSE(isTable(Engine::PostgreSQL, {}));
}

// SQL Server refuses an order within a table, and MySQL loses it.
TEST(DerivationSort, ByWhatTheResultLacksIsByAFieldOfTheTableWhereItsOrderWouldBeLost)
{
    const QString grouped =
        u"select dept, count(*) as n from emp group by dept order by max(salary) desc, dept"_s;
    const QStringList names{u"dept"_s, u"n"_s};
    EXPECT_EQ(derive(Engine::PostgreSQL, grouped, names).withCondition(u"n > 0"_s).simplified(),
              u"SELECT * FROM ( %1 ) AS Q WHERE n > 0"_s.arg(grouped));
    const QString table =
        u"FROM ( select dept, count(*) as n, max(salary) AS SortKey1 from emp group by dept ) AS Q"_s;
    for (const Engine engine : {Engine::MySQL, Engine::SqlServer}) {
        const Derivation origin = derive(engine, grouped, names);
        const QString filtered = origin.withCondition(u"n > 0"_s);
        EXPECT_EQ(filtered.simplified(),
                  u"SELECT dept,n %1 WHERE n > 0 ORDER BY SortKey1 desc,dept"_s.arg(table));
        const QString chosen = derive(engine, filtered, names).withFields({u"n"_s});
        EXPECT_EQ(chosen.simplified(), u"SELECT n %1 WHERE n > 0 ORDER BY SortKey1 desc,dept"_s.arg(table));
        EXPECT_EQ(derive(engine, chosen, {u"n"_s}).withFieldsOf(origin).simplified(), filtered.simplified());
        EXPECT_EQ(origin.withSort(u"n"_s).simplified(), u"SELECT dept,n %1 ORDER BY n"_s.arg(table));
        EXPECT_TRUE(derive(engine, filtered, names).hasAsTable(origin));
    }
}

TEST(DerivationSort, ALimitKeepsItsOwnSortBesideTheFieldsForTheOuterOne)
{
    EXPECT_EQ(derive(Engine::SqlServer,
                     u"select top 3 e.name from emp e join dept d on d.id = e.dept order by d.name desc"_s,
                     {u"name"_s})
                  .withCondition(u"name > ''"_s)
                  .simplified(),
              u"SELECT name FROM ( select top 3 e.name, d.name AS SortKey1 from emp e join dept d on d.id = "
              "e.dept order by d.name desc ) AS Q WHERE name > '' ORDER BY SortKey1 desc"_s);
    // A list can't use its own aliases; the name for the sort must be another.
    const QString statement = u"select salary as s, id as SortKey1 from emp e order by s + e.s, "
                              "(select name from dept where id = s) desc limit 5"_s;
    const Derivation limited(statement, {{u"s"_s, 3}, {u"SortKey1"_s, 3}},
                             dialectOf(dbSQLServer, Engine::MySQL), {{u"`s`"_s, 0}});
    EXPECT_EQ(limited.withCondition(u"s > 1"_s).simplified(),
              u"SELECT s,SortKey1 FROM ( select salary as s, id as SortKey1, (salary) + e.s AS SortKey1_, "
              "(select name from dept where id = s) AS SortKey2 from emp e order by s + e.s, (select name "
              "from dept where id = s) desc limit 5 ) AS Q WHERE s > 1 ORDER BY SortKey1_,SortKey2 desc"_s);
}

TEST(DerivationSort, OfAUnionUsesTheFieldsOfItsResultAlone)
{
    EXPECT_EQ(
        derive(Engine::MySQL, u"select id from a union select id from b order by -id desc"_s, {u"id"_s})
            .withCondition(u"id > 1"_s)
            .simplified(),
        u"SELECT * FROM ( select id from a union select id from b ) AS Q WHERE id > 1 ORDER BY -id desc"_s);
}

TEST(DerivationSort, ThatWouldBeLostIsAReasonNotToChooseSomeOfTheRecords)
{
    const QString statement = u"select distinct a, count(*) over () as n from t order by b"_s;
    const Derivation derivation = derive(Engine::MySQL, statement, {u"a"_s, u"n"_s});
    EXPECT_NE(derivation.whyNot(DerivationStep::Condition), QString());
    EXPECT_NE(derivation.whyNot(DerivationStep::Fields), QString());
    EXPECT_EQ(derivation.whyNot(DerivationStep::Sort), QString());
    EXPECT_EQ(derivation.withCondition(u"n > 1"_s), QString());
    const Derivation kept = derive(Engine::SQLite, statement, {u"a"_s, u"n"_s});
    EXPECT_EQ(kept.whyNot(DerivationStep::Condition), QString());
}

// Another sort would drop it without a word.
TEST(DerivationSort, InsideATableIsFoundBehindTheLimitOfAllRecords)
{
    const auto filtered = [](Engine engine, const QString &from) {
        const QString statement =
            u"select A, count(*) as N from %1 group by A, C order by max(B), A"_s.arg(from);
        const QString once = derive(engine, statement, {u"A"_s, u"N"_s}).withCondition(u"N > 0"_s);
        return derive(engine, once, {u"A"_s, u"N"_s});
    };
    EXPECT_TRUE(filtered(Engine::SQLite, u"T"_s).isSortedInside());
    EXPECT_TRUE(filtered(Engine::SQLite, u"(select * from T limit 5) as V"_s).isSortedInside());
    EXPECT_TRUE(filtered(Engine::PostgreSQL, u"(select * from T limit 5) as V"_s).isSortedInside());
    EXPECT_FALSE(filtered(Engine::MySQL, u"T"_s).isSortedInside()) << "its sort is outside";
    EXPECT_TRUE(filtered(Engine::MySQL, u"T"_s).isSorted());
    const auto isSortedInside = [](const QString &statement) {
        return derive(Engine::SQLite, statement, {u"A"_s}).isSortedInside();
    };
    EXPECT_TRUE(isSortedInside(u"select A from (select A from T order by B limit 5) V"_s));
    EXPECT_FALSE(isSortedInside(u"select A from (select A from T order by A limit 5) V"_s));
    EXPECT_FALSE(isSortedInside(u"select A from (select A from T order by B limit 5) V order by A"_s));
    EXPECT_FALSE(isSortedInside(u"select A from (select A from T order by B limit 5) V group by A"_s));
}
