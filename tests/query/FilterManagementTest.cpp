#include "query/clsFilterManagement.h"

#include "CaseFile.h"
#include "MemorySource.h"

#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

const QString kAll = QStringLiteral("select * from T");
const QString kPart = QStringLiteral("select A from T");

class FilterManagement : public testing::Test
{
protected:
    MemoryReader reader;
    MemoryChooser chooser;
    clsFilterManagement manager{&reader, &chooser};
    QString text;

    FilterManagement()
    {
        reader.fieldsByStatement.insert(kAll, {{u"A"_s, 3}, {u"B C"_s, 202}});
        reader.fieldsByStatement.insert(kPart, {{u"A"_s, 3}});
        manager.SetDBConnString(u"DSN=a"_s);
        manager.SetAllFields(kAll);
        manager.SetShowFields(kPart);
        manager.SetOrderFields(u"A"_s);
        manager.SetOriginFilter(kAll);
        manager.SetSQLInitData();
    }

    const QStringList &Stack() const { return manager.Remembered().filterStack; }
};

} // namespace

TEST_F(FilterManagement, SetUpReachesTheHistory)
{
    const colShowSQLSentences &history = manager.SQLManager();
    EXPECT_EQ(history.ConnString(), u"DSN=a"_s);
    EXPECT_EQ(history.AllFields(), kAll);
    EXPECT_EQ(history.ShowFieds(), kPart);
    EXPECT_EQ(history.FilterWord(), QString());
    EXPECT_EQ(history.OrderWord(), u"A"_s);
    EXPECT_EQ(history.OriginFilter(), kPart);
}

TEST_F(FilterManagement, KeepsWhatTheHostSets)
{
    manager.SetDBType(dbSQLServer);
    manager.SetTBLType(FromView);
    manager.SetFieldStatus(2);
    EXPECT_EQ(manager.DBType(), dbSQLServer);
    EXPECT_EQ(manager.TBLType(), 1);
    EXPECT_EQ(manager.FieldStatus(), 2);
    EXPECT_EQ(manager.DBConnString(), u"DSN=a"_s);
    EXPECT_EQ(manager.AllFields() + manager.ShowFields() + manager.OrderFields(), kAll + kPart + u'A');
}

TEST_F(FilterManagement, OriginIsShownAndBackAtOnce)
{
    EXPECT_EQ(manager.OriginFilter(), kAll);
    EXPECT_EQ(manager.LastUseFilter(), kAll);
    EXPECT_EQ(manager.Remembered().previousFilter, kAll);
    EXPECT_EQ(Stack(), QStringList{kAll});
}

TEST_F(FilterManagement, NewConditionMakesANewStatement)
{
    EXPECT_TRUE(manager.LetNewFilter(u"A=1"_s, text));
    EXPECT_EQ(text, u"select * from T  WHERE A=1 "_s);
    EXPECT_TRUE(manager.LetNewFilter(u"B=2"_s, text));
    EXPECT_EQ(text, u"select * from T   WHERE A=1 AND B=2 "_s);
    EXPECT_EQ(manager.LastUseFilter(), text);
    EXPECT_EQ(manager.Remembered().currentStatement, text);
    EXPECT_EQ(Stack().size(), 3);
}

TEST_F(FilterManagement, EmptyConditionRecomposesTheStatement)
{
    manager.LetNewSQLStr(u" select * from T where A=1 order by B "_s);
    EXPECT_TRUE(manager.LetNewFilter({}, text));
    EXPECT_EQ(text, u"select * from T  where A=1  order by B"_s);
}

TEST_F(FilterManagement, NothingShownTakesNoCondition)
{
    clsFilterManagement empty;
    EXPECT_FALSE(empty.LetNewFilter(u"A=1"_s, text));
    EXPECT_FALSE(empty.LetNewSQLStr({}));
    EXPECT_TRUE(empty.LetNewSQLStr(kAll));
    EXPECT_EQ(empty.Remembered().previousFilter, QString());
}

TEST_F(FilterManagement, TheFirstStatementAndTheLastOnesCanBeGoneBackTo)
{
    for (int i = 1; i <= clsFilterManagement::statementsKept; ++i)
        manager.LetNewSQLStr(QString::number(i));
    ASSERT_EQ(Stack().size(), clsFilterManagement::statementsKept);
    EXPECT_EQ(Stack().at(0), kAll);
    EXPECT_EQ(Stack().at(1), u"2"_s);
    EXPECT_EQ(Stack().last(), QString::number(clsFilterManagement::statementsKept));
}

