// The history and the filter manager over statements that plain text work can't derive from.
#include "HistoryDerivation.h"

#include "query/QueryTexts.h"

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

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

// With DISTINCT, a sort can have only fields that are shown.
TEST_F(HistoryDerivation, ASortThatAChoiceOfFieldsLosesIsThereAgainWithTheFields)
{
    load(u"select distinct Cust, Name from Ord where Qty > 0 order by Cust desc, Name"_s);
    const auto choose = [&](const QString &fields) {
        chooser.choice = fields;
        QString chosen;
        EXPECT_TRUE(manager.GetPartShowSelFields(first, {}, history.Item(history.Count())->ShowSQL, chosen));
        show(chosen, history.GetFieldsStatement(chosen));
        return chosen.simplified();
    };
    const auto sortBy = [&](const QString &sort) {
        EXPECT_TRUE(history.GetNextSQLBySort(sort, next));
        history.AddCurrentSQL(next, AllFieldsShown, colShowSQLSentences::NoPartField(), sort);
    };
    const auto all = [&] {
        EXPECT_TRUE(history.GetNextShowSQL(AllFieldsStatement, next));
        show(next);
        return next.simplified();
    };
    EXPECT_EQ(choose(u"Name"_s), u"SELECT distinct Name FROM Ord where Qty > 0 ORDER BY Name"_s);
    EXPECT_TRUE(history.GetNextSQLByFilter(u"Name > 'b'"_s, next));
    show(next);
    const QString sorted =
        u"SELECT distinct Cust, Name FROM Ord where Qty > 0 AND Name > 'b' ORDER BY Cust desc,Name"_s;
    EXPECT_EQ(all(), sorted);
    EXPECT_EQ(choose(u"Cust"_s),
              u"SELECT distinct Cust FROM Ord where Qty > 0 AND Name > 'b' ORDER BY Cust desc"_s);
    EXPECT_EQ(choose(u"Cust,Name"_s),
              u"SELECT distinct Cust,Name FROM Ord where Qty > 0 AND Name > 'b' ORDER BY Cust desc,Name"_s);
    // What the user has sorted by since then is all there is.
    choose(u"Cust"_s);
    sortBy(u"Cust"_s);
    EXPECT_TRUE(all().endsWith(u"Name > 'b' ORDER BY Cust"_s)) << qPrintable(next);
    sortBy(u"Name DESC,Cust"_s);
    choose(u"Cust"_s);
    QString offered;
    manager.GetPartSortSelFields(first, u"Name DESC,Cust"_s, offered);
    EXPECT_EQ(chooser.present, QStringList(u"Cust"_s)) << "of the fields that are shown";
    EXPECT_TRUE(all().endsWith(u"ORDER BY Name DESC,Cust"_s)) << qPrintable(next);
    choose(u"Cust"_s);
    sortBy({});
    EXPECT_TRUE(all().endsWith(u"Name > 'b'"_s)) << qPrintable(next);
    // A step back has the sort that was left by it.
    EXPECT_TRUE(history.GetPreviewSQL(next));
    EXPECT_TRUE(history.GetPreviewSQL(next));
    EXPECT_TRUE(all().endsWith(u"ORDER BY Name DESC,Cust"_s)) << qPrintable(next);
}

TEST_F(HistoryDerivation, AllFieldsOfADistinctKeepTheSortThatTheUserChose)
{
    const auto sortAndShowAll = [&] {
        EXPECT_TRUE(history.GetNextSQLBySort(u"Name DESC"_s, next));
        history.AddCurrentSQL(next, AllFieldsShown, colShowSQLSentences::NoPartField(), u"Name DESC"_s);
        EXPECT_TRUE(history.GetNextShowSQL(AllFieldsStatement, next));
        EXPECT_TRUE(next.contains(u"ORDER BY "_s) && next.endsWith(u"Name DESC"_s)) << qPrintable(next);
    };
    for (const QString &list : {u"Ord.*"_s, u"*"_s, u"Cust, Name"_s}) {
        manager.ClearObject();
        load(u"select distinct "_s + list + u" from Ord"_s);
        sortAndShowAll();
    }
    for (const QString &list : {u"Ord.*"_s, u"*"_s, u"o.*"_s}) {
        manager.ClearObject();
        const QString source = list.startsWith(u'o') ? u" from Ord o"_s : u" from Ord"_s;
        load(u"select distinct "_s + list + source);
        chooser.choice = list.startsWith(u'*') ? u"Name"_s : list.section(u'.', 0, 0) + u".Name"_s;
        QString chosen;
        EXPECT_TRUE(manager.GetPartShowSelFields(first, {}, first, chosen));
        show(chosen, history.GetFieldsStatement(chosen));
        sortAndShowAll();
    }
}

