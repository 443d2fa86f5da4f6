// What engines without a server here are given.
#include "query/derivation/Derivation.h"

#include "query/QueryTexts.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

Derivation derive(Engine engine, const QString &statement, const QStringList &names,
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
    expectText(
        derive(Engine::Oracle, u"select distinct A from T order by A"_s, {u"A"_s}).withCondition(u"A = 1"_s),
        "SELECT * FROM ( select distinct A from T ) Q WHERE A = 1 ORDER BY A");
}

TEST(DerivationText, ALimitKeepsItsSortInsideAndHasItOutsideAsWell)
{
    expectText(derive(Engine::SqlServer, u"select top 5 A, B from T order by B desc"_s, {u"A"_s, u"B"_s})
                   .withCondition(u"A = 1"_s),
               "SELECT * FROM ( select top 5 A, B from T order by B desc ) AS Q WHERE A = 1 ORDER BY B desc");
    expectText(
        derive(Engine::Oracle, u"select A from T where rownum <= 5"_s, {u"A"_s}).withCondition(u"A = 1"_s),
        "SELECT * FROM ( select A from T where rownum <= 5 ) Q WHERE A = 1");
}

TEST(DerivationText, WithGoesToTheFront)
{
    expectText(derive(Engine::SqlServer,
                      u"with c as (select A from T) select A, count(*) as N from c group by A"_s,
                      {u"A"_s, u"N"_s})
                   .withSort(u"N"_s),
               "with c as (select A from T) SELECT * FROM ( select A, count(*) as N from c group by A ) AS Q "
               "ORDER BY "
               "N");
}

TEST(DerivationText, SqlServerHasNoSortInATable)
{
    // A sort by what the result doesn't hold can't go outside.
    expectText(derive(Engine::SqlServer, u"select A from T group by A order by max(B)"_s, {u"A"_s})
                   .withCondition(u"A = 1"_s),
               "SELECT * FROM ( select A from T group by A ) AS Q WHERE A = 1");
}

TEST(DerivationText, TopAndDistinctStayInFrontOfChosenFields)
{
    for (const auto &[words, engine] :
         {std::pair(u"top 5"_s, Engine::SqlServer), std::pair(u"top 10 percent"_s, Engine::Access),
          std::pair(u"top (5) with ties"_s, Engine::SqlServer), std::pair(u"distinct"_s, Engine::MySQL),
          std::pair(u"DISTINCTROW"_s, Engine::Access)}) {
        const Derivation derivation =
            derive(engine, u"select "_s + words + u" A, B as C from T where A > 1"_s, {u"A"_s, u"C"_s});
        expectText(derivation.withFields({derivation.listed().at(1)}),
                   qPrintable(u"SELECT "_s + words + u" B as C FROM T where A > 1"_s));
    }
}

TEST(DerivationText, NamesThatNeedQuotesKeepThem)
{
    expectText(derive(Engine::MySQL, u"select Name `a b`, count(*) from T group by Name"_s,
                      {u"a b"_s, u"count(*)"_s})
                   .withSort(u"`a b`"_s),
               "SELECT * FROM ( select Name `a b`, count(*) from T group by Name ) AS Q ORDER BY `a b`");
    EXPECT_EQ(derive(Engine::PostgreSQL, u"select count(*) as \"N\" from t"_s, {u"N"_s}).written(),
              QStringList(u"\"N\""_s));
}

TEST(DerivationText, WhatCannotBeDoneSaysWhyBeforeAnythingIsTyped)
{
    const auto whyNot = [](const QString &statement, const QStringList &names) {
        return derive(Engine::PostgreSQL, statement, names).whyNot(DerivationStep::Condition);
    };
    EXPECT_EQ(whyNot(u"select A, A from T union select B, B from U"_s, {u"A"_s, u"a"_s}),
              QueryTexts::EqualNames.arg(u"A"_s));
    EXPECT_EQ(whyNot(u"select max(A) from T"_s, {QString()}), QueryTexts::UnnamedField);
    EXPECT_EQ(whyNot(u"values (1)"_s, {u"A"_s}), QueryTexts::NotDerived);
    EXPECT_EQ(whyNot(u"select A from T for update"_s, {u"A"_s}), QueryTexts::NotDerived);
    EXPECT_EQ(whyNot(u"select A, A from T"_s, {u"A"_s, u"A"_s}), QString()) << "named by their values";
    const Derivation united =
        derive(Engine::SQLite, u"select A, A from T union select 1, 2"_s, {u"A"_s, u"A"_s});
    EXPECT_EQ(united.withCondition(u"A = 1"_s) + united.withSort(u"A"_s) + united.withFields({u"A"_s}),
              QString());
}

TEST(DerivationText, FieldsOfEqualNamesAreToldApartByTheirTable)
{
    const Derivation joined(u"select * from Ord o join Cust on o.C = Cust.ID"_s,
                            {{u"ID"_s, 3, u"Ord"_s}, {u"C"_s, 3, u"Ord"_s}, {u"ID"_s, 3, u"Cust"_s}},
                            dialectOf(dbAccess, Engine::SQLite));
    EXPECT_EQ(joined.written(), (QStringList{u"o.ID"_s, u"C"_s, u"Cust.ID"_s}));
    const Derivation itself(u"select * from Ord a join Ord b on a.ID = b.C"_s,
                            {{u"ID"_s, 3, u"Ord"_s}, {u"ID"_s, 3, u"Ord"_s}},
                            dialectOf(dbAccess, Engine::SQLite));
    EXPECT_EQ(itself.written(), (QStringList{QString(), QString()})) << "no name is unmistakable";
}
