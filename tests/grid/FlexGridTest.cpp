#include "FlexGridFixture.h"
#include "grid/cells/TextCells.h"
#include "grid/painting/CellDelegate.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QTextDocumentFragment>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QToolTip>
#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

using namespace KOVAVSFDataGridLib;
using namespace KovaTest;
using namespace Qt::StringLiterals;

namespace {

// The plain text of the tool tip at a position.
QString tipAt(QWidget &viewport, const QPoint &position)
{
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    QHelpEvent rest(QEvent::ToolTip, position, viewport.mapToGlobal(position));
    QCoreApplication::sendEvent(&viewport, &rest);
    return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText().remove(QChar(0x200B));
}

// A million numbered rows.
struct Numbered final : CellSource
{
    int rows() const override { return 1000000; }
    int cols() const override { return 4; }
    QString text(int row, int col) const override { return col == 0 ? QString::number(row) : u"x"_s; }
    bool isNumeric(int) const override { return false; }
    bool setText(int, int, const QString &) override { return false; }
};

bool isOneColour(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != image.pixel(0, 0))
                return false;
        }
    }
    return true;
}

} // namespace

TEST_F(Grid, HeadingsAreRowAndColumnZero)
{
    EXPECT_EQ(grid.Rows(), 101);
    EXPECT_EQ(grid.Cols(), 6);
    EXPECT_EQ(grid.TextMatrix(0, 2), u"r0c2"_s);
    EXPECT_EQ(grid.TextMatrix(3, 0), u"r3c0"_s);
    EXPECT_EQ(grid.TextMatrix(100, 5), u"r100c5"_s);
    EXPECT_EQ(grid.model()->index(99, 4).data().toString(), u"r100c5"_s);
}

TEST_F(Grid, KeysAndTheScrollBarDoNotLeadIntoUnusedRows)
{
    struct HalfUsed final : CellSource
    {
        int rows() const override { return 1001; }
        int cols() const override { return 3; }
        int usedRows() const override { return 101; }
        QString text(int row, int col) const override
        {
            return row <= 100 ? QString::number(col) : QString();
        }
        bool isNumeric(int) const override { return false; }
        bool setText(int, int, const QString &) override { return false; }
    };
    grid.Show(std::make_unique<HalfUsed>());
    EXPECT_EQ(grid.Rows(), 1001);
    EXPECT_EQ(grid.UsedRows(), 101);
    grid.PutRow(1);
    QTest::keyClick(&grid, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(grid.Row(), 100);
    EXPECT_TRUE(grid.RowIsVisible(100));
    EXPECT_EQ(grid.verticalScrollBar()->value(), grid.verticalScrollBar()->maximum());
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_PageDown}) {
        QTest::keyClick(&grid, key);
        EXPECT_EQ(grid.Row(), 100);
    }
    grid.verticalScrollBar()->setValue(1000);
    EXPECT_TRUE(grid.RowIsVisible(100));
    EXPECT_GT(grid.TopRow(), 80);

    grid.PutRow(150); // by program or a click below the records
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(grid.Row(), 100);
}

TEST_F(Grid, NothingIsCurrentAtFirst)
{
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_EQ(grid.Col(), 0);
}

TEST_F(Grid, TheHeadingColumnIsCurrentWithoutLosingTheKeyboard)
{
    grid.PutRow(3);
    grid.PutCol(0);
    EXPECT_EQ(grid.Col(), 0);
    EXPECT_EQ(grid.Text(), u"r3c0"_s);
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(grid.Row(), 4);
    EXPECT_EQ(grid.Col(), 1);
    grid.PutRow(0);
    EXPECT_FALSE(grid.currentIndex().isValid()) << "the row of headings is no place for a cursor";
}

TEST_F(Grid, RowAndColFollowTheCurrentCellBothWays)
{
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, centreOf(4, 3));
    EXPECT_EQ(grid.Row(), 4);
    EXPECT_EQ(grid.Col(), 3);
    EXPECT_EQ(grid.Text(), u"r4c3"_s);
    grid.PutRow(7);
    grid.PutCol(2);
    EXPECT_EQ(grid.currentIndex(), grid.model()->index(6, 1));
    QTest::keyClick(&grid, Qt::Key_Down);
    EXPECT_EQ(grid.Row(), 8);
    EXPECT_EQ(grid.Col(), 2);
}

TEST_F(Grid, MakingARowCurrentFromNothingTakesTheFirstDataColumn)
{
    grid.PutRow(5);
    EXPECT_EQ(grid.Row(), 5);
    EXPECT_EQ(grid.Col(), 1);
}

