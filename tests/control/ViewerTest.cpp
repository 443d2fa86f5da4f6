// The full-screen viewer by itself, over a real SQLite database, driven by real clicks and keys.
#include "ViewerFixture.h"

#include "ado/Error.h"
#include "ado/Recordset.h"
#include "control/GridToolbar.h"
#include "control/viewer/TypedPage.h"
#include "grid/FlexGrid.h"
#include "grid/Twips.h"
#include "query/SharedValues.h"
#include "support/MessageAnswers.h"

#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>

using namespace KovaTest;
using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

struct Viewer : LoadedParts
{
    ViewerHost host()
    {
        return {[this](const QString &sql, const std::function<bool(qint64)> &progress) {
                    ++openings;
                    result.replaceBy(ResultSet::open(database.connectionString(), sql, dbAccess, progress));
                    return ViewerHost::Opened{result.connection(), result.recordset()};
                },
                [this](QWidget *) { return condition; }};
    }

    void show(qint32 page = 1, bool isAll = true)
    {
        viewer.PutFilterManager(manager);
        viewer.GetData(result.connection(), result.recordset(), page, database.connectionString(), statement,
                       true, {}, isAll, true, true, true);
        viewer.show();
    }

    // The table is gone, so that no statement can be opened any more.
    void breakDatabase() { database.run(u"ALTER TABLE T RENAME TO Away"_s); }

    int openings = 0;
    frm_FullScreen viewer{host()};
    ViewerUser user{viewer};
};

struct PagedViewer : Viewer
{
    PagedViewer()
    {
        load(u"select * from T"_s);
        result.recordset()->PutPageSize(2);
    }
};

const QString Numbers =
    u"with recursive N(n) as (select 1 union all select n + 1 from N where n < 1500000) select n as ID from N"_s;

} // namespace

TEST_F(Viewer, ShowsTheControlsResultOnTheWholeScreen)
{
    load(u"select * from T"_s);
    show();
    EXPECT_TRUE(viewer.isWindow());
    EXPECT_TRUE(viewer.isFullScreen());
    EXPECT_EQ(viewer.geometry(), viewer.screen()->geometry());
    EXPECT_EQ(user.row(0), u"ID Name Price Born"_s);
    EXPECT_EQ(user.row(1), u"1 Anna 10 2001-01-01"_s);
    EXPECT_EQ(user.rows(), 5);
    EXPECT_EQ(user.label(), u"第1页共1页"_s);
    EXPECT_EQ(user.box(), u"1"_s);
    EXPECT_EQ(openings, 0) << "what is open is shown";
}

TEST_F(Viewer, HasItsPartsUnderTheirNamesAndKinds)
{
    for (const char *name : {"picBox", "fraTitle", "cmdClose", "cmdPgae", "txtPage", "lblPageCount",
                             "vsfgShowData", "Toolbar1", "PopMnu"})
        EXPECT_TRUE(viewer.findChild<QWidget *>(QLatin1StringView(name))) << name;
    EXPECT_EQ(viewer.objectName(), u"frm_FullScreen"_s);
    for (int index = 1; index <= 7; ++index) {
        ASSERT_TRUE(user.menuItem(index)) << index;
        EXPECT_EQ(user.menuItem(index)->data().toInt(), index);
        EXPECT_EQ(user.menuItem(index)->text().isEmpty(), index == 3 || index == 6) << index;
    }
}

TEST_F(Viewer, OffersTheKeysThatItHasCommandsForAndNoOthers)
{
    load(u"select * from T"_s);
    show();
    for (const QString &key : user.toolbar().keys()) {
        const bool isUnused =
            QStringList{u"SingleRecord"_s, u"AllRecord"_s, u"QuickFilter"_s, u"FromResult"_s, u"FullScreen"_s}
                .contains(key);
        EXPECT_EQ(user.toolbar().isButtonVisible(key), !isUnused) << qPrintable(key);
    }
    bool wasSeparator = true;
    for (const QAction *action : user.toolbar().actions()) {
        if (!action->isVisible())
            continue;
        EXPECT_FALSE(action->isSeparator() && wasSeparator) << "two separators in a row";
        wasSeparator = action->isSeparator();
    }
}