TEST_F(HistoryDerivation, TheHostsSortOfADistinctIsOfferedAsFarAsItIsShown)
{
    load(u"select distinct Cust as No, Qty as Pieces from Ord"_s, u"select Cust from Ord"_s,
         u"No desc, Pieces"_s);
    EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, next));
    show(next);
    QString sort;
    chooser.choice = u"Cust"_s;
    manager.GetPartSortSelFields(first, u"No desc, Pieces"_s, sort);
    EXPECT_EQ(chooser.present, QStringList(u"No desc"_s)) << qPrintable(next);
}

TEST_F(HistoryDerivation, FieldsOfADistinctKeepTheSortByAnExpression)
{
    load(u"select distinct Qty * 2 as Twice, Name from Ord where Qty > 0"_s);
    const QString written = history.GetColumnRealName(first, {u"Twice"_s, u"Name"_s}, 0);
    EXPECT_TRUE(history.GetNextSQLBySort(written + u" DESC"_s, next));
    history.AddCurrentSQL(next, AllFieldsShown, colShowSQLSentences::NoPartField(), written + u" DESC"_s);
    chooser.choice = u"Qty * 2 as Twice"_s;
    QString chosen;
    EXPECT_TRUE(manager.GetPartShowSelFields(first, {}, next, chosen));
    EXPECT_EQ(firstColumn(chosen), (QStringList{u"10"_s, u"8"_s, u"6"_s, u"4"_s, u"2"_s}))
        << qPrintable(chosen);
}

TEST_F(HistoryDerivation, AnAliasDoesNotTakeTheSortOfAColumnOfItsName)
{
    load(u"select distinct Cust as Qty, Qty as Cust from Ord order by 1, 2"_s);
    show(first + u' ');
    EXPECT_TRUE(history.GetNextShowSQL(AllFieldsStatement, next));
    EXPECT_EQ(firstColumn(next), firstColumn(first)) << qPrintable(next);
}

TEST_F(HistoryDerivation, TheSortOfADistinctThatIsATableIsListed)
{
    for (const QString &all : {u"select distinct Cust, count(*) as N from Ord group by Cust, Qty"_s,
                               u"select distinct Cust, Name from Ord limit 9"_s}) {
        manager.ClearObject();
        load(all);
        EXPECT_TRUE(history.GetNextSQLBySort(u"Cust DESC"_s, next));
        history.AddCurrentSQL(next, AllFieldsShown, colShowSQLSentences::NoPartField(), u"Cust DESC"_s);
        QString sort;
        chooser.choice = u"Cust DESC"_s;
        EXPECT_TRUE(manager.GetPartSortSelFields(first, u"Cust DESC"_s, sort));
        EXPECT_EQ(chooser.present, QStringList(u"Cust DESC"_s)) << qPrintable(all);
    }
}

TEST_F(HistoryDerivation, TheWholeTableKeepsTheAliases)
{
    load(u"select ID as No, Name as Who from Ord where No > 2"_s);
    QString whole;
    EXPECT_TRUE(manager.GetRequirePartSQL(first, PartsWithoutCondition, whole));
    show(whole);
    chooser.choice = u"[No]"_s;
    QString chosen;
    EXPECT_TRUE(manager.GetPartShowSelFields(first, {}, whole, chosen));
    EXPECT_EQ(chooser.written, (QStringList{u"[No]"_s, u"Who"_s}));
    EXPECT_EQ(database->read(chosen).names, QStringList(u"No"_s)) << qPrintable(chosen);
    show(chosen);
    EXPECT_EQ(history.WhyNoAllFields(), QString());
    EXPECT_TRUE(history.GetNextShowSQL(AllFieldsStatement, next));
    EXPECT_EQ(database->read(next).names, (QStringList{u"No"_s, u"Who"_s})) << qPrintable(next);
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

// SQLite names such a field of a derived table by its place.
TEST_F(HistoryDerivation, ANameThatIsAValueIsRefusedInADerivedTableAlone)
{
    constexpr DerivationStep steps[] = {DerivationStep::Condition, DerivationStep::Sort,
                                        DerivationStep::Fields};
    load(u"select Cust as \"True\", count(*) as N from Ord group by Cust"_s);
    const Rows renamed = database->read(u"select * from (%1)"_s.arg(first));
    EXPECT_NE(renamed.names, (QStringList{u"True"_s, u"N"_s}));
    for (const DerivationStep step : steps)
        EXPECT_EQ(history.WhyNot(step), QueryTexts::RenamedField.arg(u"True"_s));
    load(u"select Cust as \"True\", Name as \"false\" from Ord where Qty > 1"_s);
    for (const DerivationStep step : steps)
        EXPECT_EQ(history.WhyNot(step), QString());
    EXPECT_TRUE(history.GetNextSQLByFilter(u"Cust = 2"_s, next));
    const Rows filtered = database->read(next);
    EXPECT_EQ(filtered.names, (QStringList{u"True"_s, u"false"_s})) << qPrintable(next);
    EXPECT_EQ(filtered.rows.size(), 2);
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
