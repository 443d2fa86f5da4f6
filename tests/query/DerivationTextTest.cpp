// What engines without a server here are given.
#include "query/derivation/Derivation.h"

#include "query/QueryTexts.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

Derivation derivationOf(const EngineMode &engine, const QString &statement, const QStringList &names,
                        AllDBType database = dbSQLServer)
{
    std::vector<SourceField> fields;
    for (const QString &name : names)
        fields.push_back({name, 202});
    return Derivation(statement, fields, dialectOf(database, engine));
}

// One blank for each run of blanks and line breaks.
void expectText(const QString &text, const char *expected)
{
    EXPECT_STREQ(qUtf8Printable(text.simplified()), expected);
}

} // namespace

TEST(DerivationText, OracleTakesNoAsBeforeATablesAlias)
{
    expectText(derivationOf(Engine::Oracle, u"select A from T group by A order by A"_s, {u"A"_s})
                   .withCondition(u"A = 1"_s),
               "SELECT * FROM ( select A from T group by A ) Q WHERE A = 1 ORDER BY A");
}

TEST(DerivationText, ALimitKeepsItsSortInsideAndHasItOutsideAsWell)
{
    expectText(
        derivationOf(Engine::SqlServer, u"select top 5 A, B from T order by B desc"_s, {u"A"_s, u"B"_s})
            .withCondition(u"A = 1"_s),
        "SELECT * FROM ( select top 5 A, B from T order by B desc ) AS Q WHERE A = 1 ORDER BY B desc");
    expectText(derivationOf(Engine::Oracle, u"select A from T where rownum <= 5"_s, {u"A"_s})
                   .withCondition(u"A = 1"_s),
               "SELECT * FROM ( select A from T where rownum <= 5 ) Q WHERE A = 1");
}

TEST(DerivationText, WhatBindsLooserThanAndHasBracketsAsOrHas)
{
    const auto filtered = [](Engine engine, const QString &condition, const QString &added) {
        return derivationOf(engine, u"select A from T where "_s + condition, {u"A"_s}).withCondition(added);
    };
    expectText(filtered(Engine::MySQL, u"A = 1 || B = 2"_s, u"C = 3 xor not D"_s),
               "select A from T where (A = 1 || B = 2) AND (C = 3 xor not D)");
    expectText(filtered(Engine::Access, u"A = 1 Imp B = 2"_s, u"imp > 5"_s),
               "select A from T where (A = 1 Imp B = 2) AND imp > 5");
    expectText(filtered(Engine::PostgreSQL, u"A || 'x' = B"_s, u"xor = 1"_s),
               "select A from T where A || 'x' = B AND xor = 1");
}

TEST(DerivationText, ACommentAtTheEndOfAConditionDoesNotSwallowTheSort)
{
    const auto filtered = [](const QString &statement, const QString &condition) {
        const QString text = derivationOf(Engine::PostgreSQL, statement, {u"A"_s}).withCondition(condition);
        return text.split(u' ', Qt::SkipEmptyParts).join(u' '); // the line breaks stay
    };
    EXPECT_EQ(filtered(u"select A from T order by A desc"_s, u"A = 1 -- x"_s),
              u"select A from T WHERE A = 1 -- x\n order by A desc"_s);
    EXPECT_EQ(filtered(u"select A from T where A > 1 or B order by A"_s, u"A = 1 or A = 2 -- x"_s),
              u"select A from T where (A > 1 or B) AND (A = 1 or A = 2 -- x\n) order by A"_s);
    EXPECT_EQ(filtered(u"select A from T"_s, u"A = '-- x'"_s), u"select A from T WHERE A = '-- x'"_s);
}

TEST(DerivationText, WithGoesToTheFront)
{
    expectText(derivationOf(Engine::SqlServer,
                            u"with c as (select A from T) select A, count(*) as N from c group by A"_s,
                            {u"A"_s, u"N"_s})
                   .withSort(u"N"_s),
               "with c as (select A from T) SELECT * FROM ( select A, count(*) as N from c group by A ) AS Q "
               "ORDER BY "
               "N");
}