TEST_F(Viewer, NamesWhatItHasForAssistiveTools)
{
    for (const char *name : {"vsfgShowData", "txtPage", "Toolbar1"})
        EXPECT_FALSE(viewer.findChild<QWidget *>(QLatin1StringView(name))->accessibleName().isEmpty())
            << name;
    EXPECT_FALSE(viewer.windowTitle().isEmpty());
}

TEST_F(Viewer, GivesTheKeyboardToTheGridAtTheCurrentRecord)
{
    load(u"select * from T"_s);
    result.recordset()->PutAbsolutePosition(4);
    show();
    viewer.activateWindow();
    EXPECT_EQ(viewer.focusWidget(), &user.grid());
    EXPECT_EQ(user.grid().Row(), 4);
    QTest::keyClick(&user.grid(), Qt::Key_Down);
    EXPECT_EQ(user.grid().Row(), 5);
    EXPECT_EQ(position(), 4) << "looking around moves nothing";
}

TEST_F(Viewer, StoresCountAndPositionForAll)
{
    load(u"select * from T"_s);
    result.recordset()->PutAbsolutePosition(3);
    show();
    EXPECT_EQ(SharedValues::instance().recordCountSnapshot, 5);
    EXPECT_EQ(SharedValues::instance().recordPosition, 3);
}

TEST_F(Viewer, AClosedRecordsetIsPageNoughtOfNought)
{
    load(u"select * from T"_s);
    result.recordset()->Close();
    show();
    EXPECT_EQ(viewer.GetPageIndex(), 0);
    EXPECT_EQ(user.label(), u"第0页共0页"_s);
    EXPECT_EQ(user.box(), u"0"_s);
    EXPECT_EQ(user.grid().model()->columnCount(), 0);
    EXPECT_EQ(user.rows(), 0);
    for (const QString &key : {u"First"_s, u"Last"_s, u"All"_s, u"Filter"_s})
        user.press(key);
    user.goTo(u"1"_s);
    EXPECT_EQ(user.label(), u"第0页共0页"_s);
}

TEST_F(Viewer, AnEmptyResultShowsTheHeadingsAlone)
{
    load(u"select * from T where ID > 99"_s);
    show();
    EXPECT_EQ(user.row(0), u"ID Name Price Born"_s);
    EXPECT_EQ(user.rows(), 0);
    EXPECT_EQ(user.label(), u"第0页共0页"_s);
}

TEST_F(Viewer, ANullIsTheEmptyText)
{
    load(u"select * from T"_s);
    show();
    EXPECT_EQ(user.grid().TextMatrix(2, 3), QString());
    EXPECT_EQ(user.grid().TextMatrix(5, 2), QString());
}

TEST_F(Viewer, OnAOnePageResultNextAndLastDoNothing)
{
    load(u"select * from T"_s);
    show();
    for (const QString &key : {u"Next"_s, u"Last"_s, u"Previous"_s, u"First"_s}) {
        user.grid().PutRow(3);
        user.press(key);
        EXPECT_EQ(user.label(), u"第1页共1页"_s) << qPrintable(key);
        EXPECT_EQ(user.grid().Row(), 3) << "nothing is filled anew";
    }
}

TEST_F(PagedViewer, APageShowsFromItsFirstRecordToTheEndOfAll)
{
    show(2);
    EXPECT_EQ(user.label(), u"第2页共3页"_s);
    EXPECT_EQ(user.rows(), 3);
    EXPECT_EQ(user.row(1), u"3 O'Neil 30 2003-03-03"_s);
    EXPECT_EQ(user.row(3), u"5  50 2005-05-05"_s);
}

