// The full-screen viewer's popup menu.
#include "ViewerFixture.h"

#include "control/parts/toolbar/GridToolbar.h"
#include "grid/FlexGrid.h"
#include "support/MessageAnswers.h"

#include <QtTest/QTest>
#include <QtWidgets/QMenu>

using namespace KovaTest;
using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

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

TEST_F(Viewer, TheMenuShowsTheShortcutsOfItsButtons)
{
    EXPECT_TRUE(user.menuItem(1)->text().endsWith(u"\tCtrl+1"_s)) << qPrintable(user.menuItem(1)->text());
    EXPECT_TRUE(user.menuItem(5)->text().endsWith(u"\tCtrl+0"_s));
    EXPECT_FALSE(user.menuItem(4)->text().contains(u'\t')) << "it is not what the filter button does";
    EXPECT_FALSE(user.menuItem(1)->icon().isNull());
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

TEST_F(Viewer, TheCellFiltersShortcutWorksAsInTheControl)
{
    load(u"select * from T"_s);
    show();
    user.rightClick(5, 2);
    EXPECT_FALSE(user.menuItem(4)->isEnabled()) << "an empty cell";
    user.menu().close();
    viewer.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&viewer));
    user.grid().setFocus();
    user.grid().PutRow(4);
    user.grid().PutCol(2);
    QTest::keyClick(&user.grid(), Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(user.rows(), 2);
    EXPECT_TRUE(latestStatement().contains(u"Name like 'Anna'"_s)) << qPrintable(latestStatement());
}

TEST_F(Viewer, TheMenusCellFilterReportsWhatItCantFilterBy)
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
