// The commands of the full-screen viewer: the resulting statements, and the state afterwards.
#include "ViewerFixture.h"

#include "control/parts/toolbar/GridToolbar.h"
#include "grid/FlexGrid.h"
#include "grid/Twips.h"
#include "support/MessageAnswers.h"

#include <QtTest/QTest>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>

using namespace KovaTest;
using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

TEST_F(Viewer, PartHidesTheOtherFieldsWithoutOpeningAnything)
{
    load(u"select * from T"_s, u"select Name, Born from T"_s);
    show();
    user.press(u"Part"_s);
    EXPECT_EQ(user.row(0), u"Name Born"_s);
    EXPECT_EQ(openings, 0);
    EXPECT_FALSE(viewer.IsAll());
    EXPECT_TRUE(user.toolbar().isButtonPressed(u"Part"_s));
    EXPECT_EQ(viewer.CurrentSQL(), latestStatement());
    EXPECT_TRUE(latestStatement().startsWith(u"select Name, Born from T"_s)) << qPrintable(latestStatement());
    EXPECT_EQ(history().Count(), 2);
    EXPECT_EQ(history().Item(2)->IsShowAllFields, PartFieldsShown);
}

TEST_F(Viewer, PartOpensItsStatementWhenAFieldHasNoColumn)
{
    load(u"select * from T"_s, u"select Name, Born from T"_s);
    result.replaceBy(ResultSet::open(database.connectionString(), u"select ID, Name from T"_s, dbAccess, {}));
    show();
    EXPECT_EQ(user.row(0), u"ID Name"_s);
    user.press(u"Part"_s);
    EXPECT_EQ(user.row(0), u"Name Born"_s);
    EXPECT_EQ(openings, 1);
}

TEST_F(Viewer, PartWithoutPartFieldsPressesAllAgain)
{
    load(u"select * from T"_s);
    show();
    user.press(u"Part"_s);
    EXPECT_TRUE(user.toolbar().isButtonPressed(u"All"_s));
    EXPECT_TRUE(viewer.IsAll());
    EXPECT_EQ(history().Count(), 1);
}

TEST_F(Viewer, AllShowsAllFieldsAgainAndKeepsTheWidths)
{
    load(u"select * from T"_s, u"select Name, Born from T"_s);
    show(1, false);
    user.grid().PutColWidth(2, 2222);
    user.press(u"All"_s);
    EXPECT_EQ(user.row(0), u"ID Name Price Born"_s);
    EXPECT_EQ(user.grid().ColWidth(2), 2222);
    EXPECT_EQ(user.grid().ColWidth(1), 960);
    EXPECT_TRUE(viewer.IsAll());
    EXPECT_TRUE(viewer.IsRequeried());
    EXPECT_EQ(history().Count(), 2);
    EXPECT_EQ(history().Item(2)->IsShowAllFields, AllFieldsShown);
}

TEST_F(Viewer, SelFieldShowsTheChosenFieldsInTheirOrder)
{
    load(u"select * from T where ID < 4"_s, u"select Name from T"_s);
    show();
    chooser.answer = u"[Born],[ID]"_s;
    user.press(u"SelField"_s);
    EXPECT_EQ(chooser.fields, QStringList({u"ID"_s, u"Name"_s, u"Price"_s, u"Born"_s}));
    EXPECT_EQ(chooser.chosen, QStringList(u"Name"_s));
    EXPECT_EQ(user.row(0), u"Born ID"_s);
    EXPECT_EQ(user.rows(), 3) << "the condition stays";
    EXPECT_FALSE(viewer.IsAll());
    EXPECT_TRUE(user.toolbar().isButtonPressed(u"Part"_s));
    EXPECT_EQ(history().Item(2)->CurrPartFields.trimmed(), u"SELECT [Born],[ID] from T"_s);
    EXPECT_TRUE(viewer.CurrentSQL().startsWith(history().Item(2)->CurrPartFields));

    user.press(u"All"_s);
    EXPECT_EQ(user.row(0), u"ID Name Price Born"_s);
    EXPECT_EQ(user.rows(), 3);
}

TEST_F(Viewer, AColumnOfAnotherFieldIsNotHiddenByTheOneThatWasInItsPlace)
{
    load(u"select * from T"_s, u"select Name from T"_s);
    forgetWidths();
    show(1, false);
    EXPECT_EQ(user.row(0), u"Name"_s);
    chooser.answer = u"[Born],[ID]"_s;
    user.press(u"SelField"_s);
    EXPECT_EQ(user.row(0), u"Born ID"_s);
}

TEST_F(Viewer, SortReordersAndIsRemembered)
{
    load(u"select * from T"_s, {}, u"ID"_s);
    show();
    chooser.answer = u"ID DESC"_s;
    user.press(u"Sort"_s);
    EXPECT_EQ(chooser.chosen, QStringList(u"ID"_s));
    EXPECT_EQ(user.grid().TextMatrix(1, 1), u"5"_s);
    EXPECT_EQ(history().Item(2)->CurrOrderFields, u"ID DESC"_s);
    EXPECT_TRUE(latestStatement().endsWith(u"ORDER BY ID DESC"_s));
}