TEST_F(PagedViewer, ThePageKeysTurnPages)
{
    show();
    const std::pair<QString, int> steps[] = {{u"Next"_s, 2},  {u"Next"_s, 3},     {u"Next"_s, 3},
                                             {u"Last"_s, 3},  {u"Previous"_s, 2}, {u"First"_s, 1},
                                             {u"First"_s, 1}, {u"Previous"_s, 1}, {u"Last"_s, 3}};
    for (const auto &[key, page] : steps) {
        user.press(key);
        EXPECT_EQ(viewer.GetPageIndex(), page) << qPrintable(key);
        EXPECT_EQ(user.label(), u"第%1页共3页"_s.arg(page));
        EXPECT_EQ(user.grid().TextMatrix(1, 1), QString::number(page * 2 - 1));
    }
    EXPECT_EQ(position(), 1);
    EXPECT_FALSE(viewer.IsRequeried());
}

TEST_F(PagedViewer, APageBeyondTheEndShowsTheLastAndTheBoxKeepsWhatWasTyped)
{
    show();
    user.goTo(u"77"_s);
    EXPECT_EQ(user.label(), u"第3页共3页"_s);
    EXPECT_EQ(user.box(), u"77"_s);
    EXPECT_EQ(user.row(1), u"5  50 2005-05-05"_s);
}

TEST_F(PagedViewer, ANumberTooLargeIsShortenedUntilItFits)
{
    show();
    user.goTo(u"999999999999"_s);
    EXPECT_EQ(user.box(), u"999999999"_s);
    EXPECT_EQ(user.label(), u"第3页共3页"_s);
}

TEST_F(PagedViewer, EnterInThePageBoxGoesThere)
{
    show();
    auto *box = viewer.findChild<QLineEdit *>(u"txtPage"_s);
    box->setText(u"2"_s);
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(user.label(), u"第2页共3页"_s);
    EXPECT_TRUE(viewer.isVisible()) << "Enter presses no other button";
}

TEST_F(PagedViewer, ANumberBelowOneIsToldAndMovesNothing)
{
    show(2);
    for (const QString &typed : {u"0"_s, u"-1"_s, u"-99999999999999"_s}) {
        MessageAnswers messages;
        user.goTo(typed);
        EXPECT_EQ(messages.texts(), QStringList(u"请在页数输入正整数."_s));
        EXPECT_EQ(user.label(), u"第2页共3页"_s);
    }
}

TEST_F(PagedViewer, ATextThatIsNoNumberDoesNothing)
{
    show(2);
    for (const QString &typed : {u""_s, u"abc"_s, u"1x"_s, u"--1"_s, u"."_s}) {
        MessageAnswers messages;
        user.goTo(typed);
        EXPECT_EQ(messages.texts(), QStringList()) << qPrintable(typed);
        EXPECT_EQ(user.label(), u"第2页共3页"_s);
        EXPECT_EQ(user.box(), typed);
    }
}

TEST(TypedPageNumber, IsShortenedFromItsEndUntilItFits32Bits)
{
    const std::pair<QString, QString> cases[] = {{u"2147483647"_s, u"2147483647"_s},
                                                 {u"2147483648"_s, u"214748364"_s},
                                                 {u"007"_s, u"007"_s},
                                                 {QString(400, u'9'), QString(9, u'9')},
                                                 {u"99999999999.5"_s, u"999999999"_s}};
    for (const auto &[typed, kept] : cases) {
        const auto page = TypedPage::read(typed);
        ASSERT_TRUE(page) << qPrintable(typed);
        EXPECT_EQ(page->text, kept);
        EXPECT_EQ(page->number, kept.toInt());
    }
    EXPECT_EQ(TypedPage::read(u"12.6"_s)->number, 13);
    EXPECT_EQ(TypedPage::read(u"2.5"_s)->number, 2) << "to the even one";
    EXPECT_FALSE(TypedPage::read(u"inf"_s));
    EXPECT_FALSE(TypedPage::read(u"1e3"_s));
    EXPECT_FALSE(TypedPage::read(u"１"_s));
}

