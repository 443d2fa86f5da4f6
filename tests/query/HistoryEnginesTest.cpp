// The history and the filter manager over engines that are not here: a reader answers instead of them.
#include "query/clsFilterManagement.h"

#include "MemorySource.h"
#include "query/QueryTexts.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// Knows what an engine would answer from the statement's list.
class ListReader final : public FieldReader
{
public:
    explicit ListReader(Engine engine = Engine::Access) : m_engine(engine) {}
    bool Open(const QString &) override { return true; }
    EngineMode engineOf(const QString &) override { return m_engine; }
    std::optional<std::vector<SourceField>> Read(const QString &, const QString &statement) override
    {
        const SqlScanner sql(statement);
        const SelectParts parts = SelectParts::of(sql);
        if (!parts.items.empty() && parts.items.front().isStar)
            return Read({}, Derivation(statement, {}, dialectOf(dbAccess, Engine::Access)).table());
        std::vector<SourceField> fields;
        for (const SelectParts::Item &item : parts.items)
            fields.push_back({sql.name(item.tokens.end - 1), 202});
        return fields;
    }

private:
    Engine m_engine;
};

// What a load sets.
void setUp(clsFilterManagement &manager, AllDBType type, const QString &all, const QString &part = {},
           const QString &sort = {})
{
    manager.SetDBType(type);
    manager.SetDBConnString(u"server"_s);
    manager.SetAllFields(all);
    manager.SetShowFields(part);
    manager.SetOrderFields(sort);
    manager.SetOriginFilter(all);
    manager.SetSQLInitData();
}

} // namespace

TEST(HistorySort, OfTheHostIsByTheFieldThatTheWholeListMeans)
{
    ListReader reader(Engine::PostgreSQL);
    MemoryChooser chooser;
    clsFilterManagement manager{&reader, &chooser};
    const QString all = u"select e.id, e.name, d.city from E e join D d on d.id = e.dept"_s;
    setUp(manager, dbOracle, all, u"select e.id from E e join D d on d.id = e.dept"_s, u"name desc"_s);
    colShowSQLSentences &history = manager.SQLManager();
    history.AddCurrentSQL(all, AllFieldsShown);
    history.GetCurrSQLFieldsStatus();
    QString part;
    EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, part));
    EXPECT_EQ(part.simplified(), u"SELECT e.id FROM E e join D d on d.id = e.dept ORDER BY e.name desc"_s);
}

// After the user has removed the sort, the host's applies again, although it names fields that the part
// lacks.
TEST(HistorySort, OfTheHostComesBackForPartFieldsOfADistinct)
{
    ListReader reader;
    MemoryChooser chooser;
    clsFilterManagement manager{&reader, &chooser};
    const QString all = u"select distinct Name, Cust as N1, Qty as Town, Qty * 2 as City from Ord"_s;
    setUp(manager, dbAccess, all, u"select Cust as N1 from Ord"_s,
          u"N1 desc, Town desc, Name desc, City desc"_s);
    colShowSQLSentences &history = manager.SQLManager();
    history.AddCurrentSQL(u"SELECT distinct Cust as N1 FROM Ord WHERE Cust like 2"_s, PartFieldsShown);
    history.GetCurrSQLFieldsStatus();
    history.UpdateSelSortFields({});
    EXPECT_EQ(manager.GetCurrentSQL20(PartFieldsStatement).simplified(),
              u"SELECT distinct Cust as N1 FROM Ord WHERE Cust like 2 ORDER BY Ord.Cust desc"_s);
}

