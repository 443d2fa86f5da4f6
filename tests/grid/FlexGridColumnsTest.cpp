// The columns of the flex grids: their widths and headings.
#include "FlexGridFixture.h"
#include "grid/Twips.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

TEST_F(Grid, WidthsAreKeptExactlyInTwips)
{
    EXPECT_EQ(grid.ColWidth(2), -1);
    EXPECT_EQ(grid.ColWidthInUse(2), 960);
    EXPECT_EQ(grid.columnWidth(1), Twips::toPixels(960, grid));
    for (const int twips : {1, 100, 961, 967, 5003}) {
        grid.PutColWidth(2, twips);
        EXPECT_EQ(grid.ColWidth(2), twips);
        EXPECT_EQ(grid.columnWidth(1), Twips::toPixels(twips, grid));
    }
    grid.PutColWidth(2, -1);
    EXPECT_EQ(grid.ColWidth(2), -1);
    EXPECT_EQ(grid.columnWidth(1), Twips::toPixels(960, grid));
}

TEST_F(Grid, AWidthOfNoneHidesTheColumn)
{
    grid.PutColWidth(3, 0);
    EXPECT_TRUE(grid.isColumnHidden(2));
    EXPECT_EQ(grid.ColWidth(3), 0);
    grid.PutColWidth(3, 1500);
    EXPECT_FALSE(grid.isColumnHidden(2));
    EXPECT_EQ(grid.columnWidth(2), Twips::toPixels(1500, grid));
}

TEST_F(Grid, AHiddenCurrentColumnLeavesKeysAndScrollingAlive)
{
    grid.PutRow(1);
    grid.PutCol(1);
    grid.PutColWidth(1, 0);
    EXPECT_EQ(grid.Col(), 1);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(grid.Row(), 2);
    grid.PutCol(1);
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(grid.Text(), u"r2c1"_s);
    grid.PutTopRow(60);
    EXPECT_EQ(grid.TopRow(), 60);
}

TEST_F(Grid, DraggingAColumnEdgeReportsTheNewWidth)
{
    QSignalSpy changed(&grid, &FlexGrid::ColWidthChanged);
    QHeaderView *header = grid.horizontalHeader();
    const QPoint edge(header->sectionViewportPosition(1) - 1, header->height() / 2);
    QTest::mousePress(header->viewport(), Qt::LeftButton, {}, edge);
    QTest::mouseMove(header->viewport(), edge + QPoint(20, 0));
    QTest::mouseMove(header->viewport(), edge + QPoint(40, 0));
    QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, edge + QPoint(40, 0));
    ASSERT_FALSE(changed.isEmpty());
    EXPECT_EQ(changed.last().at(0).toInt(), 1);
    EXPECT_EQ(grid.ColWidth(1), Twips::fromPixels(grid.columnWidth(0), grid));
    EXPECT_GT(grid.ColWidth(1), 960);
}

TEST_F(Grid, RefillingKeepsWidths)
{
    grid.PutColWidth(1, 1111);
    grid.PutColWidth(2, 0);
    grid.Show(std::make_unique<TextCells>(11, 6));
    EXPECT_EQ(grid.ColWidth(1), 1111);
    EXPECT_EQ(grid.columnWidth(0), Twips::toPixels(1111, grid));
    EXPECT_TRUE(grid.isColumnHidden(1));
    EXPECT_EQ(grid.ColWidth(3), -1);
    EXPECT_EQ(grid.Row(), 0);
}

TEST_F(Grid, HeadingsAreThoseOfTheColumns)
{
    EXPECT_EQ(grid.Headings(), QStringList({u"r0c1"_s, u"r0c2"_s, u"r0c3"_s, u"r0c4"_s, u"r0c5"_s}));
}

TEST_F(Grid, PressingAHeadingSelectsNothingAndMovesNothing)
{
    grid.PutRow(3);
    grid.PutCol(2);
    const QModelIndexList selected = grid.selectionModel()->selectedIndexes();
    QHeaderView *header = grid.horizontalHeader();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, {header->sectionPosition(4) + 5, 5});
    EXPECT_EQ(grid.Row(), 3);
    EXPECT_EQ(grid.Col(), 2);
    EXPECT_EQ(grid.selectionModel()->selectedIndexes(), selected);
}

TEST(MSFlexGrid, TheLastColumnFillsWhateverWidthThereIs)
{
    MSFlexGrid grid;
    QSignalSpy changed(&grid, &FlexGrid::ColWidthChanged);
    grid.show();
    for (const int width : {600, 300}) {
        grid.resize(width, 200);
        grid.Show(std::make_unique<TextCells>(3, 2));
        QCoreApplication::processEvents();
        EXPECT_EQ(grid.ColWidth(1), FlexGrid::useDefaultWidth) << "nobody gave it another";
        EXPECT_EQ(grid.columnWidth(0) + grid.columnWidth(1), grid.viewport()->width());
        EXPECT_EQ(grid.horizontalScrollBar()->maximum(), 0);
    }
    EXPECT_TRUE(changed.isEmpty());
}
