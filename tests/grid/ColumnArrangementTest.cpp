// Moving and freezing columns, fitting them to their texts, and the marks in their headings.
#include "grid/ColumnOrder.h"
#include "grid/FlexGrid.h"
#include "grid/FlexHeader.h"
#include "grid/cells/TextCells.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QHelpEvent>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyledItemDelegate>
#include <QtWidgets/QToolTip>
#include <gtest/gtest.h>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

QStringList list(const char *names)
{
    return QString::fromUtf8(names).split(u' ', Qt::SkipEmptyParts);
}

std::unique_ptr<TextCells> cells(const QStringList &headings, int rows = 50)
{
    auto made = std::make_unique<TextCells>(rows + 1, static_cast<int>(headings.size()) + 1);
    for (int col = 1; col <= headings.size(); ++col) {
        for (int row = 0; row <= rows; ++row)
            made->setText(row, col,
                          row == 0 ? headings.at(col - 1) : u"%1%2"_s.arg(headings.at(col - 1)).arg(row));
    }
    return made;
}

struct Columns : testing::Test
{
    Columns()
    {
        grid.PutHasColumnMenus(true);
        grid.resize(400, 300);
        grid.Show(cells(list("编号 名称 城市 日期 单价 备注")));
        grid.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&grid));
        for (int col = 1; col < grid.Cols(); ++col)
            grid.PutColWidth(col, 1500);
        QCoreApplication::processEvents(); // the scroll bar follows
    }

    QPoint heading(int col) const { return header->headingRect(col - 1).center(); }
    void drag(int from, int to)
    {
        QWidget *const surface = header->viewport();
        QTest::mousePress(surface, Qt::LeftButton, {}, heading(from));
        // Begins only beyond the distance that makes a drag.
        QTest::mouseMove(surface, (heading(from) + heading(to)) / 2);
        const QPoint end = heading(to) + QPoint(to > from ? 30 : -30, 0);
        QTest::mouseMove(surface, end);
        QTest::mouseRelease(surface, Qt::LeftButton, {}, end);
    }
    QPoint cell(int row, int col) const
    {
        return grid.visualRect(grid.model()->index(row - 1, col - 1)).center();
    }
    QPoint arrow(int col) const
    {
        const QRect rect = header->headingRect(col - 1);
        return {rect.right() - header->fontMetrics().height() / 2 - 2, rect.center().y()};
    }

    VSFlexGrid grid;
    FlexHeader *header = qobject_cast<FlexHeader *>(grid.horizontalHeader());
};

} // namespace

TEST(ColumnOrder, PutsTheNamedOnesFirstAndOthersAfterTheOneBefore)
{
    struct Case
    {
        const char *headings;
        const char *order;
        const char *expected;
    };
    for (const Case &test : std::initializer_list<Case>{
             {"a b c", "", "a b c"},
             {"a b c", "c a b", "c a b"},
             {"a b c d", "c a", "c d a b"},
             {"a b c", "x c y", "c a b"},
             {"a b a", "a b a", "a b a"},
             {"a a b", "b a a", "b a a"},
             {"", "a", ""},
             {"a b", "b b b", "b a"},
         }) {
        const QStringList headings = list(test.headings);
        QStringList arranged;
        for (const int place : arrangedColumns(headings, list(test.order)))
            arranged.append(headings.at(place));
        // Those not named and without one before them come last.
        EXPECT_EQ(arranged.size(), headings.size()) << test.order;
        EXPECT_EQ(arranged.join(u' ').toStdString(), test.expected) << test.order;
    }
}

TEST_F(Columns, AHeadingIsDraggedToAnotherPlaceAndItsNumberStays)
{
    QSignalSpy arranged(&grid, &FlexGrid::ColumnsArranged);
    drag(1, 3);
    EXPECT_EQ(grid.ColumnOrder(), list("名称 城市 编号 日期 单价 备注"));
    EXPECT_GE(arranged.count(), 1);
    EXPECT_EQ(grid.TextMatrix(0, 1), u"编号"_s);
    EXPECT_EQ(grid.TextMatrix(3, 1), u"编号3"_s);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cell(2, 1));
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(grid.Text(), u"编号2"_s);
    // Other records of the same fields, and a part of them.
    grid.Show(cells(list("编号 名称 城市 日期 单价 备注"), 5));
    EXPECT_EQ(grid.ColumnOrder(), list("名称 城市 编号 日期 单价 备注"));
    grid.Show(cells(list("编号 城市"), 5));
    EXPECT_EQ(grid.ColumnOrder(), list("城市 编号"));
    grid.Show(cells(list("编号 名称 城市 日期 单价 备注"), 5));
    EXPECT_EQ(grid.ColumnOrder(), list("名称 城市 编号 日期 单价 备注"));
    grid.ArrangeColumns({}, 0);
    EXPECT_EQ(grid.ColumnOrder(), list("编号 名称 城市 日期 单价 备注"));
}