TEST(DerivationText, SqlServerHasNoSortInATable)
{
    expectText(derivationOf(Engine::SqlServer, u"select A from T group by A order by max(B)"_s, {u"A"_s})
                   .withCondition(u"A = 1"_s),
               "SELECT A FROM ( select A, max(B) AS SortKey1 from T group by A ) AS Q WHERE A = 1 "
               "ORDER BY SortKey1");
}

// Engines call a field without an alias by its text.
TEST(DerivationText, AFieldKeepsItsNameInATable)
{
    const QString year = u"extract(year from D)"_s;
    expectText(
        derivationOf(Engine::MySQL, u"select %1, count(*) from T group by 1 order by max(D)"_s.arg(year),
                     {year, u"count(*)"_s})
            .withCondition(u"1 = 1"_s),
        "SELECT `extract(year from D)`,`count(*)` FROM ( select extract(year from D) AS `extract(year "
        "from D)`, count(*), max(D) AS SortKey1 from T group by 1 ) AS Q WHERE 1 = 1 ORDER BY SortKey1");
    expectText(
        derivationOf(Engine::SQLite, u"select A, (select B from U) from T group by A"_s,
                     {u"A"_s, u"(select B from U)"_s})
            .withCondition(u"A = 1"_s),
        "SELECT * FROM ( select A, (select B from U) AS [(select B from U)] from T group by A ) AS Q WHERE "
        "A = 1");
}

TEST(DerivationText, TopAndDistinctStayInFrontOfChosenFields)
{
    for (const auto &[words, engine] :
         {std::pair(u"top 5"_s, Engine::SqlServer), std::pair(u"top 10 percent"_s, Engine::Access),
          std::pair(u"top (5) with ties"_s, Engine::SqlServer), std::pair(u"distinct"_s, Engine::MySQL),
          std::pair(u"DISTINCTROW"_s, Engine::Access)}) {
        const Derivation derivation =
            derivationOf(engine, u"select "_s + words + u" A, B as C from T where A > 1"_s, {u"A"_s, u"C"_s});
        expectText(derivation.withFields({derivation.listed().at(1)}),
                   qPrintable(u"SELECT "_s + words + u" B as C FROM T where A > 1"_s));
    }
}

// A derived table is read once; anything else in FROM may count for each record.
TEST(DerivationText, AnAssignmentOutsideADerivedTableKeepsTheStatementWhole)
{
    const auto isTable = [](const QString &source) {
        return derivationOf(Engine::MySQL, u"select o.A from "_s + source, {u"A"_s}).isTable();
    };
    for (const QString &source : {
             u"T o, (select @n := 0) v"_s,
             u"((select @n := 0)) v, T o"_s,
             u"T o join (select @n := 0) v on (1, 2) = (1, o.A)"_s,
             u"(T o join U on greatest(o.A, 1) > 0, (select @n := 0) v)"_s,
             u"T o straight_join (select 1 union select @n := 0) v"_s,
         })
        EXPECT_FALSE(isTable(source)) << qPrintable(source);
    for (const QString &source : {
             u"T o join U on (select @n := @n + 1) < 5"_s,
             u"T o join U on ((select @n := @n + 1) < 5)"_s,
             u"T o join U on greatest(1, (select @n := @n + 1)) < 5"_s,
             u"T o join U on o.A in (select A from (select @n := @n + 1 as A) v)"_s,
             u"(T o left join U on not exists (select @n := @n + 1)), (select @n := 0) v"_s,
             u"T o, lateral (select @n := @n + 1 as B) v"_s,
             u"T o, json_table(@n := o.A, '$' columns (B int path '$')) v"_s,
         })
        EXPECT_TRUE(isTable(source)) << qPrintable(source);
}

