// The entries of a column's menu that change its width and its place.
#include "ColumnMenuFixture.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolTip>

using namespace KovaTest;
using namespace Qt::StringLiterals;

using ColumnMenuLayout = ColumnMenu;

TEST_F(ColumnMenuLayout, FitsAndRestoresWidths)
{
    ASSERT_TRUE(load());
    const int before = width(3);
    const int idBefore = width(1);
    choose(u"Unit Price"_s, u"FitColumn"_s);
    EXPECT_NE(width(3), before);
    EXPECT_EQ(width(1), idBefore);
    choose(u"Unit Price"_s, u"RestoreWidths"_s);
    EXPECT_EQ(width(3), before);
    open(u"ID"_s);
    EXPECT_FALSE(entry(u"RestoreWidths"_s)->isEnabled());
    menu()->close();
    choose(u"ID"_s, u"FitAllColumns"_s);
    EXPECT_LT(width(1), idBefore);
    // The widths belong to the fields from now on.
    const int fitted = width(1);
    click(u"Part"_s);
    click(u"All"_s);
    EXPECT_EQ(width(1), fitted);
}

// Also while the mouse is over it, and when the column is sorted by later.
TEST_F(ColumnMenuLayout, AFittedHeadingHasRoomForNameSortAndArrow)
{
    ASSERT_TRUE(load());
    choose(u"ID"_s, u"FitAllColumns"_s);
    for (const QString &name : AllColumns) {
        SCOPED_TRACE(name.toStdString());
        if (name != u"图片")
            choose(name, u"SortDescending"_s);
        QHelpEvent help(QEvent::ToolTip, heading(name), header()->viewport()->mapToGlobal(heading(name)));
        QCoreApplication::sendEvent(header()->viewport(), &help);
        EXPECT_FALSE(QToolTip::isVisible()) << "nothing of the name is cut";
        open(name);
        EXPECT_TRUE(menu()->isVisible());
        menu()->close();
    }
}

TEST_F(ColumnMenuLayout, CompressViewPressedAgainBringsTheWidthsBack)
{
    ASSERT_TRUE(load());
    choose(u"ID"_s, u"FitAllColumns"_s);
    QList<int> before;
    for (int col = 1; col <= AllColumns.size(); ++col)
        before.append(width(col));
    click(u"CompressView"_s);
    const int share = width(1);
    EXPECT_EQ(width(2), share);
    EXPECT_NE(share, before.front());
    click(u"CompressView"_s);
    for (int col = 1; col <= AllColumns.size(); ++col)
        EXPECT_EQ(width(col), before.at(col - 1)) << col;
    click(u"CompressView"_s);
    EXPECT_EQ(width(1), share);
    grid.SeeCompressView();
    EXPECT_EQ(width(1), share) << "a host that fits twice gets the same";
}

TEST_F(ColumnMenuLayout, FreezesUpToTheColumnAndThaws)
{
    ASSERT_TRUE(load());
    grid.resize(500, 400);
    choose(u"名称"_s, u"FreezeColumns"_s);
    table->horizontalScrollBar()->setValue(table->horizontalScrollBar()->maximum());
    ASSERT_GT(table->horizontalScrollBar()->value(), 0);
    EXPECT_EQ(table->visualRect(table->model()->index(0, 0)).left(), 0);
    table->horizontalScrollBar()->setValue(0);
    open(u"名称"_s);
    EXPECT_TRUE(entry(u"FreezeColumns"_s)->isChecked());
    menu()->close();
    choose(u"名称"_s, u"FreezeColumns"_s);
    table->horizontalScrollBar()->setValue(table->horizontalScrollBar()->maximum());
    EXPECT_LT(table->visualRect(table->model()->index(0, 0)).left(), 0);
}

