#include "grid/FlexGrid.h"
#include "grid/cells/TextCells.h"
#include "grid/painting/CellDelegate.h"

#include <QtGui/QHoverEvent>
#include <QtGui/QPaintEvent>
#include <QtTest/QTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QProxyStyle>
#include <QtWidgets/QScrollBar>
#include <gtest/gtest.h>

#include <functional>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

// Two columns of texts and one of numbers.
struct Cells final : CellSource
{
    explicit Cells(QStringList texts) : m_texts(std::move(texts)) {}

    int rows() const override { return 1001; }
    int cols() const override { return 4; }
    QString text(int row, int col) const override
    {
        if (row == 0 || col == 0)
            return QString::number(row + col);
        return col == 3 ? QString::number(row * 7919) : m_texts[(row + col) % m_texts.size()];
    }
    bool isNumeric(int col) const override { return col == 3; }
    bool setText(int, int, const QString &) override { return false; }

private:
    QStringList m_texts;
};

struct Painting : testing::Test
{
    Painting()
    {
        grid.resize(330, 300);
        grid.setFocusPolicy(Qt::NoFocus);
        show({u"Latin text"_s, u"a text that is too long for its column"_s, u"To AVATAR, P."_s,
              u"an office file"_s, QString(), u"two\nlines"_s, u"שלום"_s});
        grid.show();
    }

    void show(const QStringList &texts) { grid.Show(std::make_unique<Cells>(texts)); }

    QImage picture() { return grid.viewport()->grab().toImage(); }

    // As the table view paints itself: a delegate of a row's own makes it do so.
    QImage reference()
    {
        const CellDelegate delegate;
        grid.setItemDelegateForRow(grid.TopRow() - 1, const_cast<CellDelegate *>(&delegate));
        const QImage image = picture();
        grid.setItemDelegateForRow(grid.TopRow() - 1, nullptr);
        return image;
    }

    QRect cell(int row, int col) const { return grid.visualRect(grid.model()->index(row - 1, col - 1)); }

    VSFlexGrid grid;
};

struct Look
{
    const char *name;
    std::function<void(VSFlexGrid &)> make;
};

struct Looks : Painting, testing::WithParamInterface<Look>
{
};

QPalette dark()
{
    QPalette palette(QColor(40, 40, 40));
    palette.setColor(QPalette::Base, QColor(20, 20, 20));
    palette.setColor(QPalette::AlternateBase, QColor(30, 30, 30));
    palette.setColor(QPalette::Text, Qt::white);
    return palette;
}

// Remembers where paint events go.
struct PaintWatch final : QObject
{
    explicit PaintWatch(QWidget &widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            painted += static_cast<QPaintEvent *>(event)->region();
        return false;
    }
    QRegion painted;
};

