#include "query/colShowSQLSentences.h"

#include "CaseFile.h"
#include "MemorySource.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

const QString kAllFields = QStringLiteral("select T.Name,[Order Date],\"Age\",x*2 as Twice from T");
const QString kPartFields = QStringLiteral("select [Order Date] from T");

class History : public testing::Test
{
protected:
    MemoryReader reader;
    colShowSQLSentences history{&reader};
    QString statement;
    QString key;

    History()
    {
        reader.fieldsByStatement.insert(
            kAllFields,
            {{u"Name"_s, 202}, {u"Order Date"_s, 7}, {u"Age"_s, 3}, {u"Twice"_s, 5}, {u"A-B"_s, 0}});
        reader.fieldsByStatement.insert(kPartFields, {{u"Order Date"_s, 7}});
        history.SetConnString(u"DSN=a"_s);
        history.SetSQLInitData(kAllFields, kPartFields, u"F"_s, u"Name"_s, u"first filter"_s);
    }

    void Push(const QString &text)
    {
        ASSERT_TRUE(history.AddCurrentSQL(text, AllFieldsShown, history.NoPartField(), history.NoSort()));
    }

    QStringList Statements() const
    {
        QStringList statements;
        for (const clsShowSQLSentence &entry : history)
            statements.append(entry.ShowSQL);
        return statements;
    }
};

} // namespace

TEST_F(History, KeepsItsSetUp)
{
    EXPECT_EQ(history.AllFields(), kAllFields);
    EXPECT_EQ(history.ShowFieds(), kPartFields);
    EXPECT_EQ(history.FilterWord(), u"F"_s);
    EXPECT_EQ(history.OrderWord(), u"Name"_s);
    EXPECT_EQ(history.OriginFilter(), u"first filter"_s);
    EXPECT_TRUE(history.UpdateSelPartFields(u"P"_s));
    EXPECT_TRUE(history.UpdateSelSortFields(u"S"_s));
    EXPECT_EQ(history.ShowFieds(), u"P"_s);
    EXPECT_EQ(history.OrderWord(), u"S"_s);
    history.SetCurrFieds(u"C"_s);
    EXPECT_EQ(history.CurrFieds(), u"C"_s);
}

TEST_F(History, EntriesHoldWhatTheyWereAddedWith)
{
    ASSERT_TRUE(history.AddAllSQLMess(u"f"_s, u"w"_s, u"o"_s, u"org"_s, u"show"_s, AllFieldsShown, u"all"_s,
                                      u"part"_s, u"sort"_s, u"cp"_s, u"cs"_s, &key));
    const clsShowSQLSentence *const entry = history.Item(key);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->SQLFields + entry->SQLWhere + entry->SQLOrder, u"fwo"_s);
    EXPECT_EQ(entry->OrgSQL, u"org"_s);
    EXPECT_EQ(entry->ShowSQL, u"show"_s);
    EXPECT_EQ(entry->IsShowAllFields, AllFieldsShown);
    EXPECT_EQ(entry->AllFields, u"all"_s);
    EXPECT_EQ(entry->PartFields, u"part"_s);
    EXPECT_EQ(entry->OrderFields, u"sort"_s);
    EXPECT_EQ(entry->CurrPartFields, u"cp"_s);
    EXPECT_EQ(entry->CurrOrderFields, u"cs"_s);
    EXPECT_EQ(entry->SQLKey, u"0ForDel"_s);
}

TEST_F(History, GivenKeyIsUsedAndATakenOneRefused)
{
    key = u"mine"_s;
    EXPECT_TRUE(history.AddSimpleSQLMess({}, u"a"_s, PartFieldsShown, &key));
    EXPECT_FALSE(history.AddSimpleSQLMess({}, u"b"_s, PartFieldsShown, &key));
    EXPECT_EQ(Statements(), QStringList{u"a"_s});
}