TEST_F(Columns, AClickOnAHeadingMovesNothing)
{
    QSignalSpy clicked(&grid, &FlexGrid::HeadingClicked);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, heading(2) - QPoint(20, 0));
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_EQ(clicked.front().front().toInt(), 2);
    EXPECT_EQ(grid.ColumnOrder(), list("编号 名称 城市 日期 单价 备注"));
}

TEST_F(Columns, FrozenColumnsStayInViewAndAnswerToTheMouse)
{
    grid.ArrangeColumns({}, 1);
    EXPECT_EQ(grid.frozenWidth(), 0) << "nothing is scrolled yet";
    const QRect before = grid.visualRect(grid.model()->index(1, 0));
    grid.horizontalScrollBar()->setValue(150);
    EXPECT_EQ(grid.frozenWidth(), 100);
    EXPECT_EQ(grid.visualRect(grid.model()->index(1, 0)), before);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, before.center());
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(grid.Row(), 2);
    EXPECT_EQ(grid.horizontalScrollBar()->value(), 150) << "it is in view already";
    EXPECT_EQ(grid.ColumnOfHeadingAt(header->headingRect(0).center()), 1);
    QSignalSpy clicked(&grid, &FlexGrid::HeadingClicked);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, header->headingRect(0).center());
    ASSERT_EQ(clicked.count(), 1);
    EXPECT_EQ(clicked.front().front().toInt(), 1);
}

TEST_F(Columns, AKeyNeverLeavesTheCurrentCellBelowFrozenColumns)
{
    grid.ArrangeColumns({}, 1);
    grid.PutRow(1);
    grid.PutCol(6);
    grid.setFocus();
    grid.scrollTo(grid.currentIndex());
    for (int col = 5; col >= 2; --col) {
        QTest::keyClick(&grid, Qt::Key_Left);
        EXPECT_EQ(grid.Col(), col);
        EXPECT_GE(grid.visualRect(grid.currentIndex()).left(), grid.frozenWidth()) << col;
    }
}

TEST_F(Columns, FrozenColumnsArePaintedAsTheyAre)
{
    const QImage atRest =
        grid.grab(QRect(grid.viewport()->mapTo(&grid, QPoint(0, 0)), QSize(98, 200))).toImage();
    grid.ArrangeColumns({}, 1);
    grid.horizontalScrollBar()->setValue(150);
    const QImage scrolled =
        grid.grab(QRect(grid.viewport()->mapTo(&grid, QPoint(0, 0)), QSize(98, 200))).toImage();
    EXPECT_EQ(atRest, scrolled);
    // By a delegate of the host's too.
    QStyledItemDelegate delegate;
    grid.setItemDelegate(&delegate);
    const QImage byDelegate = grid.grab().toImage();
    grid.horizontalScrollBar()->setValue(170);
    const QImage further = grid.grab().toImage();
    const QRect frozen(grid.viewport()->mapTo(&grid, QPoint(0, 0)), QSize(98, 200));
    EXPECT_EQ(byDelegate.copy(frozen), further.copy(frozen));
}

TEST_F(Columns, TooManyFrozenColumnsScrollWithTheOthers)
{
    grid.ArrangeColumns({}, 5);
    grid.horizontalScrollBar()->setValue(150);
    EXPECT_EQ(grid.frozenWidth(), 0);
}

TEST_F(Columns, AFrozenColumnsWidthIsDraggedAtItsEdge)
{
    grid.ArrangeColumns({}, 1);
    grid.horizontalScrollBar()->setValue(150);
    const QPoint edge(header->headingRect(0).right() - 1, 5);
    QTest::mousePress(header->viewport(), Qt::LeftButton, {}, edge);
    QTest::mouseMove(header->viewport(), edge + QPoint(20, 0));
    QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, edge + QPoint(20, 0));
    EXPECT_EQ(grid.ColWidth(1), 1800);
}

