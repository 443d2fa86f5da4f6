// The part statements of hosts over statements that plain text work can't derive from.
#include "HistoryDerivation.h"

#include "query/QueryTexts.h"

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
