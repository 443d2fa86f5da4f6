// The part statements of hosts over statements that plain text work can't derive from.
#include "HistoryDerivation.h"

#include "CaseFile.h"
#include "query/QueryTexts.h"

#include <QtCore/QSet>

#include <algorithm>
#include <tuple>
#include <vector>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

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

// The columns of the result show what the statement has, not the names that the part statement gives.
TEST_F(HistoryDerivation, AHostsPartStatementMayRenameFields)
{
    for (const QString &all :
         {u"select City, Name from Cust order by Name"_s, u"select distinct City, Name from Cust"_s,
          u"select * from Cust where ID > 0"_s, u"select c.City, c.Name from Cust c limit 9"_s}) {
        for (const QString &alias : {u"City"_s, u"Town"_s}) {
            manager.ClearObject();
            QString part = all;
            part.replace(u"City, Name"_s, u"Name as "_s + alias)
                .replace(u"c.City, c.Name"_s, u"c.Name as "_s + alias);
            part.replace(u'*', u"Name as "_s + alias);
            load(all, part);
            EXPECT_EQ(history.WhyNoPartFields(), QString()) << qPrintable(part);
            QStringList marked;
            for (const clsDataField &field : history.DataFields()) {
                if (field.IsPartField != 0)
                    marked.append(field.FieldName);
            }
            EXPECT_EQ(marked, QStringList(u"Name"_s)) << qPrintable(part);
            EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, next));
            EXPECT_EQ(database->read(next).names, QStringList(u"Name"_s)) << qPrintable(next);
        }
    }
    manager.ClearObject();
    load(u"select City, Name from Cust"_s, u"select upper(Name) as Loud from Cust"_s);
    EXPECT_EQ(history.WhyNoPartFields(), QueryTexts::NoPartFields);
}

TEST_F(HistoryDerivation, APartStatementCanShowAColumnTwice)
{
    const QString all = u"select ID, Name, Name, Qty as Name from Ord"_s;
    load(all, all + u" where ID > 0"_s);
    EXPECT_EQ(history.PartFields(), QList<bool>(4, true));
    EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, next));
    EXPECT_EQ(database->read(next).text(), database->read(all).text()) << qPrintable(next);
}

// The host's sort comes back with the part fields, which may lack what it uses.
TEST_F(HistoryDerivation, TheHostsSortMeansTheWholeListAlsoForPartFields)
{
    for (const QString &all :
         {u"select ID as No, Name as Who from Ord"_s, u"select distinct Name as Who, ID as No from Ord"_s,
          u"select Name as Who, max(ID) as No from Ord group by Name"_s}) {
        manager.ClearObject();
        load(all, u"select Name from Ord"_s, u"No desc"_s);
        const Rows ordered = database->read(all + u" order by No desc"_s);
        EXPECT_TRUE(history.GetNextSQLBySort({}, next)) << qPrintable(all);
        show(next);
        EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, next)) << qPrintable(all);
        const Rows part = database->read(next);
        EXPECT_EQ(part.error, QString()) << qPrintable(next);
        EXPECT_EQ(part.names, QStringList(u"Who"_s));
        if (all.contains(u"distinct"_s)) // the sort is by what it lacks
            continue;
        QStringList expected;
        for (const Row &row : ordered.rows)
            expected.append(row.at(ordered.names.indexOf(u"Who"_s)));
        EXPECT_EQ(firstColumn(next), expected) << qPrintable(next);
    }
}

// Whose the fields of such a star are is unknown.
TEST_F(HistoryDerivation, APartStatementWithTheSameListHasTheSameFields)
{
    const QString all = u"select * from Ord a join Ord b using (ID)"_s;
    load(all + u" order by 1 desc"_s, all);
    EXPECT_EQ(history.WhyNoPartFields(), QString());
    EXPECT_EQ(history.PartFields(), QList<bool>(9, true));
    EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, next));
    EXPECT_EQ(database->read(next).text(), database->read(first).text()) << qPrintable(next);
}

