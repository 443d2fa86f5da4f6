// The history and the filter manager over statements that plain text work can't derive from.
#include "query/clsFilterManagement.h"

#include "MemorySource.h"
#include "SampleDatabase.h"
#include "query/QueryTexts.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class HistoryDerivation : public testing::Test
{
protected:
    void load(const QString &statement, const QString &part = {}, const QString &sort = {})
    {
        manager.SetDBType(dbAccess);
        manager.SetDBConnString(u"memory"_s);
        manager.SetAllFields(statement);
        manager.SetShowFields(part);
        manager.SetOrderFields(sort);
        manager.SetOriginFilter(statement);
        manager.SetSQLInitData();
        first = manager.GetCurrentSQL20(FirstStatement);
        show(first);
    }
    void show(const QString &statement, const QString &part = colShowSQLSentences::NoPartField())
    {
        history.AddCurrentSQL(statement, AllFieldsShown, part, colShowSQLSentences::NoSort());
        history.GetCurrSQLFieldsStatus();
    }
    QStringList firstColumn(const QString &statement) const
    {
        const Rows rows = database->read(statement);
        EXPECT_EQ(rows.error, QString()) << qPrintable(statement);
        QStringList values;
        for (const Row &row : rows.rows)
            values.append(row.first());
        return values;
    }

    std::unique_ptr<SqliteRows> database = sampleDatabase();
    SqliteReader reader{*database};
    MemoryChooser chooser;
    clsFilterManagement manager{&reader, &chooser};
    colShowSQLSentences &history = manager.SQLManager();
    QString first;
    QString next;
};

} // namespace

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

} // namespace

TEST(HistorySort, OfTheHostIsByTheFieldThatTheWholeListMeans)
{
    ListReader reader(Engine::PostgreSQL);
    MemoryChooser chooser;
    clsFilterManagement manager{&reader, &chooser};
    manager.SetDBType(dbOracle);
    manager.SetDBConnString(u"server"_s);
    const QString all = u"select e.id, e.name, d.city from E e join D d on d.id = e.dept"_s;
    manager.SetAllFields(all);
    manager.SetShowFields(u"select e.id from E e join D d on d.id = e.dept"_s);
    manager.SetOrderFields(u"name desc"_s);
    manager.SetOriginFilter(all);
    manager.SetSQLInitData();
    colShowSQLSentences &history = manager.SQLManager();
    history.AddCurrentSQL(all, AllFieldsShown);
    history.GetCurrSQLFieldsStatus();
    QString part;
    EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, part));
    EXPECT_EQ(part.simplified(), u"SELECT e.id FROM E e join D d on d.id = e.dept ORDER BY e.name desc"_s);
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
    manager.SetDBType(dbOracle);
    manager.SetDBConnString(u"server"_s);
    manager.SetAllFields(all);
    manager.SetOriginFilter(all);
    manager.SetSQLInitData();
    const QString reason = QueryTexts::TypeNotSorted.arg(u"d"_s);
    EXPECT_EQ(manager.SQLManager().WhyNotSorted(all, 0), QString());
    EXPECT_EQ(manager.SQLManager().WhyNotSorted(all, 1), reason);
    EXPECT_EQ(manager.SQLManager().WhyNotSorted(all, 2), QString());
    EXPECT_EQ(manager.SQLManager().WhyNotSorted(all, 3), QString());
    QString chosen;
    manager.GetPartSortSelFields(all, {}, chosen);
    EXPECT_EQ(chooser.allFields, QStringList({u"id"_s, u"d"_s, u"mood"_s}));
    EXPECT_EQ(chooser.whyNotSorted, QStringList({{}, reason, {}}));
}