TEST_F(Viewer, ACancelledDialogChangesNothing)
{
    load(u"select * from T"_s);
    show();
    user.grid().PutColWidth(2, 1234);
    for (const QString &key : {u"Sort"_s, u"SelField"_s, u"Filter"_s}) {
        user.press(key);
        EXPECT_EQ(history().Count(), 1) << qPrintable(key);
        EXPECT_EQ(user.grid().ColWidth(2), 1234);
        EXPECT_FALSE(viewer.IsRequeried());
    }
    condition = u"   "_s;
    user.press(u"Filter"_s);
    EXPECT_EQ(openings, 0);
}

TEST_F(Viewer, FilterNarrowsWhatIsShown)
{
    load(u"select * from T where Name like 'Anna'"_s);
    show();
    condition = u" ID > 1 "_s;
    user.press(u"Filter"_s);
    EXPECT_EQ(user.rows(), 1);
    EXPECT_EQ(user.row(1), u"4 Anna 40 2004-04-04"_s);
    EXPECT_EQ(history().Count(), 2);
    EXPECT_EQ(viewer.CurrentSQL(), latestStatement());
    condition = u"Price > 100"_s;
    user.press(u"Filter"_s);
    EXPECT_EQ(user.rows(), 0) << "the conditions add up";
    EXPECT_EQ(user.label(), u"第0页共0页"_s);
}

TEST_F(Viewer, FilterNarrowsWhatTheControlFilteredBefore)
{
    load(u"select * from T"_s);
    QString filtered;
    ASSERT_TRUE(history().GetNextSQLByFilter(u"ID > 2"_s, filtered));
    load(filtered);
    filter.SetOriginFilter(u"select * from T"_s);
    show();
    condition = u"Name like 'Anna'"_s;
    user.press(u"Filter"_s);
    EXPECT_EQ(user.rows(), 1);
    EXPECT_EQ(user.row(1), u"4 Anna 40 2004-04-04"_s);
}

TEST_F(Viewer, AFilterThatCantBeReadIsAskedForAgainAndKeepsWhatIsShown)
{
    load(u"select * from T"_s);
    show();
    condition = u"Nothing = 1"_s;
    MessageAnswers messages;
    user.press(u"Filter"_s);
    ASSERT_EQ(refusals.size(), 1) << "the dialog comes back with the database's words";
    EXPECT_TRUE(refusals.first().contains(u"Nothing"_s));
    EXPECT_EQ(messages.texts(), QStringList());
    EXPECT_EQ(user.rows(), 5);
    EXPECT_EQ(user.row(1), u"1 Anna 10 2001-01-01"_s);
    EXPECT_EQ(history().Count(), 1);
    EXPECT_EQ(filter.LastUseFilter(), statement);
}

TEST_F(Viewer, ToPreviewAndToOriginWalkBackThroughTheHistory)
{
    load(u"select * from T"_s, u"select Name, Born from T"_s);
    show();
    condition = u"ID > 1"_s;
    user.press(u"Filter"_s);
    user.press(u"Part"_s);
    condition = u"ID > 2"_s;
    user.press(u"Filter"_s);
    ASSERT_EQ(history().Count(), 4);
    EXPECT_EQ(user.rows(), 3);

    user.press(u"ToPreview"_s);
    EXPECT_EQ(history().Count(), 3);
    EXPECT_EQ(user.rows(), 4);
    EXPECT_EQ(user.row(0), u"Name Born"_s);
    EXPECT_TRUE(user.toolbar().isButtonPressed(u"Part"_s));

    user.press(u"ToPreview"_s);
    EXPECT_EQ(user.row(0), u"ID Name Price Born"_s);
    EXPECT_EQ(user.rows(), 4);
    EXPECT_TRUE(user.toolbar().isButtonPressed(u"All"_s));

    user.press(u"ToOrigin"_s);
    EXPECT_EQ(history().Count(), 1);
    EXPECT_EQ(user.rows(), 5);
    EXPECT_EQ(viewer.CurrentSQL(), statement);
}

TEST_F(Viewer, ToFullTableDropsTheConditionAndKeepsTheSort)
{
    load(u"select * from T where ID < 3 order by ID desc"_s);
    show();
    user.press(u"ToFullTable"_s);
    EXPECT_EQ(user.rows(), 5);
    EXPECT_EQ(user.grid().TextMatrix(1, 1), u"5"_s);
    EXPECT_EQ(history().Count(), 2);
    EXPECT_TRUE(viewer.IsAll());
}

TEST_F(Viewer, AnEmptyResultOnlyLeadsOutOfIt)
{
    load(u"select * from T"_s, u"select Name from T"_s);
    show();
    condition = u"ID > 99"_s;
    user.press(u"Filter"_s);
    ASSERT_EQ(user.rows(), 0);
    chooser.answer = u"[ID]"_s;
    for (const QString &key : {u"All"_s, u"Part"_s, u"SelField"_s, u"Filter"_s}) {
        user.press(key);
        EXPECT_EQ(openings, 1) << qPrintable(key);
        EXPECT_EQ(history().Count(), 2) << qPrintable(key);
    }
    QTest::mouseClick(user.grid().viewport(), Qt::RightButton, {}, QPoint(5, 5));
    EXPECT_FALSE(user.menu().isVisible());
    user.press(u"ToPreview"_s);
    EXPECT_EQ(user.rows(), 5);
}