// A style of a host's, which looks at the items it is asked for.
struct WatchingStyle final : QProxyStyle
{
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        if (element == CE_ItemViewItem) {
            const auto &item = *static_cast<const QStyleOptionViewItem *>(option);
            items.append({item.text, item.state});
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }
    mutable QList<QPair<QString, State>> items;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(
    All, Looks,
    testing::Values(Look{"Plain", [](VSFlexGrid &) {}},
                    Look{"AllSelected", [](VSFlexGrid &grid) { grid.selectAll(); }},
                    Look{"RowSelected", [](VSFlexGrid &grid) { grid.selectRow(2); }},
                    Look{"Scrolled",
                         [](VSFlexGrid &grid) {
                             grid.PutTopRow(500);
                             grid.horizontalScrollBar()->setValue(11);
                         }},
                    Look{"Disabled",
                         [](VSFlexGrid &grid) {
                             grid.selectRow(1);
                             grid.setEnabled(false);
                         }},
                    Look{"Dark", [](VSFlexGrid &grid) { grid.setPalette(dark()); }},
                    Look{"BackColor", [](VSFlexGrid &grid) { grid.PutBackColor(QColor(255, 250, 205)); }},
                    Look{"RightToLeft", [](VSFlexGrid &grid) { grid.setLayoutDirection(Qt::RightToLeft); }},
                    Look{"NoLines", [](VSFlexGrid &grid) { grid.setShowGrid(false); }},
                    Look{"NoAlternateRows", [](VSFlexGrid &grid) { grid.setAlternatingRowColors(false); }},
                    Look{"HiddenColumn", [](VSFlexGrid &grid) { grid.PutColWidth(1, 0); }},
                    Look{"MovedColumns",
                         [](VSFlexGrid &grid) { grid.horizontalHeader()->moveSection(0, 2); }},
                    Look{"BoldItalic",
                         [](VSFlexGrid &grid) {
                             QFont font = grid.font();
                             font.setBold(true);
                             font.setPointSize(14);
                             grid.setFont(font);
                         }},
                    Look{"Current",
                         [](VSFlexGrid &grid) {
                             grid.activateWindow();
                             grid.setFocus();
                             grid.PutRow(3);
                         }},
                    Look{"CurrentNotSelected",
                         [](VSFlexGrid &grid) {
                             grid.activateWindow();
                             grid.setFocus();
                             grid.PutRow(3);
                             grid.clearSelection();
                         }}),
    [](const auto &tested) { return std::string(tested.param.name); });

TEST_P(Looks, IsThatOfATableView)
{
    GetParam().make(grid);
    QCoreApplication::processEvents();
    EXPECT_EQ(picture(), reference());
}

TEST_F(Painting, ScrollingByOneRowPaintsOneRow)
{
    QCoreApplication::processEvents();
    PaintWatch cells(*grid.viewport());
    PaintWatch headings(*grid.verticalHeader()->viewport());
    PaintWatch columns(*grid.horizontalHeader()->viewport());
    grid.verticalScrollBar()->setValue(1);
    QCoreApplication::processEvents();
    EXPECT_FALSE(cells.painted.isEmpty());
    EXPECT_LE(cells.painted.boundingRect().height(), grid.rowHeight(0) + 1);
    EXPECT_LE(headings.painted.boundingRect().height(), grid.rowHeight(0) + 1);
    EXPECT_TRUE(columns.painted.isEmpty());
}

TEST_F(Painting, ANewCurrentRowPaintsTheHeadingsOfBoth)
{
    grid.setCurrentIndex(grid.model()->index(1, 0));
    QCoreApplication::processEvents();
    PaintWatch headings(*grid.verticalHeader()->viewport());
    const QImage before = grid.verticalHeader()->grab().toImage();
    grid.setCurrentIndex(grid.model()->index(3, 0));
    QCoreApplication::processEvents();
    for (const int row : {1, 3})
        EXPECT_TRUE(headings.painted.contains(QPoint(1, grid.rowViewportPosition(row) + 1))) << row;
    EXPECT_NE(grid.verticalHeader()->grab().toImage(), before);
}

TEST_F(Painting, WhatIsPaintedInPiecesIsTheWhole)
{
    show({u"Latin text"_s, u"中文和 Latin"_s, u"a text that is too long for its column"_s});
    grid.selectRow(3);
    const QImage whole = picture();
    QImage pieces(whole.size(), whole.format());
    pieces.fill(Qt::black);
    pieces.setDevicePixelRatio(whole.devicePixelRatio());
    const QSize size = grid.viewport()->size();
    const QRegion upper = QRegion(0, 0, 90, 70) + QRegion(60, 70, 100, 40);
    const QRegion rest = QRegion(QRect({}, size)) - upper;
    for (const QRegion &part : {upper, rest})
        grid.viewport()->render(&pieces, part.boundingRect().topLeft(), part);
    EXPECT_EQ(pieces, whole);
}

TEST_F(Painting, ChineseIsOnOneLineWithLatin)
{
    // "口" fills its square evenly, "H" reaches from the baseline to the top: their middles are near each
    // other.
    const auto inkOf = [this](const QString &text) {
        show({text});
        const QImage image = grid.viewport()->grab(cell(2, 1).adjusted(2, 2, -30, -2)).toImage();
        int bottom = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qGray(image.pixel(x, y)) < 128)
                    bottom = y;
            }
        }
        return bottom;
    };
    EXPECT_EQ(inkOf(u"中H"_s), inkOf(u"中"_s));
    EXPECT_GT(inkOf(u"H"_s), 0);
    show({u"H中"_s});
    const QRect h(cell(2, 1).topLeft(), QSize(12, cell(2, 1).height()));
    const QImage withChinese = grid.viewport()->grab(h).toImage();
    show({u"H"_s});
    EXPECT_EQ(grid.viewport()->grab(h).toImage(), withChinese) << "the H moves for its neighbour";
}

TEST_F(Painting, ADelegateOfAHostsPaintsItsCells)
{
    struct Delegate final : QStyledItemDelegate
    {
        void paint(QPainter *, const QStyleOptionViewItem &, const QModelIndex &index) const override
        {
            cells.append({index.row(), index.column()});
        }
        mutable QList<QPair<int, int>> cells;
    };
    Delegate delegate;
    grid.setItemDelegateForColumn(1, &delegate);
    picture();
    EXPECT_TRUE(delegate.cells.contains({0, 1}));
    EXPECT_FALSE(delegate.cells.contains({0, 0}));
    grid.setItemDelegateForColumn(1, nullptr);
    QAbstractItemDelegate *const own = grid.itemDelegate();
    grid.setItemDelegate(&delegate);
    delegate.cells.clear();
    picture();
    EXPECT_TRUE(delegate.cells.contains({0, 0}));
    grid.setItemDelegate(own);
}