// Sorted by other fields, the first records would be others.
TEST(DerivationText, TopOfDistinctRecordsIsTakenBeforeFieldsOfItsSortAreLeftOut)
{
    const Derivation places = derivationOf(
        Engine::Access,
        u"select distinct top 5 Country, City as Town, 1 as N from T order by Country, 3, City"_s,
        {u"Country"_s, u"Town"_s, u"N"_s}, dbAccess);
    const QString town = places.listed().at(1);
    const QString towns = places.withFields({town});
    expectText(towns,
               "SELECT Town FROM ( select distinct top 5 Country, City as Town, 1 as N from T order by "
               "Country, 3, City ) AS Q ORDER BY Country,N,Town");
    expectText(derivationOf(Engine::Access, towns, {u"Town"_s}, dbAccess).withFieldsOf(places),
               "SELECT * FROM ( select distinct top 5 Country, City as Town, 1 as N from T order "
               "by Country, 3, City ) AS Q ORDER BY Country,N,Town");
    const QString both = places.withFields({places.listed().at(0), town});
    expectText(both, "SELECT distinct top 5 Country,City as Town FROM T ORDER BY Country,T.City");
    expectText(derivationOf(Engine::Access, both, {u"Country"_s, u"Town"_s}, dbAccess).withFieldsOf(places),
               "SELECT distinct top 5 Country, City as Town, 1 as N FROM T ORDER BY Country,T.City");
    const Derivation part =
        derivationOf(Engine::Access, u"select distinct top 5 T.city as Town from T"_s, {u"Town"_s}, dbAccess);
    expectText(
        places.withFieldsOf(part),
        "SELECT Town FROM ( select distinct top 5 Country, City as Town, 1 as N from T order by Country, "
        "3, City ) AS Q ORDER BY Country,N,Town");
    EXPECT_EQ(derivationOf(Engine::Access,
                           u"select distinct top 5 A.City, B.City from A, B order by A.City"_s,
                           {u"City"_s, u"City"_s}, dbAccess)
                  .whyNot(DerivationStep::Fields),
              QueryTexts::EqualNames.arg(u"City"_s));
    EXPECT_EQ(
        derivationOf(Engine::SqlServer, u"select distinct top 5 A, B + 1 from T order by A"_s, {u"A"_s, {}})
            .whyNot(DerivationStep::Fields),
        QueryTexts::UnnamedField);
}

TEST(DerivationText, NamesThatNeedQuotesKeepThem)
{
    expectText(derivationOf(Engine::MySQL, u"select Name `a b`, count(*) from T group by Name"_s,
                            {u"a b"_s, u"count(*)"_s})
                   .withSort(u"`a b`"_s),
               "SELECT * FROM ( select Name `a b`, count(*) from T group by Name ) AS Q ORDER BY `a b`");
    EXPECT_EQ(derivationOf(Engine::PostgreSQL, u"select count(*) as \"N\" from t"_s, {u"N"_s}).written(),
              QStringList(u"\"N\""_s));
}

TEST(DerivationText, WhatCannotBeDoneSaysWhyBeforeAnythingIsTyped)
{
    const auto whyNot = [](const QString &statement, const QStringList &names) {
        return derivationOf(Engine::PostgreSQL, statement, names).whyNot(DerivationStep::Condition);
    };
    EXPECT_EQ(whyNot(u"select A, A from T union select B, B from U"_s, {u"A"_s, u"a"_s}),
              QueryTexts::EqualNames.arg(u"A"_s));
    EXPECT_EQ(whyNot(u"select max(A) from T"_s, {QString()}), QueryTexts::UnnamedField);
    EXPECT_EQ(whyNot(u"values (1)"_s, {u"A"_s}), QueryTexts::NotDerived);
    EXPECT_EQ(whyNot(u"select A from T for update"_s, {u"A"_s}), QueryTexts::NotDerived);
    EXPECT_EQ(whyNot(u"select A, A from T"_s, {u"A"_s, u"A"_s}), QString()) << "named by their values";
    const Derivation united =
        derivationOf(Engine::SQLite, u"select A, A from T union select 1, 2"_s, {u"A"_s, u"A"_s});
    EXPECT_EQ(united.withCondition(u"A = 1"_s) + united.withSort(u"A"_s) + united.withFields({u"A"_s}),
              QString());
}

// SQLite takes such a name for a value and gives the field of a table another one.
TEST(DerivationText, AFieldThatATableWouldRenameSaysWhyBeforeAnythingIsTyped)
{
    const auto whyNot = [](Engine engine, const QString &statement, DerivationStep step) {
        return derivationOf(engine, statement, {u"A"_s, u"fAlse"_s}).whyNot(step);
    };
    const QString grouped = u"select A, max(B) as \"fAlse\" from T group by A"_s;
    for (const auto step : {DerivationStep::Condition, DerivationStep::Sort, DerivationStep::Fields}) {
        for (const Engine engine : {Engine::SQLite, Engine::Access})
            EXPECT_EQ(whyNot(engine, grouped, step), QueryTexts::RenamedField.arg(u"fAlse"_s));
        for (const Engine engine : {Engine::PostgreSQL, Engine::MySQL, Engine::SqlServer, Engine::Oracle})
            EXPECT_EQ(whyNot(engine, grouped, step), QString());
        EXPECT_EQ(whyNot(Engine::SQLite, u"select A, B as \"fAlse\" from T where A > 1"_s, step), QString());
        EXPECT_EQ(whyNot(Engine::SQLite, u"select distinct A, [false] from T"_s, step), QString());
    }
}