// The database is asked about a type that its driver can't name, and about no other.
TEST(HistorySort, FieldsWithoutAnOrderAreOfferedWithTheReason)
{
    MemoryReader reader;
    reader.mode = Engine::PostgreSQL;
    const QString all = u"select id, doc as d, mood from T"_s;
    reader.fieldsByStatement = {
        {all, {{u"id"_s, 3}, {u"d"_s, 202, {}, false}, {u"mood"_s, 202, {}, false}}},
        {u"SELECT * FROM (\nSELECT mood\nFROM T\nORDER BY mood\n) AS Q"_s, {{u"mood"_s, 202}}}};
    MemoryChooser chooser;
    clsFilterManagement manager{&reader, &chooser};
    setUp(manager, dbOracle, all);
    const QString reason = QueryTexts::TypeNotSorted.arg(u"d"_s);
    EXPECT_EQ(manager.SQLManager().WhyNotSorted(all, 0), QString());
    EXPECT_EQ(manager.SQLManager().WhyNotSorted(all, 1), reason);
    EXPECT_EQ(manager.SQLManager().WhyNotSorted(all, 2), QString());
    EXPECT_EQ(manager.SQLManager().WhyNotSorted(all, 3), QString());
    // The fields of a star are those of the result.
    const QString derived =
        u"SELECT * FROM (\nselect id, doc as d\nfrom T\ngroup by id, doc\n) AS Q WHERE id = 1"_s;
    reader.fieldsByStatement.insert(derived, {{u"id"_s, 3}, {u"d"_s, 202, {}, false}});
    EXPECT_EQ(manager.SQLManager().WhyNotSorted(derived, 1), reason);
    QString chosen;
    manager.GetPartSortSelFields(all, {}, chosen);
    EXPECT_EQ(chooser.allFields, QStringList({u"id"_s, u"d"_s, u"mood"_s}));
    EXPECT_EQ(chooser.whyNotSorted, QStringList({{}, reason, {}}));
}

// Where the order of a table is lost, the sort uses a field of the table that the result lacks.
TEST(HistorySort, ByWhatTheResultLacksIsOfferedAsItIsWritten)
{
    ListReader reader(Engine::MySQL);
    MemoryChooser chooser;
    clsFilterManagement manager{&reader, &chooser};
    const QString all = u"select A, B from T group by A, B order by max( C ) desc, A"_s;
    setUp(manager, dbSQLServer, all);
    manager.SQLManager().AddCurrentSQL(all, AllFieldsShown);
    QString chosen;
    manager.GetPartSortSelFields(all, u"B"_s, chosen);
    EXPECT_EQ(chooser.allFields, QStringList({u"A"_s, u"B"_s}));
    chooser.choice = u"SortKey1 desc,A"_s;
    EXPECT_TRUE(manager.GetPartSortSelFields(all, u"SortKey1 desc,A,B"_s, chosen));
    EXPECT_EQ(chooser.allFields, QStringList({u"A"_s, u"B"_s, u"max( C )"_s}));
    EXPECT_EQ(chooser.written, QStringList({u"A"_s, u"B"_s, u"SortKey1"_s}));
    EXPECT_EQ(chosen, u"SortKey1 desc,A"_s);
}

// TOP selects its rows before a condition, which can nevertheless use fields that were not chosen.
TEST(HistoryDerivationOfTop, AFilterCanNameFieldsThatWereNotChosen)
{
    ListReader reader;
    MemoryChooser chooser;
    clsFilterManagement manager(&reader, &chooser);
    colShowSQLSentences &history = manager.SQLManager();
    const QString all = u"select top 5 A, B from T order by B"_s;
    setUp(manager, dbAccess, all);
    history.AddCurrentSQL(all, AllFieldsShown);
    history.GetCurrSQLFieldsStatus();

    QString chosen;
    chooser.choice = u"B"_s;
    ASSERT_TRUE(manager.GetPartShowSelFields(all, {}, all, chosen));
    EXPECT_EQ(chosen.simplified(), u"SELECT top 5 B FROM T ORDER BY B"_s);
    history.AddCurrentSQL(chosen, PartFieldsShown, history.GetFieldsStatement(chosen));
    EXPECT_TRUE(history.CanName(*history.DataFields().Item(1)));
    EXPECT_EQ(history.GetColumnRealName(chosen, {u"B"_s}, 0), u"B"_s);

    QString filtered;
    ASSERT_TRUE(history.GetNextSQLBySort(u"A DESC"_s, filtered));
    EXPECT_EQ(filtered.simplified(),
              u"SELECT B FROM ( SELECT top 5 A, B FROM T ORDER BY B ) AS Q ORDER BY A DESC"_s);
    ASSERT_TRUE(history.GetNextSQLByFilter(u"A = 1"_s, filtered));
    EXPECT_EQ(filtered.simplified(),
              u"SELECT B FROM ( SELECT top 5 A, B FROM T ORDER BY B ) AS Q WHERE A = 1 ORDER BY B"_s);
    history.AddCurrentSQL(filtered, PartFieldsShown);
    QString next;
    ASSERT_TRUE(history.GetNextShowSQL(AllFieldsStatement, next));
    EXPECT_EQ(next.simplified(),
              u"SELECT * FROM ( SELECT top 5 A, B FROM T ORDER BY B ) AS Q WHERE A = 1 ORDER BY B"_s);
    chooser.choice = u"A"_s;
    ASSERT_TRUE(manager.GetPartShowSelFields(all, chosen, filtered, chosen));
    EXPECT_EQ(chosen.simplified(),
              u"SELECT A FROM ( SELECT top 5 A, B FROM T ORDER BY B ) AS Q WHERE A = 1 ORDER BY B"_s);
    EXPECT_EQ(chooser.allFields, (QStringList{u"A"_s, u"B"_s}));
    ASSERT_TRUE(manager.GetRequirePartSQL(filtered, PartsWithoutCondition, next));
    EXPECT_EQ(next.simplified(), u"SELECT B FROM ( select top 5 A, B from T order by B ) AS Q ORDER BY B"_s);
}