// TOP selects its rows before a condition, which can nevertheless use fields that were not chosen.
TEST(HistoryDerivationOfTop, AFilterCanNameFieldsThatWereNotChosen)
{
    ListReader reader;
    MemoryChooser chooser;
    clsFilterManagement manager(&reader, &chooser);
    colShowSQLSentences &history = manager.SQLManager();
    const QString all = u"select top 5 A, B from T order by B"_s;
    manager.SetDBType(dbAccess);
    manager.SetDBConnString(u"memory"_s);
    manager.SetAllFields(all);
    manager.SetOriginFilter(all);
    manager.SetSQLInitData();
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

TEST_F(HistoryDerivation, ASimpleStatementStaysLetterForLetter)
{
    load(u"select * from Ord where Qty > 1"_s);
    EXPECT_TRUE(history.GetNextSQLByFilter(u"Name = 'bob'"_s, next));
    EXPECT_EQ(next, u"select * from Ord  where Qty > 1 AND Name = 'bob' "_s);
    EXPECT_FALSE(history.GetFilteredResult());
    EXPECT_EQ(history.GetConditionName(*history.DataFields().Item(1)), QString());
}

TEST_F(HistoryDerivation, TheCatalogueHasTheResultsNamesAndWhatConditionsWrite)
{
    load(u"select o.ID as No, c.Name, o.Name, Qty * 2 as Twice from Ord o join Cust c on c.ID = o.Cust"_s);
    QStringList written;
    for (const clsDataField &field : history.DataFields())
        written.append(field.FieldName + u'=' + history.GetConditionName(field));
    EXPECT_EQ(written, (QStringList{u"No=o.ID"_s, u"Name=c.Name"_s, u"Name=o.Name"_s, u"Twice=(Qty * 2)"_s}));
    const QStringList names{u"No"_s, u"Name"_s, u"Name"_s, u"Twice"_s};
    EXPECT_EQ(history.GetColumnRealName(first, names, 2), u"o.Name"_s);
    EXPECT_EQ(history.GetColumnRealName(first, names, 4), QString());
    const auto filtered = history.GetFilteredResult();
    ASSERT_TRUE(filtered);
    EXPECT_EQ(filtered->fields.size(), 4);
    EXPECT_EQ(filtered->fields.at(3).name + filtered->fields.at(3).written, u"Twice(Qty * 2)"_s);
    EXPECT_EQ(filtered->source, u"Ord o join Cust c on c.ID = o.Cust"_s);
}

TEST_F(HistoryDerivation, ASortSetUpByTheHostGoesOutsideALimit)
{
    load(u"select ID, Name from Ord limit 3"_s, {}, u"ID DESC"_s);
    EXPECT_EQ(firstColumn(first), (QStringList{u"3"_s, u"2"_s, u"1"_s})) << qPrintable(first);
    EXPECT_TRUE(first.endsWith(u"ORDER BY ID DESC"));
}

TEST_F(HistoryDerivation, AnEmptiedSortListRemovesTheSort)
{
    load(u"select ID as No from Ord order by No desc"_s);
    chooser.choice = QString();
    QString sort;
    EXPECT_TRUE(manager.GetPartSortSelFields(first, u"No desc"_s, sort));
    EXPECT_EQ(chooser.written, QStringList(u"ID"_s));
    EXPECT_TRUE(history.GetNextSQLBySort(sort, next));
    EXPECT_FALSE(next.contains(u"ORDER BY", Qt::CaseInsensitive)) << qPrintable(next);
    chooser.choice.reset();
    EXPECT_FALSE(manager.GetPartSortSelFields(first, {}, sort)) << "cancelled";
}

TEST_F(HistoryDerivation, TheWholeTableKeepsTheGrouping)
{
    load(u"select Cust, count(*) as N from Ord where Qty > 1 group by Cust order by Cust"_s);
    EXPECT_TRUE(history.GetNextSQLByFilter(u"N > 1"_s, next));
    EXPECT_EQ(firstColumn(next), (QStringList{u"2"_s, u"3"_s}));
    show(next);
    QString whole;
    EXPECT_TRUE(manager.GetRequirePartSQL(next, PartsWithoutCondition, whole));
    EXPECT_EQ(firstColumn(whole), (QStringList{u"1"_s, u"2"_s, u"3"_s, u"4"_s})) << qPrintable(whole);
    EXPECT_TRUE(manager.LetNewFilter(u"N = 1"_s, next)) << "from the statement that the manager remembers";
    EXPECT_EQ(firstColumn(next), (QStringList{u"1"_s}));
}

TEST_F(HistoryDerivation, TheWholeTableOfWhatIsGroupedOverASelectKeepsItsSort)
{
    load(u"select x.Name, count(*) as N from (select Name from Ord union all select Name from Cust) x "
         "group by x.Name having count(*) > 1 or x.Name is null order by N desc, x.Name"_s);
    const QStringList all = firstColumn(first);
    ASSERT_GT(all.size(), 1);
    QString whole;
    EXPECT_TRUE(manager.GetRequirePartSQL(first, PartsWithoutCondition, whole));
    EXPECT_EQ(firstColumn(whole), all) << qPrintable(whole);
    EXPECT_TRUE(history.GetNextSQLByFilter(u"N = 2"_s, next));
    show(next);
    EXPECT_TRUE(manager.GetRequirePartSQL(next, PartsWithoutCondition, whole));
    EXPECT_EQ(firstColumn(whole), all) << qPrintable(whole);
}

TEST_F(HistoryDerivation, AHostsPartStatementIsFoundByItsNames)
{
    load(u"select o.ID as No, c.Name, o.Qty from Ord o join Cust c on c.ID = o.Cust where o.Qty > 1"_s,
         u"select Qty, Name from Cust, Ord"_s);
    EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, next));
    EXPECT_EQ(database->read(next).names, (QStringList{u"Qty"_s, u"Name"_s})) << qPrintable(next);
    EXPECT_EQ(firstColumn(next).size(), firstColumn(first).size());
}

