// What engines without a server here are given.
#include "DerivationTexts.h"

using namespace KovaTest;
using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

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