TEST_F(Columns, AFittingWidthHoldsHeadingAndTexts)
{
    grid.PutTextMatrix(7, 2, u"一个相当长的名称"_s);
    const int fitting = grid.FittingColWidth(2);
    const int text = grid.fontMetrics().horizontalAdvance(u"一个相当长的名称"_s);
    EXPECT_GE(fitting, text * 15);
    EXPECT_LE(fitting, (text + 40) * 15);
    EXPECT_LT(grid.FittingColWidth(1), fitting);
    grid.PutTextMatrix(7, 2, QString(500, u'长'));
    EXPECT_LE(grid.FittingColWidth(2), grid.viewport()->width() / 2 * 15);
    EXPECT_THROW(grid.FittingColWidth(7), std::out_of_range);
}

// Widths in whole pixels are too narrow for some texts. Only a text that is cut has a tool tip.
TEST_F(Columns, ATextIsNeverCutAtItsFittingWidth)
{
    for (int number = 0; number < 300; ++number) {
        const QString text = QString::number(number * 27961.37, 'f', 2);
        grid.PutTextMatrix(1, 2, text);
        grid.PutColWidth(2, grid.FittingColWidth(2));
        QToolTip::hideText();
        const QPoint middle = grid.visualRect(grid.model()->index(0, 1)).center();
        QHelpEvent rest(QEvent::ToolTip, middle, grid.viewport()->mapToGlobal(middle));
        QCoreApplication::sendEvent(grid.viewport(), &rest);
        EXPECT_EQ(QToolTip::text(), QString()) << text.toStdString();
    }
    grid.PutColWidth(2, grid.FittingColWidth(2) - 150);
    const QPoint middle = grid.visualRect(grid.model()->index(0, 1)).center();
    QHelpEvent rest(QEvent::ToolTip, middle, grid.viewport()->mapToGlobal(middle));
    QCoreApplication::sendEvent(grid.viewport(), &rest);
    EXPECT_NE(QToolTip::text(), QString());
}

TEST_F(Columns, ADoubleClickOnAHeadingsEdgeAsksForTheFittingWidth)
{
    QSignalSpy wanted(&grid, &FlexGrid::FittingWidthWanted);
    QTest::mouseDClick(header->viewport(), Qt::LeftButton, {}, {header->headingRect(1).right() - 1, 5});
    ASSERT_EQ(wanted.count(), 1);
    EXPECT_EQ(wanted.front().front().toInt(), 2);
}

TEST_F(Columns, TheArrowOfAHeadingOpensItsMenuAndIsNoClick)
{
    QSignalSpy clicked(&grid, &FlexGrid::HeadingClicked);
    QSignalSpy wanted(&grid, &FlexGrid::ColumnMenuWanted);
    QTest::mouseMove(header->viewport(), arrow(2));
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, arrow(2));
    ASSERT_EQ(wanted.count(), 1);
    EXPECT_EQ(wanted.front().front().toInt(), 2);
    EXPECT_EQ(clicked.count(), 0);
    // Pressed there and released elsewhere it is nothing at all.
    QTest::mousePress(header->viewport(), Qt::LeftButton, {}, arrow(2));
    QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, heading(4));
    EXPECT_EQ(wanted.count(), 1);
    EXPECT_EQ(clicked.count(), 0);
    EXPECT_EQ(grid.ColumnOrder(), list("编号 名称 城市 日期 单价 备注"));
    grid.PutHasColumnMenus(false);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, arrow(2));
    EXPECT_EQ(wanted.count(), 1);
    EXPECT_EQ(clicked.count(), 1);
}

TEST_F(Columns, MarksAreDrawnBesideTheTextAndSpoken)
{
    const QImage plain = header->grab().toImage();
    std::vector<HeadingMark> marks(3);
    marks[2] = {1, true, true, u"第 1 降序，已筛选"_s};
    grid.PutHeadingMarks(marks);
    const QImage marked = header->grab().toImage();
    EXPECT_NE(plain.copy(header->headingRect(1)), marked.copy(header->headingRect(1)));
    EXPECT_EQ(plain.copy(header->headingRect(3)), marked.copy(header->headingRect(3)));
    EXPECT_EQ(grid.model()->headerData(1, Qt::Horizontal).toString(), u"名称"_s);
    EXPECT_EQ(grid.model()->headerData(1, Qt::Horizontal, Qt::AccessibleTextRole).toString(),
              u"名称，第 1 降序，已筛选"_s);
}