TEST_F(Grid, AHeadingCanBeCurrent)
{
    grid.PutRow(5);
    grid.PutRow(0);
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_FALSE(grid.currentIndex().isValid());
    grid.PutCol(4);
    grid.PutRow(6);
    EXPECT_EQ(grid.currentIndex(), grid.model()->index(5, 3));
}

TEST_F(Grid, SelectionHasAFarCorner)
{
    grid.PutRow(2);
    EXPECT_EQ(grid.RowSel(), 2);
    EXPECT_EQ(grid.ColSel(), 1);
    QTest::mouseClick(grid.verticalHeader()->viewport(), Qt::LeftButton, {},
                      QPoint(5, grid.rowViewportPosition(3) + grid.rowHeight(3) / 2));
    EXPECT_EQ(grid.Row(), 4);
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(grid.ColSel(), 5);
    EXPECT_EQ(grid.RowSel(), 4);
}

TEST_F(Grid, TopRowScrollsAndVisibilityFollows)
{
    EXPECT_EQ(grid.TopRow(), 1);
    EXPECT_TRUE(grid.RowIsVisible(0));
    EXPECT_TRUE(grid.RowIsVisible(1));
    EXPECT_FALSE(grid.RowIsVisible(60));
    grid.PutTopRow(60);
    EXPECT_EQ(grid.TopRow(), 60);
    EXPECT_TRUE(grid.RowIsVisible(60));
    EXPECT_FALSE(grid.RowIsVisible(1));
}

TEST_F(Grid, AHeadingThatIsCutShowsItsBeginningAndIsWholeInItsToolTip)
{
    const QString whole = u"WWWW and <b>what</b> comes behind it"_s;
    grid.PutTextMatrix(0, 2, whole);
    grid.PutTextMatrix(0, 3, u"WWWW and something else"_s);
    QHeaderView *header = grid.horizontalHeader();
    const auto beginning = [header](int section) {
        const int left = header->sectionViewportPosition(section);
        return header->viewport()
            ->grab({left, 0, header->sectionSize(section) / 2, header->height()})
            .toImage();
    };
    EXPECT_EQ(beginning(1), beginning(2)) << "both begin with the same letters";
    const QPoint inside(header->sectionViewportPosition(1) + 5, header->height() / 2);
    const QPoint before = inside - QPoint(header->sectionSize(0), 0);
    EXPECT_EQ(tipAt(*header->viewport(), inside), whole);
    EXPECT_EQ(tipAt(*header->viewport(), before), QString()) << "r0c1 fits";
    grid.PutColWidth(2, 15 * 1000);
    EXPECT_EQ(tipAt(*header->viewport(), inside), QString());
}

TEST_F(Grid, ACellThatIsCutIsWholeInItsToolTip)
{
    const auto tip = [this](int row, int col) { return tipAt(*grid.viewport(), centreOf(row, col)); };
    EXPECT_EQ(tip(2, 2), QString()) << "it fits";
    const QString whole = u"a text that is wider than the column, <i>as it is</i>"_s;
    grid.PutTextMatrix(2, 2, whole);
    EXPECT_EQ(tip(2, 2), whole);
    grid.PutTextMatrix(3, 2, u"a\nb"_s);
    EXPECT_EQ(tip(3, 2), u"a\nb"_s) << "only the first line is drawn";
    grid.PutTextMatrix(4, 2, QString(1000000, u'x'));
    EXPECT_EQ(tip(4, 2), QString(1000, u'x') + u'…');
    EXPECT_EQ(tip(2, 3), QString());
}

TEST_F(Grid, ATipIsNarrowerThanAScreenWhateverTheText)
{
    grid.PutTextMatrix(4, 2, QString(1000, u'x'));
    tipAt(*grid.viewport(), centreOf(4, 2));
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto tip = std::ranges::find_if(
        windows, [](const QWidget *window) { return window->inherits("QTipLabel") && window->isVisible(); });
    ASSERT_NE(tip, windows.end());
    EXPECT_LT((*tip)->width(), 800);
}

TEST_F(Grid, RowHeadingsAreNoWiderThanTheirNumbers)
{
    grid.Show(std::make_unique<Numbered>());
    QCoreApplication::processEvents();
    const QHeaderView *header = grid.verticalHeader();
    const int margins = 2 * header->style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, header);
    const int number = header->fontMetrics().horizontalAdvance(u"999999"_s);
    EXPECT_EQ(header->width(), number + margins);
}