TEST_F(History, CurrentStatementInheritsTheSetUp)
{
    ASSERT_TRUE(history.AddCurrentSQL(u"show"_s, AllFieldsShown, u"cp"_s, u"cs"_s));
    const clsShowSQLSentence *const entry = history.Item(1);
    EXPECT_EQ(entry->OrgSQL, u"first filter"_s);
    EXPECT_EQ(entry->AllFields, kAllFields);
    EXPECT_EQ(entry->PartFields, kPartFields);
    EXPECT_EQ(entry->OrderFields, u"Name"_s);
    EXPECT_EQ(entry->CurrPartFields, u"cp"_s);
    EXPECT_EQ(entry->CurrOrderFields, u"cs"_s);
}

TEST_F(History, MarkersKeepTheChoicesOfTheLatestEntry)
{
    Push(u"a"_s);
    EXPECT_EQ(history.Item(1)->CurrPartFields + history.Item(1)->CurrOrderFields, QString());
    history.AddCurrentSQL(u"b"_s, AllFieldsShown, u"cp"_s, u"cs"_s);
    Push(u"c"_s);
    EXPECT_EQ(history.Item(3)->CurrPartFields, u"cp"_s);
    EXPECT_EQ(history.Item(3)->CurrOrderFields, u"cs"_s);
    history.AddCurrentSQL(u"d"_s, AllFieldsShown);
    EXPECT_EQ(history.Item(4)->CurrPartFields, QString());
}

TEST_F(History, EmptyStatementIsNotAdded)
{
    EXPECT_FALSE(history.AddCurrentSQL({}, AllFieldsShown));
    EXPECT_EQ(history.Count(), 0);
}

TEST_F(History, EmptyHistoryAnswersFalse)
{
    qint32 count = 0;
    EXPECT_FALSE(history.GetLatestSQL(statement, &key));
    EXPECT_FALSE(history.RemoveLatestSQL());
    EXPECT_FALSE(history.GetPreviewSQL(statement, &key));
    EXPECT_FALSE(history.GetFirstSQL(statement, &key));
    EXPECT_FALSE(history.GetNextSQLByFilter(u"a=1"_s, statement));
    EXPECT_FALSE(history.GetNextSQLBySort(u"a"_s, statement));
    EXPECT_FALSE(history.GetNextShowSQL(PreviousStatement, statement));
    EXPECT_FALSE(history.GetCurrSQLFieldsStatus());
    EXPECT_FALSE(history.GetCurrShowFieldsCount(count));
}

TEST_F(History, StepsBackOneEntryButNeverRemovesTheFirst)
{
    Push(u"a"_s);
    Push(u"b"_s);
    ASSERT_TRUE(history.GetPreviewSQL(statement, &key));
    EXPECT_EQ(statement, u"a"_s);
    EXPECT_EQ(key, u"0ForDel"_s);
    ASSERT_TRUE(history.GetPreviewSQL(statement, &key));
    EXPECT_EQ(statement, u"a"_s);
    EXPECT_EQ(history.Count(), 1);
}

TEST_F(History, GoesBackToTheFirstEntry)
{
    for (const QString &text : {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s})
        Push(text);
    ASSERT_TRUE(history.GetFirstSQL(statement, &key));
    EXPECT_EQ(statement, u"a"_s);
    EXPECT_EQ(key, u"0ForDel"_s);
    EXPECT_EQ(Statements(), QStringList{u"a"_s});
    Push(u"f"_s);
    ASSERT_TRUE(history.GetLatestSQL(statement, &key));
    EXPECT_EQ(key, u"5ForDel"_s) << "keys aren't used again";
}