// Other fields would be other records.
TEST(HistoryDerivationOfTop, AFilterOfDistinctRecordsCanNameThoseThatAreShown)
{
    ListReader reader;
    clsFilterManagement manager(&reader);
    const QString all = u"select distinct top 5 A, B from T order by A"_s;
    setUp(manager, dbAccess, all);
    colShowSQLSentences &history = manager.SQLManager();
    history.AddCurrentSQL(all, AllFieldsShown);
    history.GetCurrSQLFieldsStatus();
    const clsDataField a = *history.DataFields().Item(1);
    EXPECT_TRUE(history.CanName(a));
    QString next;
    EXPECT_TRUE(history.GetNextSQLByFilter(u"A = 1"_s, next));
    history.AddCurrentSQL(next, AllFieldsShown);
    EXPECT_TRUE(history.CanName(a)) << qPrintable(next);
    history.AddCurrentSQL(u"SELECT B FROM ("_s + all + u") AS Q"_s, PartFieldsShown);
    EXPECT_FALSE(history.CanName(a));
}

TEST(HistoryDerivationOfTop, AHostsPartStatementMayRenameFields)
{
    ListReader reader;
    clsFilterManagement manager(&reader);
    const QString all = u"select top 5 Country, City from T order by Country"_s;
    manager.SetDBType(dbAccess);
    manager.SetDBConnString(u"memory"_s);
    manager.SetAllFields(all);
    manager.SetShowFields(u"select top 5 City as Country from T"_s);
    manager.SetOriginFilter(all);
    manager.SetSQLInitData();
    colShowSQLSentences &history = manager.SQLManager();
    history.AddCurrentSQL(all, AllFieldsShown);
    history.GetCurrSQLFieldsStatus();
    QString part;
    EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, part));
    EXPECT_EQ(part.simplified(), u"SELECT top 5 City FROM T ORDER BY Country"_s);
    EXPECT_EQ(history.PartFields(), QList<bool>({false, true}));
}

// SQLite names a field of a table by its place if its name is a value.
TEST(HistoryDerivationOfTop, WhatCannotBeATableIsRefusedAlsoToAChoiceThatCan)
{
    ListReader reader;
    clsFilterManagement manager(&reader);
    colShowSQLSentences &history = manager.SQLManager();
    const QString all = u"select top 5 A, B as [True] from T order by A"_s;
    setUp(manager, dbAccess, all);
    const QString reason = QueryTexts::RenamedField.arg(u"True"_s);
    history.AddCurrentSQL(all, AllFieldsShown);
    for (const auto step : {DerivationStep::Condition, DerivationStep::Sort})
        EXPECT_EQ(history.WhyNot(step), reason);
    EXPECT_EQ(history.WhyNot(DerivationStep::Fields), QString());
    EXPECT_EQ(history.WhyNoAllFields(), QString());
    history.AddCurrentSQL(u"SELECT top 5 A FROM T ORDER BY A"_s, PartFieldsShown);
    EXPECT_EQ(history.WhyNoAllFields(), QString());
    QString filtered;
    ASSERT_TRUE(history.GetNextSQLByFilter(u"A = 1"_s, filtered));
    history.AddCurrentSQL(filtered, PartFieldsShown);
    EXPECT_EQ(history.WhyNot(DerivationStep::Sort), QString());
    EXPECT_EQ(history.WhyNot(DerivationStep::Fields), reason);
    EXPECT_EQ(history.WhyNoAllFields(), reason);
    EXPECT_EQ(history.WhyNoPartFields(), reason);
}
