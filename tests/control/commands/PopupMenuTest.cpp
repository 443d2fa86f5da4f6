// The popup menu: its items, and where it opens.
#include "Shop.h"

#include "support/Dialogs.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QMenu>

using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

class PopupMenuOf : public Shop
{
protected:
    QMenu *menu = grid.findChild<QMenu *>(u"PopMnuData"_s);
};

} // namespace

TEST_F(PopupMenuOf, TheMenuHasFifteenItemsWithTheirIndexes)
{
    ASSERT_GE(menu->actions().size(), 15) << "others may come after them";
    for (int i = 0; i < 15; ++i) {
        const QAction *action = menu->actions().at(i);
        EXPECT_EQ(action->objectName(), u"PopMnuDataAction%1"_s.arg(i + 1));
        EXPECT_EQ(action->data().toInt(), i + 1);
        EXPECT_EQ(action->isSeparator(), i == 2 || i == 6 || i == 9 || i == 12) << i + 1;
    }
}

TEST_F(PopupMenuOf, TheMenuShowsTheWayToTheOtherView)
{
    ASSERT_TRUE(load());
    choose(5, 3);
    EXPECT_TRUE(isSingleRecordShown());
    EXPECT_EQ(listed(u"ID"_s), u"3"_s) << "the row under the pointer is the one meant";
    EXPECT_FALSE(menu->actions().at(4)->isVisible());
    choose(6, 1);
    EXPECT_FALSE(isSingleRecordShown());
    EXPECT_FALSE(menu->actions().at(5)->isVisible());
}

TEST_F(PopupMenuOf, TheMenuRepeatsTheToolbar)
{
    ASSERT_TRUE(load());
    choose(2, 1);
    EXPECT_TRUE(isPressed(u"Part"_s));
    choose(1, 1);
    EXPECT_TRUE(isPressed(u"All"_s));
    choose(15, 1);
    EXPECT_EQ(rows(), records);
    choose(5, 2);
    {
        WindowAnswers menuAndDialog({[](QDialog &dialog) { filter(dialog, u"ID < 3"_s); }});
        menuAndDialog.clickInMenu(u"PopMnuDataAction11"_s);
        clickCell(1, 1, Qt::RightButton);
    }
    EXPECT_FALSE(isSingleRecordShown()) << "the menu's filter leaves the single record";
    EXPECT_EQ(rows(), 2);
    WindowAnswers menuAndDialog({[](QDialog &dialog) { sort(dialog, {u"ID"_s}, true); }});
    menuAndDialog.clickInMenu(u"PopMnuDataAction12"_s);
    clickCell(1, 1, Qt::RightButton);
    EXPECT_EQ(texts(u"ID"_s), QStringList({u"2"_s, u"1"_s}));
}

TEST_F(PopupMenuOf, TheMenuFollowsTheButtonsState)
{
    grid.PutTableType(KOVAVSFDataGrid::DefSQL);
    ASSERT_TRUE(load());
    grid.PutFilterEnable(false);
    choose(0, 1);
    EXPECT_FALSE(menu->actions().at(10)->isEnabled());
    EXPECT_FALSE(menu->actions().at(14)->isEnabled()) << "a statement of the host has no full table";
    EXPECT_TRUE(menu->actions().at(11)->isEnabled());
}

TEST_F(PopupMenuOf, ARightClickOnAnEmptyResultOpensNoMenu)
{
    ASSERT_TRUE(load(u"SELECT * FROM 商品 WHERE ID > 100"_s));
    WindowAnswers windows;
    QTest::mouseClick(table->viewport(), Qt::RightButton, {}, {20, 10});
    EXPECT_FALSE(windows.wasMenuShown());
}

TEST_F(PopupMenuOf, ARightClickWithTheToolbarDisabledOpensNoMenu)
{
    ASSERT_TRUE(load());
    grid.PutDisplayEable(false);
    WindowAnswers windows;
    int up = 0;
    QObject::connect(&grid, &KOVAVSFDataGrid::DataMouseUp, &grid, [&] { ++up; });
    clickCell(1, 1, Qt::RightButton);
    EXPECT_FALSE(windows.wasMenuShown());
    EXPECT_EQ(up, 1);
}

TEST_F(PopupMenuOf, ARowHeadingsRowBecomesCurrentBeforeTheMenu)
{
    ASSERT_TRUE(load());
    WindowAnswers windows;
    windows.clickInMenu(u"PopMnuDataAction5"_s);
    const QHeaderView *heading = table->verticalHeader();
    QTest::mouseClick(heading->viewport(), Qt::RightButton, {}, {5, heading->sectionPosition(6) + 5});
    EXPECT_EQ(listed(u"ID"_s), u"7"_s);
}

TEST_F(PopupMenuOf, AHeadingAndThePlaceBelowTheLastRowHaveTheMenuToo)
{
    ASSERT_TRUE(load());
    clickCell(4, 1);
    const auto chooseAt = [&](QWidget *place, QPoint where) {
        WindowAnswers windows;
        windows.clickInMenu(u"PopMnuDataAction5"_s);
        QTest::mouseClick(place, Qt::RightButton, {}, where);
        EXPECT_TRUE(windows.wasMenuShown());
        EXPECT_EQ(listed(u"ID"_s), u"4"_s) << "the current row stays the one meant";
        click(u"AllRecord"_s);
    };
    chooseAt(table->horizontalHeader()->viewport(), {20, 5});
    chooseAt(table->viewport(), {20, table->viewport()->height() - 3});
}

TEST_F(PopupMenuOf, AHeadingsMenuMeansTheCurrentRowWhereverTheRowsAreScrolled)
{
    database.run(u"WITH RECURSIVE n(i) AS (SELECT 100 UNION ALL SELECT i+1 FROM n WHERE i < 300)"
                 " INSERT INTO 商品(ID,名称) SELECT i, '茶' FROM n"_s);
    ASSERT_TRUE(load());
    grid.SetGridRow(150);
    table->scrollTo(table->model()->index(149, 0), QAbstractItemView::PositionAtTop);
    WindowAnswers windows;
    windows.clickInMenu(u"PopMnuDataAction5"_s);
    QTest::mouseClick(table->horizontalHeader()->viewport(), Qt::RightButton, {}, {20, 5});
    EXPECT_EQ(grid.GetGridRowL(), 150);
}

TEST_F(PopupMenuOf, TheMenuKeyOpensTheMenu)
{
    ASSERT_TRUE(load());
    clickCell(2, 1);
    table->setFocus();
    for (const auto key : {Qt::Key_Menu, Qt::Key_F10}) {
        WindowAnswers windows;
        QTest::keyClick(table, key, key == Qt::Key_F10 ? Qt::ShiftModifier : Qt::NoModifier);
        EXPECT_TRUE(windows.wasMenuShown());
    }
    click(u"SingleRecord"_s);
    WindowAnswers windows;
    windows.clickInMenu(u"PopMnuDataAction6"_s);
    QTest::keyClick(list, Qt::Key_Menu);
    EXPECT_FALSE(isSingleRecordShown());
}

TEST_F(PopupMenuOf, MouseUpIsReportedAfterTheMenu)
{
    ASSERT_TRUE(load());
    bool wasShownBefore = false;
    QObject::connect(&grid, &KOVAVSFDataGrid::DataMouseUp, &grid,
                     [&](qint16 &button, qint16 &, float &, float &) {
                         wasShownBefore = button == 2 && isSingleRecordShown();
                     });
    choose(5, 1);
    EXPECT_TRUE(wasShownBefore);
}