TEST_F(Viewer, CompressViewSharesTheWidthAmongTheColumns)
{
    load(u"select * from T"_s, u"select Name, Born from T"_s);
    show();
    user.grid().PutColWidth(3, 0);
    const int width = Twips::fromPixels(user.grid().width(), user.grid());
    user.press(u"CompressView"_s);
    for (int col = 1; col <= 4; ++col)
        EXPECT_EQ(user.grid().ColWidth(col), qRound((width - 860) / 4.0)) << col;

    user.press(u"Part"_s);
    viewer.SeeCompressView();
    EXPECT_EQ(user.row(0), u"Name Born"_s) << "what the part-field view hides stays hidden";
    EXPECT_EQ(user.grid().ColWidth(2), qRound((width - 860) / 2.0));
}

// A statement that can't be opened: nothing visible may change, and the viewer still works.
struct LostTable : Viewer, testing::WithParamInterface<const char *>
{
};

INSTANTIATE_TEST_SUITE_P(Keys, LostTable,
                         testing::Values("All", "SelField", "Filter", "Sort", "ToPreview", "ToOrigin",
                                         "ToFullTable"));

TEST_P(LostTable, KeepsResultHistoryAndButtons)
{
    load(u"select * from T"_s, u"select Name, Born from T"_s);
    show();
    condition = u"ID > 1"_s;
    user.press(u"Filter"_s);
    user.press(u"Part"_s);
    const QString latest = latestStatement();
    const auto recordset = result.recordset();
    breakDatabase();
    chooser.answer = u"[ID]"_s;
    MessageAnswers messages;
    const QString key = QString::fromLatin1(GetParam());
    user.press(key);
    EXPECT_EQ(messages.texts(), QStringList());
    EXPECT_EQ(refusals.size(), key == u"Filter" ? 1 : 0);
    EXPECT_EQ(result.recordset(), recordset);
    EXPECT_EQ(user.row(0), u"Name Born"_s);
    EXPECT_EQ(user.row(1), u"Berta 2002-02-02"_s);
    EXPECT_EQ(user.rows(), 4);
    EXPECT_TRUE(user.toolbar().isButtonPressed(u"Part"_s));
    EXPECT_FALSE(viewer.IsAll());
    EXPECT_EQ(history().Count(), 3);
    EXPECT_EQ(latestStatement(), latest);
    EXPECT_EQ(viewer.CurrentSQL(), latest);
}

TEST_F(Viewer, WithoutTheFilterManagerCommandsDoNothing)
{
    load(u"select * from T"_s, u"select Name from T"_s);
    show();
    viewer.ClearRefObject();
    for (const QString &key : user.toolbar().keys()) {
        if (user.toolbar().isButtonVisible(key))
            user.press(key);
    }
    EXPECT_EQ(user.row(0), u"ID Name Price Born"_s);
    EXPECT_EQ(openings, 0);
    EXPECT_TRUE(user.toolbar().isButtonPressed(u"All"_s));
}

TEST_F(Viewer, GoesForwardToWhatAStepBackLeft)
{
    load(u"select * from T"_s);
    show();
    condition = u"ID > 1"_s;
    user.press(u"Filter"_s);
    const QString filtered = viewer.CurrentSQL();
    user.press(u"ToPreview"_s);
    ASSERT_NE(viewer.CurrentSQL(), filtered);
    user.menuItem(19)->trigger();
    EXPECT_EQ(viewer.CurrentSQL(), filtered);
    EXPECT_EQ(history().Count(), 2);
    user.menuItem(19)->trigger();
    EXPECT_EQ(history().Count(), 2);
}

TEST_F(Viewer, FindsTextsInWhatIsShown)
{
    load(u"select * from T"_s);
    show();
    viewer.activateWindow();
    QCoreApplication::processEvents();
    user.grid().setFocus();
    QTest::keyClick(&user.grid(), Qt::Key_F7);
    auto *text = viewer.findChild<QLineEdit *>(u"txtFindShown"_s);
    ASSERT_TRUE(text->isVisible());
    const QString sought = user.grid().TextMatrix(2, 2);
    ASSERT_FALSE(sought.isEmpty());
    QTest::keyClicks(text, sought);
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
    QTest::keyClick(text, Qt::Key_Return);
    EXPECT_EQ(user.grid().Row(), 2);
    EXPECT_EQ(user.grid().Col(), 2);
    QTest::keyClick(text, Qt::Key_Escape);
    EXPECT_FALSE(text->isVisible());
    EXPECT_TRUE(viewer.isVisible()) << "Esc closes only the bar";
    EXPECT_TRUE(user.grid().hasFocus());
}
