// The full-screen viewer alone, with a real SQLite database: opening, contents, closing.
#include "ViewerFixture.h"

#include "ado/Recordset.h"
#include "control/parts/toolbar/GridToolbar.h"
#include "grid/FlexGrid.h"
#include "grid/cells/FlexGridModel.h"
#include "query/SharedValues.h"
#include "session/commands/Command.h"
#include "session/history/SharedHistory.h"
#include "session/layout/ColumnLayout.h"

#include <QtGui/QScreen>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>

using namespace KovaTest;
using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

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

TEST_F(Viewer, ShowsTheDecimalsOfTheFields)
{
    database.run(u"CREATE TABLE 价 (甲 DECIMAL(12,2)); INSERT INTO 价 VALUES (0.2), (NULL)"_s);
    load(u"SELECT * FROM 价"_s);
    show();
    const auto &shown = *viewer.findChild<VSFlexGrid *>(u"vsfgShowData"_s);
    const auto &cells = *qobject_cast<const FlexGridModel *>(shown.model());
    EXPECT_EQ(cells.shownText(1, 1), u"0.20"_s);
    EXPECT_EQ(cells.shownText(2, 1), QString());
    EXPECT_EQ(cells.shownText(3, 1), QString()) << "no record";
    EXPECT_EQ(shown.TextMatrix(1, 1), u"0.2"_s);
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
    for (const QString &key : user.toolbar().keys())
        EXPECT_EQ(user.toolbar().isButtonVisible(key), Command::find(key)->isInViewer) << qPrintable(key);
    for (const char *key : {"SingleRecord", "AllRecord", "QuickFilter", "FromResult", "FullScreen"})
        EXPECT_FALSE(user.toolbar().isButtonVisible(QString::fromLatin1(key))) << key;
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

TEST_F(Viewer, ShowsPageZeroOfZeroForAClosedRecordset)
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

TEST_F(Viewer, AnEmptyResultShowsTheWayBack)
{
    load(u"select * from T"_s);
    show();
    const auto *hint = viewer.findChild<QLabel *>(u"lblEmpty"_s);
    ASSERT_TRUE(hint);
    EXPECT_FALSE(hint->isVisible());
    condition = u"ID > 99"_s;
    user.press(u"Filter"_s);
    EXPECT_TRUE(hint->isVisible());
    EXPECT_EQ(hint->text(), u"没有符合条件的记录。按“后退”返回上一步的结果。"_s);
    EXPECT_FALSE(user.grid().showGrid()) << "the rows behind it hold nothing";
    user.press(u"ToPreview"_s);
    EXPECT_FALSE(hint->isVisible());
    EXPECT_TRUE(user.grid().showGrid());
}

TEST_F(Viewer, AResultThatWasEmptyFromTheBeginningHasNoWayBack)
{
    load(u"select * from T where ID > 99"_s);
    show();
    EXPECT_EQ(viewer.findChild<QLabel *>(u"lblEmpty"_s)->text(), u"没有记录"_s);
}

TEST_F(Viewer, ANullIsTheEmptyText)
{
    load(u"select * from T"_s);
    show();
    EXPECT_EQ(user.grid().TextMatrix(2, 3), QString());
    EXPECT_EQ(user.grid().TextMatrix(5, 2), QString());
}

TEST_F(Viewer, TakesTheButtonStatesThatItIsGiven)
{
    load(u"select * from T"_s);
    viewer.PutFilterManager(session->sharedHistory().manager());
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
    session->columns().SaveColumnWidths();
    show();
    EXPECT_EQ(user.grid().ColWidth(2), 3210);
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

TEST_F(Viewer, AnEditThatWasBegunIsSavedBeforeItIsShown)
{
    load(u"select * from T"_s);
    result.recordset()->Fields().Item(1).PutValue(u"Carla"_s);
    show();
    EXPECT_EQ(user.grid().TextMatrix(1, 2), u"Carla"_s);
    EXPECT_EQ(database.ask(u"select Name from T where ID = 1"_s), u"Carla"_s);
}