TEST_F(FilterManagement, StepsBackThroughTheStatements)
{
    for (const QString &statement : {u"b"_s, u"c"_s, u"d"_s})
        manager.LetNewSQLStr(statement);
    EXPECT_TRUE(manager.GetPreviewFilter(text));
    EXPECT_EQ(text, u"c"_s);
    EXPECT_EQ(manager.Remembered().previousFilter, u"b"_s);
    EXPECT_TRUE(manager.IsCanPreviewFilter(text));
    EXPECT_EQ(text, u"b"_s);
    EXPECT_EQ(Stack(), (QStringList{kAll, u"b"_s}));
    EXPECT_TRUE(manager.GetPreviewFilter(text));
    EXPECT_EQ(text, kAll);
    EXPECT_EQ(manager.LastUseFilter(), kAll);
    EXPECT_EQ(Stack(), QStringList{kAll});
    EXPECT_TRUE(manager.GetPreviewFilter(text)) << "the only statement is its own predecessor";
    EXPECT_EQ(Stack(), QStringList{kAll});
}

TEST_F(FilterManagement, ThereIsNoWayBackFromNothing)
{
    clsFilterManagement empty;
    text = u"old"_s;
    EXPECT_FALSE(empty.IsCanPreviewFilter(text));
    EXPECT_EQ(text, QString());
    manager.ClearObject();
    EXPECT_FALSE(manager.GetPreviewFilter(text)) << "a predecessor without statements leads nowhere";
}

TEST_F(FilterManagement, FieldListsTakeTheSourceOfTheStatementShown)
{
    manager.LetNewSQLStr(u"select A From T Where A=1 order by A"_s);
    EXPECT_EQ(manager.GetAllFieldSQL(), u"select * From T Where A=1 order by A"_s);
    EXPECT_EQ(manager.GetPartFieldSQL(), u"select A From T Where A=1 order by A"_s);
    manager.SetAllFields(u"select *"_s);
    EXPECT_EQ(manager.GetAllFieldSQL(), kAll) << "without a FROM of its own it is the first statement";
    manager.SetAllFields(u" from T"_s);
    EXPECT_EQ(manager.GetAllFieldSQL(), kAll);
    manager.LetNewSQLStr(u"nothing"_s);
    EXPECT_EQ(manager.GetPartFieldSQL(), u"select Anothing"_s);
}

TEST_F(FilterManagement, FirstStatementIsDeliveredOnceAndSorted)
{
    EXPECT_EQ(manager.GetCurrentSQL(FirstStatement), u"select * from T ORDER BY A"_s);
    EXPECT_EQ(manager.LastUseFilter(), u"select * from T ORDER BY A"_s);
    manager.SetAllFields(u"select B from T"_s);
    EXPECT_EQ(manager.GetCurrentSQL(FirstStatement), u"select * from T ORDER BY A"_s);
    EXPECT_EQ(Stack().size(), 2);
    manager.ClearCurrMess();
    manager.ClearCurrStatus();
    EXPECT_EQ(manager.GetCurrentSQL(FirstStatement), u"select B from T ORDER BY A"_s);
}

TEST_F(FilterManagement, ShowsAllOrPartFieldsOfTheCurrentStatement)
{
    manager.GetCurrentSQL(FirstStatement);
    EXPECT_EQ(manager.GetCurrentSQL(PartFieldsStatement), u"select A from T  ORDER BY A"_s);
    EXPECT_EQ(manager.GetCurrentSQL(AllFieldsStatement), u"select * from T  ORDER BY A"_s);
    manager.SetShowFields({});
    EXPECT_EQ(manager.GetCurrentSQL(PartFieldsStatement), u"select * from T  ORDER BY A"_s)
        << "no part, nothing changes";
    EXPECT_EQ(manager.GetCurrentSQL(StatementType{6}), u"select * from T  ORDER BY A"_s);
    EXPECT_EQ(manager.GetCurrentSQL(StatementType{-1}), u"select * from T  ORDER BY A"_s);
}

TEST_F(FilterManagement, HistoryDerivesForTheNewerFunction)
{
    manager.GetCurrentSQL20(FirstStatement);
    EXPECT_EQ(manager.GetCurrentSQL20(AllFieldsStatement), u"select * from T ORDER BY A"_s)
        << "no entry, nothing to derive";
    manager.SQLManager().AddCurrentSQL(u"select B from T where B=1"_s, AllFieldsShown);
    EXPECT_EQ(manager.GetCurrentSQL20(AllFieldsStatement), u"select * from T where B=1  ORDER BY A"_s);
    EXPECT_EQ(manager.GetCurrentSQL20(PartFieldsStatement), u"select A from T where B=1  ORDER BY A"_s);
}

TEST_F(FilterManagement, ThirdTypeStepsBack)
{
    manager.LetNewSQLStr(u"b"_s);
    EXPECT_EQ(manager.GetCurrentSQL(PreviousStatement), kAll);
    EXPECT_EQ(manager.Remembered().currentStatement, kAll);
    EXPECT_EQ(clsFilterManagement().GetCurrentSQL(PreviousStatement), QString());
}