TEST_F(Painting, AStyleSheetIsObeyed)
{
    grid.setStyleSheet(u"QTableView::item { background: #ff0000; }"_s);
    EXPECT_EQ(picture().pixelColor(cell(2, 1).topLeft() + QPoint(2, 2)), QColor(Qt::red));
}

TEST_F(Painting, ATextThatIsHigherThanItsRowIsNotCutByTheNext)
{
    grid.Show(std::make_unique<TextCells>(9, 2));
    grid.verticalHeader()->setMinimumSectionSize(1);
    grid.verticalHeader()->setDefaultSectionSize(6);
    const QImage empty = picture();
    for (int row = 1; row < 8; ++row) {
        grid.PutTextMatrix(row, 1, u"|"_s);
        const QRect next = cell(row + 1, 1);
        ASSERT_EQ(next.height(), 5);
        EXPECT_NE(picture().copy(next), empty.copy(next)) << row;
        grid.PutTextMatrix(row, 1, {});
    }
}

TEST_F(Painting, WhatIsBelowTheRowsIsAsInATableView)
{
    const auto pixel = [](QTableView &view) {
        const QRect below = view.viewport()->geometry();
        return view.grab().toImage().pixelColor(below.bottomRight() - QPoint(5, 5));
    };
    const auto changeBase = [](QTableView &view, const QBrush &brush) {
        QPalette palette = view.palette();
        palette.setBrush(QPalette::Base, brush);
        view.setPalette(palette);
    };
    QPixmap red(8, 8);
    red.fill(Qt::red);
    const std::vector<std::function<void(QTableView &)>> changes{
        [](QTableView &) {},
        [](QTableView &view) { view.setPalette(dark()); },
        [&](QTableView &view) { changeBase(view, red); },
        [&](QTableView &view) { changeBase(view, QColor(0, 200, 0, 100)); },
        [&](QTableView &view) { changeBase(view, Qt::NoBrush); },
        [&](QTableView &view) { changeBase(view, Qt::blue); },
        [](QTableView &view) { view.viewport()->setAutoFillBackground(false); },
        [](QTableView &view) { view.viewport()->setAutoFillBackground(true); },
        [](QTableView &view) { view.setStyleSheet(u"QTableView { background: #123456; }"_s); },
        [](QTableView &view) { view.setStyleSheet({}); },
        [](QTableView &view) { view.viewport()->setStyleSheet(u"background: #654321;"_s); },
        [](QTableView &view) { view.viewport()->setStyleSheet({}); },
        [](QTableView &view) { view.setEnabled(false); },
    };
    grid.Show(std::make_unique<TextCells>(4, 2));
    QTableView plain;
    plain.resize(grid.size());
    plain.show();
    for (std::size_t i = 0; i < changes.size(); ++i) {
        changes[i](grid);
        changes[i](plain);
        EXPECT_EQ(pixel(grid), pixel(plain)) << "change " << i;
    }
}

TEST_F(Painting, ASpanIsDrawnAcrossItsCells)
{
    const QImage before = picture();
    grid.setSpan(1, 0, 1, 2);
    EXPECT_NE(picture(), before);
    EXPECT_EQ(picture(), reference());
}

TEST_F(Painting, AStyleOfAHostsIsAskedForWhatIsNotPlain)
{
    WatchingStyle style;
    grid.setStyle(&style);
    grid.viewport()->setAttribute(Qt::WA_Hover);
    grid.PutRow(2);
    const QPointF over = cell(4, 3).center();
    QHoverEvent hover(QEvent::HoverMove, over, over, {-1, -1});
    QCoreApplication::sendEvent(grid.viewport(), &hover);
    picture();
    ASSERT_EQ(style.items.size(), 2);
    EXPECT_EQ(style.items[0].first, grid.TextMatrix(2, 1));
    EXPECT_TRUE(style.items[0].second & QStyle::State_Selected);
    EXPECT_EQ(style.items[1].first, grid.TextMatrix(4, 3));
    EXPECT_TRUE(style.items[1].second & QStyle::State_MouseOver);
    QHoverEvent leave(QEvent::HoverLeave, {-1, -1}, {-1, -1}, over);
    QCoreApplication::sendEvent(grid.viewport(), &leave);
    style.items.clear();
    picture();
    EXPECT_EQ(style.items.size(), 1);
    grid.setStyle(nullptr);
}

TEST_F(Painting, ANewFontAndNewTextsAreSeenAtOnce)
{
    const QImage before = picture();
    QFont font = grid.font();
    font.setItalic(true);
    grid.setFont(font);
    EXPECT_NE(picture(), before);
    EXPECT_EQ(picture(), reference());
    show({u"else"_s});
    EXPECT_EQ(picture(), reference());
}