TEST_F(Viewer, PagesThroughOneAndAHalfMillionRecords)
{
    load(Numbers);
    show();
    EXPECT_EQ(user.label(), u"第1页共2页"_s);
    EXPECT_EQ(user.rows(), 999999);
    EXPECT_EQ(user.grid().TextMatrix(999999, 1), u"999999"_s);
    user.press(u"Last"_s);
    EXPECT_EQ(user.label(), u"第2页共2页"_s);
    EXPECT_EQ(user.rows(), 500001);
    EXPECT_EQ(user.grid().TextMatrix(1, 1), u"1000000"_s);
    EXPECT_EQ(user.grid().TextMatrix(500001, 1), u"1500000"_s);
    user.goTo(u"1"_s);
    EXPECT_EQ(user.grid().TextMatrix(1, 1), u"1"_s);
    EXPECT_EQ(openings, 0);
}

TEST_F(Viewer, TakesTheButtonStatesThatItIsGiven)
{
    load(u"select * from T"_s);
    viewer.PutFilterManager(manager);
    viewer.GetData(result.connection(), result.recordset(), 1, database.connectionString(), statement, false,
                   {}, false, false, true, false);
    EXPECT_FALSE(user.toolbar().isButtonEnabled(u"Filter"_s));
    EXPECT_TRUE(user.toolbar().isButtonEnabled(u"Sort"_s));
    EXPECT_FALSE(user.toolbar().isButtonEnabled(u"ToFullTable"_s));
    EXPECT_TRUE(user.toolbar().isButtonPressed(u"Part"_s));
}

TEST_F(Viewer, OpensInThePartFieldView)
{
    load(u"select * from T"_s, u"select Name, Born from T"_s);
    show(1, false);
    EXPECT_EQ(user.row(0), u"Name Born"_s);
    EXPECT_EQ(user.grid().Col(), 2) << "the current cell is one that is seen";
    EXPECT_FALSE(viewer.IsAll());
}

TEST_F(Viewer, ShowsTheKeptWidths)
{
    load(u"select * from T"_s);
    parts.vsfgDataGrid->PutColWidth(2, 3210);
    ColumnLayout(*parts.vsfgDataGrid, history()).SaveColumnWidths(0);
    show();
    EXPECT_EQ(user.grid().ColWidth(2), 3210);
}

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
    EXPECT_EQ(history().Item(2)->IsShowAllFields, 0);
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
    EXPECT_EQ(history().Item(2)->IsShowAllFields, 1);
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