TEST_F(FilterManagement, UserChoosesFields)
{
    manager.GetCurrentSQL(FirstStatement);
    chooser.choice = u"[B C],A"_s;
    EXPECT_EQ(manager.GetCurrentSQL(ChosenFieldsStatement), u"SELECT [B C],A from T ORDER BY A"_s);
    EXPECT_EQ(chooser.title, u"T"_s);
    EXPECT_EQ(chooser.allFields, (QStringList{u"A"_s, u"B C"_s}));
    EXPECT_EQ(chooser.written, (QStringList{u"A"_s, u"[B C]"_s}));
    EXPECT_TRUE(chooser.present.isEmpty());
    EXPECT_EQ(manager.Remembered().currentPartFields, u"SELECT [B C],A from T ORDER BY A"_s);
    chooser.choice.reset();
    EXPECT_EQ(manager.GetCurrentSQL(ChosenFieldsStatement), QString());
    EXPECT_EQ(manager.LastUseFilter(), u"SELECT [B C],A from T ORDER BY A"_s) << "cancelling changes nothing";
    EXPECT_EQ(manager.GetCurrentSQL(PartFieldsStatement), u"SELECT [B C],A from T   ORDER BY A"_s);
}

TEST_F(FilterManagement, UserChoosesASort)
{
    manager.GetCurrentSQL(FirstStatement);
    chooser.choice = u"[B C] DESC"_s;
    EXPECT_EQ(manager.GetCurrentSQL(ChosenSortStatement), u"select * from T  ORDER BY [B C] DESC"_s);
    EXPECT_EQ(manager.Remembered().currentSortFields, u"[B C] DESC"_s);
    EXPECT_EQ(manager.GetCurrentSQL(ChosenSortStatement), u"select * from T   ORDER BY [B C] DESC"_s);
    EXPECT_EQ(chooser.present, QStringList{u"[B C] DESC"_s});
    chooser.choice = QString();
    EXPECT_EQ(manager.GetCurrentSQL(ChosenSortStatement), QString());
}

TEST_F(FilterManagement, OracleGetsQuotesForBrackets)
{
    manager.SetDBType(dbOracle);
    manager.GetCurrentSQL(FirstStatement);
    chooser.choice = u"[B C],A"_s;
    EXPECT_TRUE(manager.GetPartShowFields(text));
    EXPECT_EQ(text, u"SELECT \"B C\",A from T ORDER BY A"_s);
    EXPECT_EQ(chooser.present, QStringList{u"A"_s});
}

TEST_F(FilterManagement, SortOfTheSetUpIsOfferedForChoice)
{
    manager.SetOrderFields(u"A, B C DESC"_s);
    chooser.choice = u"A"_s;
    EXPECT_TRUE(manager.GetPartSortFields(text));
    EXPECT_EQ(text, u"A"_s);
    EXPECT_EQ(chooser.present, (QStringList{u"A"_s, u"B C DESC"_s}));
}

TEST_F(FilterManagement, ReturnsPartsOfAStatement)
{
    const QString statement = u"select * from T where A=1 order by B"_s;
    EXPECT_TRUE(manager.GetRequirePartSQL(statement, AllParts, text));
    EXPECT_EQ(text, u"select * from T  where A=1  order by B"_s);
    EXPECT_TRUE(manager.GetRequirePartSQL(statement, PartsWithoutSort, text));
    EXPECT_EQ(text, u"select * from T  where A=1 "_s);
    EXPECT_TRUE(manager.GetRequirePartSQL(statement, PartsWithoutCondition, text));
    EXPECT_EQ(text, u"select * from T  order by B"_s);
    EXPECT_TRUE(manager.GetRequirePartSQL(statement, StatementParts{4}, text));
    EXPECT_EQ(text, QString());
    EXPECT_FALSE(manager.GetRequirePartSQL({}, AllParts, text));
}

TEST_F(FilterManagement, NamesAFieldOfTheCurrentStatement)
{
    manager.SetOrderFields({});
    manager.GetCurrentSQL(FirstStatement);
    EXPECT_EQ(manager.GetSelFieldRealName(u"DSN=a"_s, 2), u"B C"_s);
}

TEST_F(FilterManagement, GoesBackToTheOrigin)
{
    manager.LetNewSQLStr(u"b"_s);
    manager.GotoOrignState();
    EXPECT_EQ(manager.LastUseFilter(), kAll);
    EXPECT_EQ(manager.Remembered().previousFilter, kAll);
    EXPECT_EQ(Stack(), QStringList{kAll});
}

TEST_F(FilterManagement, ClearFilterKeepsTheConnectionString)
{
    manager.GetCurrentSQL(FirstStatement);
    manager.SQLManager().AddCurrentSQL(kAll, AllFieldsShown);
    manager.ClearFilter();
    EXPECT_EQ(manager.AllFields() + manager.ShowFields() + manager.OrderFields() + manager.OriginFilter() +
                  manager.LastUseFilter() + manager.Remembered().currentStatement,
              QString());
    EXPECT_TRUE(Stack().isEmpty());
    EXPECT_EQ(manager.SQLManager().Count(), 0);
    EXPECT_EQ(manager.DBConnString(), u"DSN=a"_s);
    EXPECT_TRUE(manager.Remembered().isFirstUsed);
}