TEST_F(Grid, AGridWithoutAnyTextIsAPlainSurface)
{
    const auto isPlain = [this] {
        const QHeaderView *header = grid.horizontalHeader();
        return isOneColour(grid.viewport()->grab().toImage()) &&
               isOneColour(header->viewport()->grab({0, header->height() / 2, header->width(), 1}).toImage());
    };
    EXPECT_FALSE(isPlain());
    grid.Show(std::make_unique<TextCells>(2, 2));
    EXPECT_TRUE(isPlain());
    EXPECT_EQ(grid.Rows(), 2);
    EXPECT_EQ(grid.Cols(), 2);
    grid.PutTextMatrix(0, 1, u"heading"_s);
    EXPECT_FALSE(isPlain());
    grid.Clear();
    EXPECT_TRUE(isPlain());
}

TEST_F(Grid, RowsAreAsHighAsTheFontNeeds)
{
    QFont font = grid.font();
    font.setPointSize(30);
    grid.setFont(font);
    EXPECT_GT(grid.rowHeight(0), QFontMetrics(font).height());
    font.setPointSize(8);
    grid.setFont(font);
    EXPECT_LT(grid.rowHeight(0), 2 * QFontMetrics(font).height());
}

TEST_F(Grid, ClearKeepsTheShape)
{
    grid.Clear();
    EXPECT_EQ(grid.Rows(), 101);
    EXPECT_EQ(grid.Cols(), 6);
    EXPECT_EQ(grid.TextMatrix(0, 1), QString());
    grid.PutRows(2);
    grid.PutCols(2);
    EXPECT_EQ(grid.Rows(), 2);
    EXPECT_EQ(grid.Cols(), 2);
}

TEST_F(Grid, WhatIsOutsideThrowsAndChangesNothing)
{
    grid.PutRow(3);
    EXPECT_THROW(grid.PutRow(101), std::out_of_range);
    EXPECT_THROW(grid.PutRow(-1), std::out_of_range);
    EXPECT_THROW(grid.PutCol(6), std::out_of_range);
    EXPECT_THROW(grid.PutCol(-1), std::out_of_range);
    EXPECT_THROW(static_cast<void>(grid.TextMatrix(0, 6)), std::out_of_range);
    EXPECT_THROW(static_cast<void>(grid.TextMatrix(101, 0)), std::out_of_range);
    EXPECT_THROW(grid.PutColWidth(6, 5), std::out_of_range);
    EXPECT_THROW(grid.PutRows(0), std::out_of_range);
    EXPECT_EQ(grid.Row(), 3);
    EXPECT_EQ(grid.Col(), 1);
}

TEST_F(Grid, ColoursAndRedraw)
{
    grid.PutBackColor(QColor(1, 2, 3));
    EXPECT_EQ(grid.BackColor(), QColor(1, 2, 3));
    grid.PutRedraw(false);
    EXPECT_FALSE(grid.Redraw());
    grid.PutRedraw(true);
    EXPECT_TRUE(grid.Redraw());
    EXPECT_TRUE(grid.hasMouseTracking());
}

TEST(VSFlexGrid, TabGoesOnToTheNextControl)
{
    QWidget form;
    VSFlexGrid grid(&form);
    grid.PutCols(3);
    grid.PutRows(3);
    QLineEdit next(&form);
    form.show();
    form.activateWindow();
    grid.setFocus();
    grid.PutCol(1);
    QTest::keyClick(&grid, Qt::Key_Tab);
    EXPECT_EQ(grid.Col(), 1);
    EXPECT_EQ(form.focusWidget(), &next);
}

TEST(CellDelegate, DrawsTheFirstLineAndNoMoreThanCanBeSeen)
{
    const CellDelegate delegate;
    const QLocale locale;
    EXPECT_EQ(delegate.displayText(u"短"_s, locale), u"短"_s);
    EXPECT_EQ(delegate.displayText(u"first\nsecond"_s, locale), u"first…"_s);
    EXPECT_EQ(delegate.displayText(u"first\r\nsecond"_s, locale), u"first…"_s);
    EXPECT_EQ(delegate.displayText(QString(CellDelegate::longestText, u'x'), locale).size(),
              CellDelegate::longestText);
    EXPECT_EQ(delegate.displayText(QString(1000000, u'x'), locale).size(), CellDelegate::longestText + 1);
}

TEST(MSFlexGrid, BothColumnsAreData)
{
    MSFlexGrid grid;
    grid.PutRows(3);
    grid.PutTextMatrix(0, 0, u"字段名称"_s);
    grid.PutTextMatrix(0, 1, u"字段内容"_s);
    grid.PutTextMatrix(2, 1, u"值"_s);
    EXPECT_EQ(grid.model()->columnCount(), 2);
    EXPECT_EQ(grid.model()->rowCount(), 2);
    EXPECT_EQ(grid.model()->headerData(0, Qt::Horizontal).toString(), u"字段名称"_s);
    EXPECT_EQ(grid.model()->index(1, 1).data().toString(), u"值"_s);
}