TEST_F(HistoryDerivation, APartOfAFilteredSubqueryIsSelectedFromIt)
{
    for (const QString &part : {u"select Cust from Ord"_s, u"select Cust as No from Ord"_s}) {
        for (const QString &all : {u"select Cust, count(*) as N from Ord group by Cust"_s,
                                   u"select Cust, Qty from Ord where Qty < 9 union select Cust, 0 from Ord"_s,
                                   u"select distinct Cust, Qty from Ord limit 9"_s,
                                   u"select Cust, Qty from (select * from Ord where Qty > 1) t"_s}) {
            manager.ClearObject();
            load(all, part);
            EXPECT_TRUE(history.GetNextSQLByFilter(u"Cust > 1"_s, next));
            show(next);
            const QStringList filtered = firstColumn(next);
            ASSERT_EQ(history.WhyNoPartFields(), QString()) << qPrintable(all);
            EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, next));
            EXPECT_EQ(database->read(next).names, QStringList(u"Cust"_s)) << qPrintable(next);
            EXPECT_EQ(firstColumn(next), filtered) << qPrintable(next);
            show(next);
            EXPECT_TRUE(history.GetNextShowSQL(AllFieldsStatement, next));
            EXPECT_EQ(database->read(next).names, database->read(all).names) << qPrintable(next);
            EXPECT_EQ(firstColumn(next), filtered) << qPrintable(next);
        }
    }
}

TEST_F(HistoryDerivation, APartOfOneTableIsSelectedFromTheJoin)
{
    load(u"select o.Name, Qty as Pieces, o.Cust from Ord o join Cust c on c.ID = o.Cust and c.ID > 1"_s,
         u"select Name, Cust from Ord"_s);
    for (int times = 0; times < 2; ++times) {
        EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, next));
        EXPECT_EQ(firstColumn(next), firstColumn(first)) << qPrintable(next);
        show(next);
    }
}

TEST_F(HistoryDerivation, APartStatementOfStarsHasTheFieldsOfBothTables)
{
    const QString stars = u"select * from Ord o join Cust c on o.Cust = c.ID"_s;
    load(stars + u" where o.Qty > 1 order by 1 desc"_s, stars);
    EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, next));
    EXPECT_EQ(database->read(next).text(), database->read(first).text()) << qPrintable(next);
    EXPECT_EQ(database->read(next).error, QString());
}

// The same fields with the same rows, whatever was shown before; or the same refusal.
TEST_F(HistoryDerivation, APartStatementMeansTheSameFieldsAfterEveryStep)
{
    int taken = 0;
    for (const KovaTest::Case &one : ReadCases(u"part_statements.cases"_s)) {
        SCOPED_TRACE(one.place.toStdString());
        const Rows all = database->read(one[u"statement"_s]);
        if (!all.error.isEmpty()) // another engine's
            continue;
        ++taken;
        QStringList names;
        for (const QString &place : one.List(u"shows"_s))
            names.append(all.names.at(place.toInt() - 1));
        const bool isDistinct = one[u"statement"_s].startsWith(u"select distinct"_s);
        const auto expectPart = [&](const char *after) {
            EXPECT_EQ(history.WhyNoPartFields(), names.isEmpty() ? QueryTexts::NoPartFields : QString())
                << after;
            QStringList marked;
            for (const clsDataField &field : history.DataFields())
                marked += field.IsPartField != 0 ? QStringList(field.FieldName) : QStringList();
            EXPECT_EQ(QSet<QString>(marked.begin(), marked.end()), QSet<QString>(names.begin(), names.end()))
                << after;
            if (names.isEmpty())
                return;
            EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, next));
            const Rows part = database->read(next);
            EXPECT_EQ(part.names, names) << after << ": " << qPrintable(next);
            std::vector<Row> rows;
            for (const Row &row : all.rows) {
                Row kept;
                for (const QString &name : names)
                    kept.append(row.at(all.names.indexOf(name)));
                if (!isDistinct || std::ranges::find(rows, kept) == rows.end())
                    rows.push_back(kept);
            }
            const bool isOrdered = one[u"statement"_s].contains(u" order by "_s) && !isDistinct;
            auto found = part.rows;
            if (!isOrdered) {
                std::ranges::sort(found);
                std::ranges::sort(rows);
            }
            EXPECT_TRUE(found == rows) << after << ": " << qPrintable(next + u'\n' + part.text());
        };
        manager.ClearObject();
        load(one[u"statement"_s], one[u"part"_s]);
        expectPart("the load");
        const auto step = [&](const char *what) {
            show(next);
            EXPECT_EQ(database->read(next).error, QString()) << what << ": " << qPrintable(next);
            expectPart(what);
        };
        show(names.isEmpty() ? first : next);
        expectPart("Part");
        EXPECT_TRUE(history.GetNextSQLByFilter(u"1=1"_s, next));
        step("a filter");
        EXPECT_TRUE(history.GetNextShowSQL(AllFieldsStatement, next));
        EXPECT_EQ(database->read(next).names, all.names) << qPrintable(next);
        step("All");
        EXPECT_TRUE(history.GetPreviewSQL(next));
        expectPart("a step back");
        EXPECT_TRUE(history.GetFirstSQL(next));
        EXPECT_TRUE(history.GetNextSQLByFilter(u"1=1"_s, next));
        step("a filter of the origin");
    }
    EXPECT_GE(taken, 30);
}