TEST_F(History, LosingTheConnectionOnTheWayBackKeepsEveryEntry)
{
    Push(u"a"_s);
    Push(u"b"_s);
    reader.isPluggedIn = false;
    EXPECT_FALSE(history.GetPreviewSQL(statement, &key));
    EXPECT_FALSE(history.GetFirstSQL(statement, &key));
    EXPECT_EQ(statement + key, QString());
    EXPECT_EQ(Statements(), (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(History, RemovingTheLatestUndoesAPush)
{
    Push(u"a"_s);
    EXPECT_TRUE(history.RemoveLatestSQL());
    EXPECT_EQ(history.Count(), 0);
    history.Remove(1);
    history.Remove(u"0ForDel"_s);
}

TEST_F(History, NextStatementsAreDerivedFromTheLatestWithoutAPush)
{
    Push(u"select * from T"_s);
    Push(u"select * from T where A=1 order by B"_s);
    EXPECT_TRUE(history.GetNextSQLByFilter(u"C like '%x%'"_s, statement));
    EXPECT_EQ(statement, u"select * from T  where A=1  AND C like '%x%' order by B"_s);
    EXPECT_TRUE(history.GetNextSQLBySort(u"D"_s, statement));
    EXPECT_EQ(statement, u"select * from T  where A=1   ORDER BY D"_s);
    EXPECT_TRUE(history.GetNextSQLBySort({}, statement));
    EXPECT_EQ(statement, u"select * from T  where A=1  "_s);
    EXPECT_EQ(history.Count(), 2);
}

TEST_F(History, ShowsAllOrPartFieldsOfTheLatest)
{
    Push(u"select * from T where A=1"_s);
    EXPECT_TRUE(history.GetNextShowSQL(AllFieldsStatement, statement));
    EXPECT_EQ(statement, kAllFields + u" where A=1  ORDER BY Name"_s);
    EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, statement));
    EXPECT_EQ(statement, kPartFields + u" where A=1  ORDER BY Name"_s);
    for (const auto other : {StatementType{-1}, FirstStatement, PreviousStatement, ChosenFieldsStatement}) {
        statement = u"old"_s;
        EXPECT_TRUE(history.GetNextShowSQL(other, statement));
        EXPECT_EQ(statement, QString());
    }
}

TEST_F(History, PartFieldsThatTheUserChoseWin)
{
    history.AddCurrentSQL(u"select * from T"_s, AllFieldsShown, u"select C from T"_s);
    EXPECT_TRUE(history.GetNextShowSQL(PartFieldsStatement, statement));
    EXPECT_EQ(statement, u"select C from T   ORDER BY Name"_s);
}

TEST_F(History, NoPartStatementMeansNoPartFieldsToShow)
{
    history.SetShowFieds({});
    Push(u"select * from T"_s);
    EXPECT_FALSE(history.GetNextShowSQL(PartFieldsStatement, statement));
    EXPECT_TRUE(history.GetCurrSQLFieldsStatus());
}

TEST_F(History, StarBecomesTheQuotedFieldsWithLongBinaryOnesLast)
{
    const QString star = u"select * from T"_s;
    reader.fieldsByStatement.insert(star, {{u"A"_s, 202}, {u"P"_s, 205}, {u"B"_s, 3}});
    EXPECT_TRUE(history.GetAllFieldNameSQL(u"DSN=a"_s, star, statement));
    EXPECT_EQ(statement, u"select \"A\",\"B\",\"P\" from T  "_s);
}

// A driver of SQLite calls "x.y" y.
TEST_F(History, StarStaysWhereItsFieldsAreNotCalledWhatTheDriverSays)
{
    const QString star = u"select * from T"_s;
    reader.mode = Engine::SQLite;
    reader.fieldsByStatement.insert(star, {{u"A"_s, 202}, {u"y"_s, 202}});
    EXPECT_TRUE(history.GetAllFieldNameSQL(u"DSN=a"_s, star, statement));
    EXPECT_EQ(statement, star);
    reader.fieldsByStatement.insert(u"select `A`,`y` from T  "_s, {{u"A"_s, 202}, {u"y"_s, 202}});
    EXPECT_TRUE(history.GetAllFieldNameSQL(u"DSN=a"_s, star, statement));
    EXPECT_EQ(statement, u"select [A],[y] from T  "_s);
}

TEST_F(History, StatementWithoutStarIsNotExpanded)
{
    EXPECT_TRUE(history.GetAllFieldNameSQL(u"DSN=a"_s, kPartFields, statement));
    EXPECT_EQ(statement, kPartFields);
    EXPECT_EQ(reader.reads, 0);
}

TEST_F(History, StarIsNotExpandedWithoutFields)
{
    const QString star = u"select * from T"_s;
    EXPECT_FALSE(history.GetAllFieldNameSQL({}, star, statement));
    EXPECT_FALSE(history.GetAllFieldNameSQL(u"DSN=a"_s, {}, statement));
    EXPECT_FALSE(history.GetAllFieldNameSQL(u"DSN=a"_s, star, statement));
    reader.fieldsByStatement.insert(star, {});
    EXPECT_FALSE(history.GetAllFieldNameSQL(u"DSN=a"_s, star, statement));
    history.SetFieldReader(nullptr);
    EXPECT_FALSE(history.GetAllFieldNameSQL(u"DSN=a"_s, star, statement));
    EXPECT_EQ(statement, QString());
}

TEST_F(History, CatalogueHasTheDatabasesNamesAndTheStatementsWholeNames)
{
    Push(u"select * from T"_s);
    ASSERT_TRUE(history.GetCurrSQLFieldsStatus());
    EXPECT_EQ(history.GetSelFieldRealName(u"Name"_s), u"T.Name"_s);
    EXPECT_EQ(history.GetSelFieldRealName(u"Order Date"_s), u"[Order Date]"_s);
    EXPECT_EQ(history.GetSelFieldRealName(u"Age"_s), u"\"Age\""_s);
    EXPECT_EQ(history.GetSelFieldRealName(u"Twice"_s), u"Twice"_s);
    EXPECT_EQ(history.GetSelFieldRealName(u"A-B"_s), u"[A-B]"_s);
    EXPECT_EQ(history.DataFields().Item(2)->FieldType, 7);
}

TEST_F(History, UnlistedNamesAreQuotedForTheirDatabase)
{
    history.SetDBType(dbOracle);
    Push(u"select * from T"_s);
    ASSERT_TRUE(history.GetCurrSQLFieldsStatus());
    EXPECT_EQ(history.GetSelFieldRealName(u"A-B"_s), u"\"A-B\""_s);
}

TEST_F(History, PartFieldsAreMarkedByWhatTheirStatementYields)
{
    Push(u"select * from T"_s);
    ASSERT_TRUE(history.GetCurrSQLFieldsStatus());
    EXPECT_TRUE(history.IsSelFieldPartField(u"Order Date"_s));
    EXPECT_FALSE(history.IsSelFieldPartField(u"Name"_s));
    qint32 count = 0;
    EXPECT_TRUE(history.GetCurrShowFieldsCount(count));
    EXPECT_EQ(count, 5) << "the latest entry shows all fields";
    history.AddCurrentSQL(u"select * from T"_s, PartFieldsShown);
    EXPECT_TRUE(history.GetCurrShowFieldsCount(count));
    EXPECT_EQ(count, 1);
}

TEST_F(History, CatalogueIsReadOnceAndKeepsItsWidths)
{
    Push(u"select * from T"_s);
    ASSERT_TRUE(history.GetCurrSQLFieldsStatus());
    history.DataFields().Update(u"0FieldDel"_s, [](clsDataField &field) { field.FieldWidth = 1200; });
    ASSERT_TRUE(history.GetCurrSQLFieldsStatus(u"DSN=b"_s));
    EXPECT_EQ(history.DataFields().Item(1)->FieldWidth, 1200);
    EXPECT_EQ(reader.reads, 3) << "all fields once, part fields twice";
}

TEST_F(History, FieldsThatCannotBeReadAreAFailure)
{
    history.SetAllFields(u"unknown"_s);
    Push(u"select * from T"_s);
    EXPECT_FALSE(history.GetCurrSQLFieldsStatus());
    reader.fieldsByStatement.insert(u"unknown"_s, {});
    EXPECT_FALSE(history.GetCurrSQLFieldsStatus());
    reader.fieldsByStatement.insert(u"unknown"_s, {{QString(), 0}, {u"A"_s, 3}});
    EXPECT_TRUE(history.GetCurrSQLFieldsStatus());
    EXPECT_EQ(history.DataFields().Count(), 1) << "nameless fields are left out";
    history.SetShowFieds(u"unreadable"_s);
    Push(u"select * from T"_s);
    EXPECT_FALSE(history.GetCurrSQLFieldsStatus());
    history.SetConnString({});
    EXPECT_FALSE(history.GetCurrSQLFieldsStatus());
    history.SetFieldReader(nullptr);
    EXPECT_FALSE(history.GetCurrSQLFieldsStatus(u"DSN=a"_s));
}

TEST_F(History, ClearForgetsEverythingButItsReader)
{
    Push(u"select * from T"_s);
    ASSERT_TRUE(history.GetCurrSQLFieldsStatus());
    EXPECT_TRUE(history.Clear());
    EXPECT_EQ(history.Count() + history.DataFields().Count(), 0);
    EXPECT_EQ(history.ConnString() + history.AllFields() + history.OrderWord(), QString());
    history.SetConnString(u"DSN=a"_s);
    history.SetAllFields(kAllFields);
    ASSERT_TRUE(history.AddCurrentSQL(u"a"_s, AllFieldsShown, {}, {}, &key));
    EXPECT_EQ(key, u"0ForDel"_s);
    EXPECT_TRUE(history.GetCurrSQLFieldsStatus());
}

TEST_F(History, CatalogueCanBeReplaced)
{
    colDataFields fields;
    fields.AddFieldsByCol({u"X"_s});
    history.SetDataFields(fields);
    EXPECT_EQ(history.GetSelFieldRealName(u"X"_s), u"X"_s);
}

TEST(HistoryEntry, SplitsWhatItShows)
{
    clsShowSQLSentence entry;
    EXPECT_FALSE(entry.SeperateSQL());
    entry.ShowSQL = u"select ID, Name from Customers where Age > 30 order by Name"_s;
    EXPECT_TRUE(entry.SeperateSQL());
    EXPECT_EQ(entry.SQLFields, u"select ID, Name from Customers "_s);
    EXPECT_EQ(entry.SQLWhere, u"where Age > 30 "_s);
    EXPECT_EQ(entry.SQLOrder, u"order by Name"_s);
}

TEST(HistoryEntry, NeverComposes)
{
    clsShowSQLSentence entry;
    EXPECT_TRUE(entry.UpdateSQLCompoment(u"f"_s, u"w"_s, u"o"_s));
    entry.NewSQL = u"old"_s;
    EXPECT_FALSE(entry.CompoundSQL());
    EXPECT_EQ(entry.NewSQL, u"old"_s);
    entry.InitData();
    EXPECT_EQ(entry.SQLFields + entry.NewSQL, QString());
}

TEST(HistoryEntry, LaterChoicesWinOverTheSetUp)
{
    clsShowSQLSentence entry;
    QString text = u"old"_s;
    EXPECT_FALSE(entry.GetCurrUsePartFieldSQL(text));
    EXPECT_EQ(text, QString());
    EXPECT_TRUE(entry.GetCurrUseOrderFieldSQL(text));
    entry.PartFields = u"p"_s;
    entry.OrderFields = u"o"_s;
    EXPECT_TRUE(entry.GetCurrUsePartFieldSQL(text));
    EXPECT_EQ(text, u"p"_s);
    entry.CurrPartFields = u"cp"_s;
    entry.CurrOrderFields = u"co"_s;
    EXPECT_TRUE(entry.GetCurrUsePartFieldSQL(text));
    EXPECT_EQ(text, u"cp"_s);
    EXPECT_TRUE(entry.GetCurrUseOrderFieldSQL(text));
    EXPECT_EQ(text, u"co"_s);
}