TEST_F(HistoryDerivation, AHostsPartStatementMayLackAnAlias)
{
    load(u"select ID as k, Name as n, Qty * 2 as d from Ord"_s, u"select Name, Qty * 2 from Ord"_s);
    EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, next));
    EXPECT_EQ(database->read(next).names, (QStringList{u"n"_s, u"d"_s})) << qPrintable(next);
    EXPECT_TRUE(history.GetCurrSQLFieldsStatus());
    EXPECT_TRUE(history.IsSelFieldPartField(u"n"_s));
    EXPECT_FALSE(history.IsSelFieldPartField(u"k"_s));
}

// The part statement needs not be the whole one to the letter.
TEST_F(HistoryDerivation, APartStatementOfStarsHasTheFieldsOfBothTables)
{
    const QString stars = u"select * from Ord o join Cust c on o.Cust = c.ID"_s;
    load(stars + u" where o.Qty > 1 order by 1 desc"_s, stars);
    EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, next));
    EXPECT_EQ(database->read(next).text(), database->read(first).text()) << qPrintable(next);
    EXPECT_EQ(database->read(next).error, QString());
}

TEST_F(HistoryDerivation, TheJoinOfATableWithItselfCanBeUsed)
{
    load(u"select a.*, b.* from Ord a join Ord b on a.ID = b.Cust"_s);
    QStringList written;
    for (const clsDataField &field : history.DataFields())
        written.append(history.GetConditionName(field));
    EXPECT_EQ(written.join(u' '), u"a.ID a.Name a.Qty a.Price a.Cust b.ID b.Name b.Qty b.Price b.Cust"_s);
    EXPECT_EQ(history.WhyNot(DerivationStep::Condition), QString());
}

TEST_F(HistoryDerivation, AJoinsFieldsKeepTheirTableInEveryDialog)
{
    load(u"select o.*, c.City from Ord o, Cust c where o.Cust = c.ID"_s);
    EXPECT_EQ(history.GetConditionName(*history.DataFields().Item(1)), u"o.ID"_s);
    EXPECT_EQ(history.GetColumnRealName(first, {u"ID"_s, u"City"_s}, 0), u"o.ID"_s);
    QString text;
    chooser.choice = u"o.ID"_s;
    EXPECT_TRUE(manager.GetPartShowSelFields(first, {}, first, text));
    EXPECT_EQ(chooser.written.first() + u' ' + chooser.written.last(), u"o.ID c.City"_s);
    EXPECT_EQ(firstColumn(text).size(), 8) << qPrintable(text);
    EXPECT_TRUE(manager.GetPartSortSelFields(first, {}, text));
    EXPECT_EQ(chooser.written.first() + u' ' + chooser.written.last(), u"o.ID c.City"_s);
}

TEST_F(HistoryDerivation, AStepBackNeedsNoReadablePartStatement)
{
    load(u"select * from Ord"_s, u"select Gone from Ord"_s);
    EXPECT_FALSE(history.GetCurrSQLFieldsStatus());
    show(u"select * from Ord where ID = 1"_s);
    QString key;
    EXPECT_TRUE(history.GetPreviewSQL(next, &key));
    EXPECT_EQ(next, u"select * from Ord"_s);
}

TEST_F(HistoryDerivation, ACommandThatCannotRunSaysWhy)
{
    load(u"select ID, ID from Ord union select 1, 2"_s);
    EXPECT_EQ(history.WhyNot(DerivationStep::Condition), QueryTexts::EqualNames.arg(u"ID"_s));
    EXPECT_FALSE(history.GetNextSQLByFilter(u"ID = 1"_s, next));
    EXPECT_FALSE(history.GetNextSQLBySort(u"ID"_s, next));
    EXPECT_FALSE(manager.LetNewFilter(u"ID = 1"_s, next));
    load(u"select ID from Ord"_s);
    EXPECT_EQ(history.WhyNot(DerivationStep::Sort), QString());
}

TEST_F(HistoryDerivation, PartFieldsThatTheStatementHasNotAreRefusedWithTheReason)
{
    const QString grouped = u"select Cust, count(*) as N from Ord group by Cust"_s;
    const QString equal = u"select ID, ID from Ord union select 1, 2"_s;
    load(grouped, u"select Name from Cust"_s);
    EXPECT_EQ(history.WhyNoPartFields(), QueryTexts::NoPartFields);
    load(grouped, u"select Cust from Ord"_s);
    EXPECT_EQ(history.WhyNoPartFields(), QString());
    load(equal, u"select ID from Ord"_s);
    EXPECT_EQ(history.WhyNoPartFields(), QueryTexts::EqualNames.arg(u"ID"_s));
    load(equal);
    EXPECT_EQ(history.WhyNoPartFields(), QString()) << "Part shows all fields";
}