// An alias in a condition is only known where its list is.
TEST_F(HistoryDerivation, FieldsOfADistinctWithAliasesInItsConditionAreDistinctToo)
{
    load(
        u"select distinct Name as Who, Cust as K, Qty as Pieces from Ord where Pieces > 1 order by Who, K"_s);
    const auto choose = [&](const QString &fields) {
        chooser.choice = fields;
        QString chosen;
        EXPECT_TRUE(manager.GetPartShowSelFields(first, {}, history.Item(history.Count())->ShowSQL, chosen));
        show(chosen, history.GetFieldsStatement(chosen));
        return chosen;
    };
    const QStringList who{u"'a order by b'"_s, u"'anna'"_s, u"'bob'"_s, u"'x where y'"_s};
    EXPECT_EQ(firstColumn(choose(u"Who"_s)), who);
    EXPECT_TRUE(history.GetNextSQLByFilter(u"K = 2"_s, next));
    EXPECT_EQ(firstColumn(next), (QStringList{u"'anna'"_s, u"'x where y'"_s})) << qPrintable(next);
    show(next);
    EXPECT_TRUE(history.GetNextShowSQL(AllFieldsStatement, next));
    EXPECT_EQ(database->read(next).names.size(), 3) << qPrintable(next);
    show(next);
    EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, next));
    EXPECT_EQ(firstColumn(next), (QStringList{u"'anna'"_s, u"'x where y'"_s})) << qPrintable(next);
    EXPECT_TRUE(history.GetFirstSQL(next));
    EXPECT_EQ(firstColumn(choose(u"K"_s)), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_TRUE(history.GetNextShowSQL(AllFieldsStatement, next));
    EXPECT_EQ(database->read(next).text(), database->read(first).text()) << "in its order again";
}

// What Some Fields shows is what the dialog preselects, so that OK alone changes nothing.
TEST_F(HistoryDerivation, TheFieldsThatAPartStatementMeansArePreselected)
{
    const std::vector<std::tuple<QString, QString, QStringList>> cases{
        {u"select ID, Name, City from Cust"_s, u"select City as Name from Cust"_s, {u"City"_s}},
        {u"select ID, Name as City, City as Name from Cust"_s,
         u"select Name, ID from Cust"_s,
         {u"City"_s, u"ID"_s}},
        {u"select Cust, count(*) as N from Ord group by Cust"_s,
         u"select count(*) as Cust from Ord group by Cust"_s,
         {u"N"_s}},
        {u"select ID, Name from Cust"_s, u"select ID from Cust"_s, {u"ID"_s}}};
    for (const auto &[all, part, preselected] : cases) {
        manager.ClearObject();
        load(all, part);
        manager.GetPartShowSelFields(all, part, all, next);
        EXPECT_EQ(chooser.present, preselected) << qPrintable(part);
    }
}

TEST_F(HistoryDerivation, TheHostsSortIsNotAddedToAStatementWithItsOwn)
{
    load(u"select Name as A, City as B from Cust order by ID limit 5"_s, u"select Name as X from Cust"_s,
         u"B"_s);
    const QStringList names = firstColumn(first);
    EXPECT_EQ(firstColumn(manager.GetCurrentSQL20(PartFieldsStatement)), names);
    EXPECT_GT(names.size(), 3);
}