TEST(DerivationText, TheWholeTableHasNoConditionInAnyUnitedSelect)
{
    const auto whole = [](const QString &statement) {
        return derivationOf(Engine::PostgreSQL, statement, {u"a"_s}).withoutConditions();
    };
    expectText(whole(u"(select a from T where b = 1) union all (select a from U where c in (select d from V "
                     "where e = 2) order by a limit 3)"_s),
               "(select a from T ) union all (select a from U order by a limit 3)");
    expectText(
        whole(u"((select a from T where b = 1) union select a from U where c = 1) except select a from V"_s),
        "((select a from T ) union select a from U ) except select a from V");
    expectText(whole(u"with W as (select a from T where b = 1) (select a from W where a > 1);"_s),
               "with W as (select a from T where b = 1) (select a from W );");
    const auto wholeOfMySql = [](const QString &statement) {
        return derivationOf(Engine::MySQL, statement, {u"a"_s}).withoutConditions();
    };
    expectText(wholeOfMySql(u"select a from T /*!50000 where b = 1 */ group by a"_s),
               "select a from T /*!50000 */ group by a");
    expectText(wholeOfMySql(u"select a from T where b = 1 /*! and c = 2 */ group by a"_s),
               "select a from T group by a");
    expectText(whole(u"select (select max(a) from T where b = 1) as a from U where c = (1) group by d"_s),
               "select (select max(a) from T where b = 1) as a from U group by d");
}

TEST(DerivationText, ReadsTextsAsTheModeOfTheSessionDoes)
{
    const QString statement = uR"(select F from T where F = 'C:\' group by F order by F)"_s;
    const EngineMode plain{Engine::MySQL, {.backslashEscapes = false}};
    expectText(derivationOf(plain, statement, {u"F"_s}).withCondition(u"F > 1"_s),
               R"(SELECT * FROM ( select F from T where F = 'C:\' group by F ) AS Q WHERE F > 1 ORDER BY F)");
    const EngineMode ansi{Engine::MySQL, {.ansiQuotes = true}};
    const QString quoted = uR"(select distinct "a\" from T order by 1)"_s;
    expectText(derivationOf(ansi, quoted, {uR"(a\)"_s}).withCondition(u"1"_s),
               R"(SELECT distinct "a\" FROM T WHERE 1 ORDER BY "a\")");
}

TEST(DerivationText, ChosenFieldsAreFoundAgainByValueAndName)
{
    const Dialect dialect = dialectOf(dbAccess, Engine::SQLite);
    const std::vector<SourceField> fields{
        {u"ID"_s, 3, u"Ord"_s}, {u"Cust"_s, 3, u"Ord"_s}, {u"ID"_s, 3, u"Cust"_s}};
    const Derivation stars(u"select o.*, c.* from Ord o, Cust c where o.Cust = c.ID"_s, fields, dialect);
    const Derivation bothIds(u"select o.ID,c.ID from Ord o, Cust c where o.Cust = c.ID"_s,
                             {{u"ID"_s, 3, u"Ord"_s}, {u"ID"_s, 3, u"Cust"_s}}, dialect);
    EXPECT_EQ(stars.listedFor(bothIds), (QStringList{u"o.ID"_s, u"c.ID"_s}));

    const QStringList twice{u"n"_s, u"m"_s};
    const Derivation aliases = derivationOf(Engine::SQLite, u"select Name as n, Name as m from Ord"_s, twice);
    const Derivation second = derivationOf(Engine::SQLite, u"select Name as m from Ord"_s, {u"m"_s});
    EXPECT_EQ(aliases.listedFor(second), QStringList(u"Name as m"_s));

    const Derivation text =
        derivationOf(Engine::SQLite, u"select 'A' as x, ID from Ord"_s, {u"x"_s, u"ID"_s});
    const Derivation other = derivationOf(Engine::SQLite, u"select 'a' as x from Ord"_s, {u"x"_s});
    EXPECT_EQ(text.listedFor(other), QStringList()) << "not that text";
}