TEST_F(Viewer, AFilterThatCantBeReadIsToldAndKeepsWhatIsShown)
{
    load(u"select * from T"_s);
    show();
    condition = u"Nothing = 1"_s;
    MessageAnswers messages;
    user.press(u"Filter"_s);
    EXPECT_EQ(messages.texts(), QStringList(u"数据库读失败。"_s));
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

// A statement that can't be opened: nothing that the user sees may change, and the viewer works on.
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
    EXPECT_EQ(messages.texts(), key == u"Filter" ? QStringList(u"数据库读失败。"_s) : QStringList());
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

TEST_F(Viewer, ARightClickMakesItsCellCurrentAndOffersTheMenu)
{
    load(u"select * from T"_s);
    show();
    user.rightClick(3, 2);
    EXPECT_EQ(user.grid().Row(), 3);
    EXPECT_EQ(user.grid().Col(), 2);
    ASSERT_TRUE(user.menu().isVisible());
    for (int index : {1, 2, 4, 5, 7})
        EXPECT_TRUE(user.menuItem(index)->isEnabled()) << index;
}

TEST_F(Viewer, TheCellWhereTheRightButtonComesUpIsTheOneMeant)
{
    load(u"select * from T"_s);
    show();
    const auto place = [this](int row) {
        return user.grid().visualRect(user.grid().model()->index(row - 1, 1)).center();
    };
    QTest::mousePress(user.grid().viewport(), Qt::RightButton, {}, place(5));
    QTest::mouseRelease(user.grid().viewport(), Qt::RightButton, {}, place(4));
    EXPECT_EQ(user.grid().Row(), 4);
    EXPECT_TRUE(user.menuItem(4)->isEnabled());
}

TEST_F(Viewer, TheMenuFollowsTheButtonsAndTheCell)
{
    load(u"select * from T"_s);
    show();
    user.rightClick(5, 2);
    EXPECT_FALSE(user.menuItem(4)->isEnabled()) << "an empty cell";
    user.menu().close();
    user.toolbar().setButtonEnabled(u"ToFullTable"_s, false);
    user.toolbar().setButtonEnabled(u"Filter"_s, false);
    user.rightClick(1, 2);
    EXPECT_FALSE(user.menuItem(4)->isEnabled());
    EXPECT_FALSE(user.menuItem(5)->isEnabled());
    EXPECT_TRUE(user.menuItem(7)->isEnabled());
}

TEST_F(Viewer, TheMenuKeyOffersTheMenuAtTheCurrentCell)
{
    load(u"select * from T"_s);
    show();
    user.grid().PutRow(2);
    QTest::keyClick(&user.grid(), Qt::Key_Menu);
    EXPECT_TRUE(user.menu().isVisible());
    EXPECT_TRUE(user.menuItem(4)->isEnabled());
}

TEST_F(Viewer, TheMenusCellFilterKeepsTheRecordsWithThatText)
{
    load(u"select * from T"_s);
    show();
    user.rightClick(4, 2);
    user.choose(4);
    EXPECT_EQ(user.rows(), 2);
    EXPECT_TRUE(latestStatement().contains(u"Name like 'Anna'"_s)) << qPrintable(latestStatement());
    EXPECT_EQ(history().Count(), 2);
    user.rightClick(2, 1);
    user.choose(4);
    EXPECT_EQ(user.rows(), 1);
    EXPECT_TRUE(latestStatement().contains(u"ID like 4"_s)) << "a number stands without quotes";
}

TEST_F(Viewer, TheMenusCellFilterTellsWhatItCantFilterBy)
{
    load(u"select * from T"_s);
    show();
    MessageAnswers messages;
    user.rightClick(3, 2);
    user.choose(4);
    user.rightClick(1, 4);
    user.choose(4);
    EXPECT_EQ(messages.texts(), QStringList({u"对不起，过滤内容中不能含有\"  ' \"符号!"_s,
                                             u"对不起，过滤操作不支持选中内容的数据类型！"_s}));
    EXPECT_EQ(openings, 0);
    EXPECT_EQ(history().Count(), 1);
}

TEST_F(Viewer, TheMenuSwitchesFieldsAndShowsTheWholeTable)
{
    load(u"select * from T where ID < 3"_s, u"select Name from T"_s);
    show();
    user.rightClick(1, 1);
    user.choose(2);
    EXPECT_EQ(user.row(0), u"Name"_s);
    user.rightClick(1, 2);
    user.choose(1);
    EXPECT_EQ(user.row(0), u"ID Name Price Born"_s);
    user.rightClick(1, 1);
    user.choose(5);
    EXPECT_EQ(user.rows(), 5);
}

TEST_F(Viewer, ClosesByButtonMenuEscapeAndF11)
{
    load(u"select * from T"_s);
    const std::function<void()> ways[] = {
        [this] { QTest::mouseClick(viewer.findChild<QPushButton *>(u"cmdClose"_s), Qt::LeftButton); },
        [this] {
            user.rightClick(1, 1);
            user.choose(7);
        },
        [this] { QTest::keyClick(&user.grid(), Qt::Key_Escape); },
        [this] { QTest::keyClick(&user.grid(), Qt::Key_F11); },
        [this] { QTest::keyClick(viewer.findChild<QLineEdit *>(u"txtPage"_s), Qt::Key_F11); },
    };
    for (const auto &close : ways) {
        show();
        ASSERT_TRUE(viewer.isVisible());
        close();
        EXPECT_FALSE(viewer.isVisible());
    }
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

TEST_F(Viewer, AnEditThatWasBegunIsSavedBeforeItIsShown)
{
    load(u"select * from T"_s);
    result.recordset()->Fields().Item(1).PutValue(u"Carla"_s);
    show();
    EXPECT_EQ(user.grid().TextMatrix(1, 2), u"Carla"_s);
    EXPECT_EQ(database.ask(u"select Name from T where ID = 1"_s), u"Carla"_s);
}