TEST_F(ColumnMenuLayout, MovedColumnsStayWhereTheyAreWhenRecordsChange)
{
    ASSERT_TRUE(load());
    header()->moveSection(0, 2);
    const QStringList moved{u"名称"_s, u"Unit Price"_s, u"ID"_s, u"城市"_s, u"日期"_s, u"停用"_s, u"图片"_s};
    ASSERT_EQ(shownOrder(), moved);
    choose(u"城市"_s, u"SortAscending"_s);
    EXPECT_EQ(shownOrder(), moved);
    EXPECT_EQ(grid.GetBindFieldIndex(u"ID"_s), 1);
    choose(u"日期"_s, u"HideColumn"_s);
    EXPECT_EQ(shownOrder(),
              QStringList({u"名称"_s, u"Unit Price"_s, u"ID"_s, u"城市"_s, u"停用"_s, u"图片"_s}));
    // Other fields come in their own order, and so do these when they come again.
    ASSERT_TRUE(load(u"SELECT ID,商品 FROM 订单"_s, {}));
    ASSERT_TRUE(load());
    EXPECT_EQ(shownOrder(), PartColumns);
}

// As dragging a heading does, without a mouse.
TEST_F(ColumnMenuLayout, MovesTheColumnByKeysPastTheOnesThatAreHidden)
{
    ASSERT_TRUE(load());
    choose(u"名称"_s, u"HideColumn"_s);
    const auto press = [&](const QString &column, Qt::Key letter) {
        table->setCurrentIndex(table->model()->index(0, grid.GetBindFieldIndex(column) - 1));
        table->setFocus();
        QTest::keyClick(table, Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
        ASSERT_TRUE(menu()->isVisible());
        QTest::keyClick(menu(), letter);
    };
    press(u"ID"_s, Qt::Key_N);
    EXPECT_EQ(shownOrder(),
              QStringList({u"Unit Price"_s, u"ID"_s, u"城市"_s, u"日期"_s, u"停用"_s, u"图片"_s}));
    EXPECT_EQ(grid.GetBindFieldIndex(u"ID"_s), 1) << "the number is the field's";
    press(u"城市"_s, Qt::Key_B);
    EXPECT_EQ(shownOrder(),
              QStringList({u"Unit Price"_s, u"城市"_s, u"ID"_s, u"日期"_s, u"停用"_s, u"图片"_s}));
    open(u"Unit Price"_s);
    EXPECT_FALSE(entry(u"MoveLeft"_s)->isEnabled()) << "it is the first";
    EXPECT_TRUE(entry(u"MoveRight"_s)->isEnabled());
    menu()->close();
}

TEST_F(ColumnMenuLayout, WithoutRecordsTheKeyOpensTheMenuOfTheCurrentColumn)
{
    const auto columnOfMenu = [this] {
        for (int section = 0; section < header()->count(); ++section)
            table->setColumnWidth(section, 60); // the screen has room for each menu below its heading
        table->setFocus();
        QTest::keyClick(table, Qt::Key_Down, Qt::ControlModifier | Qt::AltModifier);
        EXPECT_TRUE(menu()->isVisible());
        const int section = header()->logicalIndexAt(header()->viewport()->mapFromGlobal(menu()->pos()).x());
        QTest::keyClick(menu(), Qt::Key_Escape);
        return section < 0 ? QString() : table->model()->headerData(section, Qt::Horizontal).toString();
    };
    grid.move(0, 0);
    grid.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
    ASSERT_TRUE(load(u"SELECT ID, 名称, 城市 FROM 商品"_s, {}));
    clickCell(1, 2);
    EXPECT_EQ(columnOfMenu(), u"名称"_s);
    ASSERT_TRUE(load(u"SELECT ID, 名称, 城市 FROM 商品 WHERE 1 = 0"_s, {}));
    EXPECT_EQ(columnOfMenu(), u"名称"_s) << "the one that was current";
    QTest::keyClick(table, Qt::Key_Right);
    EXPECT_EQ(columnOfMenu(), u"城市"_s);
    QTest::keyClick(table, Qt::Key_Right);
    EXPECT_EQ(columnOfMenu(), u"城市"_s) << "the last one";
    QTest::keyClick(table, Qt::Key_Left);
    EXPECT_EQ(columnOfMenu(), u"名称"_s);
    QTest::keyClick(table, Qt::Key_Left);
    QTest::keyClick(table, Qt::Key_Left);
    EXPECT_EQ(columnOfMenu(), u"ID"_s);
}