namespace {

struct OpenCase
{
    const char *name;
    Engine engine;
    QString statement;
    QString fields;       // the result's, with | between
    const char *filtered; // under "F = 1", where F is what is written for the last field
};

class OpenText : public testing::TestWithParam<OpenCase>
{
};

} // namespace

TEST_P(OpenText, IsFilteredByTheValueOfAField)
{
    const OpenCase &c = GetParam();
    const Derivation derivation = derivationOf(c.engine, c.statement, c.fields.split(u'|'));
    expectText(derivation.withCondition(derivation.written().last() + u" = 1"_s), c.filtered);
}

INSTANTIATE_TEST_SUITE_P(
    , OpenText,
    testing::Values(
        // A last word is an alias only if the result names the field like this.
        OpenCase{"Interval", Engine::PostgreSQL, u"select D + interval '1' month from T"_s, u"?column?"_s,
                 "SELECT D + interval '1' month FROM T WHERE (D + interval '1' month) = 1"},
        OpenCase{"TypeOfTwoWords", Engine::PostgreSQL, u"select Q::double precision from T"_s, u"q"_s,
                 "SELECT Q::double precision FROM T WHERE (Q::double precision) = 1"},
        OpenCase{"TypeAndAlias", Engine::PostgreSQL, u"select Q::double precision d from T"_s, u"d"_s,
                 "SELECT Q::double precision d FROM T WHERE (Q::double precision) = 1"},
        OpenCase{"DistinctFrom", Engine::SQLite, u"select N is distinct from 'b' from T"_s,
                 u"N is distinct from 'b'"_s,
                 "SELECT N is distinct from 'b' FROM T WHERE (N is distinct from 'b') = 1"},
        OpenCase{"IntervalUnit", Engine::MySQL, u"select D + interval 1 day from T"_s,
                 u"D + interval 1 day"_s, "SELECT D + interval 1 day FROM T WHERE (D + interval 1 day) = 1"},
        OpenCase{"DateText", Engine::MySQL, u"select date '2024-05-01' from T"_s, u"DATE '2024-05-01'"_s,
                 "SELECT date '2024-05-01' FROM T WHERE (CASE WHEN 1=1 THEN date '2024-05-01' END) = 1"},
        OpenCase{"Binary", Engine::MySQL, u"select binary N from T"_s, u"binary N"_s,
                 "SELECT binary N FROM T WHERE (binary N) = 1"},
        OpenCase{"TextsInARow", Engine::MySQL, u"select 'an' 'n' from T"_s, u"an"_s,
                 "SELECT 'an' 'n' FROM T WHERE (CASE WHEN 1=1 THEN 'an' 'n' END) = 1"},
        OpenCase{"TextAsAlias", Engine::SQLite, u"select A 'n' from T"_s, u"n"_s,
                 "SELECT A 'n' FROM T WHERE A = 1"},
        OpenCase{"ListWord", Engine::MySQL, u"select straight_join T.A, U.B b from T, U"_s, u"A|b"_s,
                 "SELECT straight_join T.A, U.B b FROM T, U WHERE U.B = 1"},
        // A list of several entries in one field.
        OpenCase{"Array", Engine::PostgreSQL, u"select array[A, B] from T"_s, u"array"_s,
                 "SELECT array[A, B] FROM T WHERE (array[A, B]) = 1"},
        OpenCase{"Escape", Engine::PostgreSQL, uR"(select E'it\'s, from x' as e, A as b from T)"_s, u"e|b"_s,
                 R"(SELECT E'it\'s, from x' as e, A as b FROM T WHERE A = 1)"},
        OpenCase{"ArrayAndAlias", Engine::PostgreSQL, u"select array[A, B] a from T"_s, u"a"_s,
                 "SELECT array[A, B] a FROM T WHERE (array[A, B]) = 1"},
        OpenCase{"ConstantWithPrefix", Engine::PostgreSQL, uR"(select A, E'it\'s' as e from T)"_s, u"a|e"_s,
                 R"(SELECT A, E'it\'s' as e FROM T WHERE (CASE WHEN 1=1 THEN E'it\'s' END) = 1)"},
        // Fields that the list can't be matched with.
        OpenCase{"Row", Engine::PostgreSQL, u"select (r).* from T"_s, u"a|b"_s,
                 "SELECT * FROM ( select (r).* from T ) AS Q WHERE b = 1"},
        OpenCase{"Series", Engine::PostgreSQL, u"select generate_series(1, 3) as g from T"_s, u"g"_s,
                 "SELECT * FROM ( select generate_series(1, 3) as g from T ) AS Q WHERE g = 1"},
        OpenCase{"Regression", Engine::PostgreSQL, u"select regr_count(A, B) as r from T"_s, u"r"_s,
                 "SELECT * FROM ( select regr_count(A, B) as r from T ) AS Q WHERE r = 1"},
        OpenCase{"UnknownAggregate", Engine::PostgreSQL, u"select mine(A) filter (where B > 1) as r from T"_s,
                 u"r"_s,
                 "SELECT * FROM ( select mine(A) filter (where B > 1) as r from T ) AS Q WHERE r = 1"},
        OpenCase{"Deviation", Engine::MySQL, u"select std(A) as s from T"_s, u"s"_s,
                 "SELECT * FROM ( select std(A) as s from T ) AS Q WHERE s = 1"},
        OpenCase{"Brackets", Engine::MySQL, u"(select A from T) union (select B from U) order by 1"_s, u"A"_s,
                 "SELECT * FROM ( (select A from T) union (select B from U) ) AS Q WHERE A = 1 ORDER BY A"},
        OpenCase{"AliasFirst", Engine::SqlServer, u"select A, Twice = Q * 2 from T"_s, u"A|Twice"_s,
                 "SELECT A, Twice = Q * 2 FROM T WHERE (Q * 2) = 1"},
        OpenCase{
            "Ties", Engine::SqlServer, u"select top (5) with ties A, B from T order by C desc"_s, u"A|B"_s,
            "SELECT A,B FROM ( select top (5) with ties A, B, C AS SortKey1 from T order by C desc ) AS Q "
            "WHERE B = 1 ORDER BY SortKey1 desc"},
        OpenCase{"FirstRows", Engine::Oracle, u"select A, B from T order by A fetch first 3 rows with ties"_s,
                 u"A|B"_s,
                 "SELECT * FROM ( select A, B from T order by A fetch first 3 rows with ties ) Q WHERE B = 1 "
                 "ORDER BY A"},
        // The sort says which rows are left.
        OpenCase{"Distinct", Engine::PostgreSQL, u"select distinct C, A as b from T where D = 2 order by b"_s,
                 u"c|b"_s, "SELECT distinct C, A as b FROM T where D = 2 AND A = 1 ORDER BY A"},
        OpenCase{"DistinctOn", Engine::PostgreSQL, u"select distinct on (c) c, a from T order by c, b desc"_s,
                 u"c|a"_s,
                 "SELECT * FROM ( select distinct on (c) c, a from T order by c, b desc ) AS Q WHERE a = 1"},
        // What follows the last word must not swallow the condition.
        OpenCase{"NumberSign", Engine::MySQL, u"select A, B from T # all"_s, u"A|B"_s,
                 "SELECT A, B FROM T WHERE B = 1"},
        // Which MySQL compares without the quotes that it shows.
        OpenCase{"JsonExtract", Engine::MySQL, u"select A, json_extract(B, '$.t') as t from T"_s, u"A|t"_s,
                 "SELECT A, json_extract(B, '$.t') as t FROM T WHERE concat(json_extract(B, '$.t')) = 1"},
        OpenCase{"JsonExtractInside", Engine::MySQL,
                 u"select json_unquote(json_extract(B, '$.t')) t from T"_s, u"t"_s,
                 "SELECT json_unquote(json_extract(B, '$.t')) t FROM T WHERE "
                 "json_unquote(json_extract(B, '$.t')) = 1"},
        // Words that MySQL takes at the beginning of a statement only.
        OpenCase{
            "FirstListWord", Engine::MySQL,
            u"select sql_no_cache straight_join A, count(*) as N from T group by A"_s, u"A|N"_s,
            "SELECT * FROM ( select straight_join A, count(*) as N from T group by A ) AS Q WHERE N = 1"},
        OpenCase{
            "FirstListWordInBrackets", Engine::MySQL,
            u"(select /*! sql_cache */ distinct high_priority A from T) union (select A from U)"_s, u"A"_s,
            "SELECT * FROM ( (select /*! */ distinct A from T) union (select A from U) ) AS Q WHERE A = 1"},
        OpenCase{"NoListWord", Engine::PostgreSQL, u"select sql_no_cache, count(*) as n from T group by 1"_s,
                 u"sql_no_cache|n"_s,
                 "SELECT * FROM ( select sql_no_cache, count(*) as n from T group by 1 ) AS Q WHERE n = 1"},
        // Version comments of MySQL: words without effect, and a condition that some versions skip.
        OpenCase{
            "VersionComment", Engine::MySQL,
            u"select /*!40001 sql_no_cache */ /*M!100100 high_priority */ A, B from T where C = 2"_s,
            u"A|B"_s,
            "SELECT /*!40001 sql_no_cache */ /*M!100100 high_priority */ A, B FROM T where C = 2 AND B = 1"},
        OpenCase{"VersionedCondition", Engine::MySQL, u"select A, B from T where C = 2 /*! or D = 1 */"_s,
                 u"A|B"_s,
                 "SELECT * FROM ( select A, B from T where C = 2 /*! or D = 1 */ ) AS Q WHERE B = 1"},
        OpenCase{"VersionedTable", Engine::MySQL,
                 u"select A, B from (select A, B from T where C = 2 /*! or D = 1 */) as Q"_s, u"A|B"_s,
                 "SELECT A, B FROM (select A, B from T where C = 2 /*! or D = 1 */) as Q WHERE B = 1"},
        OpenCase{"VersionedList", Engine::MySQL, u"select /*! distinct */ A, B from T"_s, u"A|B"_s,
                 "SELECT * FROM ( select /*! distinct */ A, B from T ) AS Q WHERE B = 1"},
        OpenCase{"NumberSignInside", Engine::MySQL, u"select A, B from T # where\n where A = 2"_s, u"A|B"_s,
                 "select A, B from T # where where A = 2 AND B = 1"},
        OpenCase{"Dashes", Engine::SQLite, u"select A, B from T --all"_s, u"A|B"_s,
                 "SELECT A, B FROM T WHERE B = 1"},
        OpenCase{"Semicolon", Engine::MySQL, u"select A, B from T where A--1 > 2;"_s, u"A|B"_s,
                 "SELECT A, B FROM T where A--1 > 2 AND B = 1"},
        OpenCase{"OrInText", Engine::MySQL, uR"(select A, B from T where A = 'x\' or y')"_s, u"A|B"_s,
                 R"(select A, B from T where A = 'x\' or y' AND B = 1)"},
        OpenCase{"OrAfterText", Engine::MySQL, uR"(select A, B from T where A = 'x\'' or B = 2)"_s, u"A|B"_s,
                 R"(select A, B from T where (A = 'x\'' or B = 2) AND B = 1)"}),
    [](const auto &parameter) { return std::string(parameter.param.name); });

TEST(DerivationText, AConditionMayNameAnAliasWhereTheEngineTakesIt)
{
    const auto list = [](Engine engine, const QString &statement) {
        return derivationOf(engine, statement, {u"b"_s, u"n"_s}).filteredResult().list;
    };
    EXPECT_EQ(list(Engine::SQLite, u"select A as b, upper(C) n from T where C > 1"_s),
              u"A as b, upper(C) n"_s);
    EXPECT_EQ(list(Engine::PostgreSQL, u"select A as b, upper(C) n from T where C > 1"_s), u"*"_s);
    EXPECT_EQ(list(Engine::SQLite, u"select A as b, count(*) n from T group by A"_s), u"*"_s)
        << "of the table";
}

TEST(DerivationText, AChoiceOfFieldsKeepsTheSortOfDistinctOn)
{
    const Derivation derivation = derivationOf(
        Engine::PostgreSQL, u"select distinct on (c) c, a from T order by c, b desc"_s, {u"c"_s, u"a"_s});
    expectText(derivation.withFields({u"a"_s}), "SELECT distinct on (c) a FROM T ORDER BY c,b desc");
}
