#include "grid/FlexGrid.h"

#include "grid/FlexHeader.h"
#include "grid/Twips.h"
#include "grid/cells/FlexGridModel.h"
#include "grid/cells/TextCells.h"
#include "grid/painting/CellDelegate.h"
#include "grid/painting/CellPainter.h"
#include "grid/painting/CurrentCellFrame.h"

#include <QtCore/QEvent>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyle>

#include <algorithm>
#include <stdexcept>

namespace KOVAVSFDataGridLib {

namespace {

constexpr int rowPadding = 120; // twips, the sum of the space above and below a row's text

const QBrush &backgroundOf(const QWidget &viewport)
{
    return viewport.palette().brush(viewport.backgroundRole());
}

// Takes the background from Qt, which would fill all of the viewport before any row is painted; unless it is
// a style sheet's or a pattern.
void takeBackground(QWidget &viewport)
{
    const bool isPlain = backgroundOf(viewport).style() == Qt::SolidPattern;
    viewport.setAttribute(Qt::WA_NoSystemBackground,
                          isPlain && !viewport.style()->inherits("QStyleSheetStyle"));
}

// Empty if Qt has painted it.
QBrush backgroundToPaint(const QWidget &viewport)
{
    const bool isOurs = viewport.testAttribute(Qt::WA_NoSystemBackground) && viewport.autoFillBackground();
    return isOurs ? backgroundOf(viewport) : QBrush();
}

} // namespace

FlexGrid::FlexGrid(int fixedCols, QWidget *parent)
    : QTableView(parent),
      m_model(new FlexGridModel(fixedCols, this)),
      m_painter(std::make_unique<CellPainter>(*this, *m_model))
{
    setHorizontalHeader(new FlexHeader(Qt::Horizontal, *this));
    setVerticalHeader(new FlexHeader(Qt::Vertical, *this));
    setMouseTracking(true);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false); // Tab moves to the next control; the arrow keys move between cells
    setSelectionMode(ContiguousSelection);
    setHorizontalScrollMode(ScrollPerPixel);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    horizontalHeader()->setMinimumSectionSize(0);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setHighlightSections(false);
    setItemDelegate(new CellDelegate(this));
    // A heading is not a cell: pressing it neither selects nor makes anything current.
    disconnect(horizontalHeader(), &QHeaderView::sectionPressed, this, nullptr);
    disconnect(horizontalHeader(), &QHeaderView::sectionEntered, this, nullptr);
    takeBackground(*viewport());
    applyRowHeight();
    setModel(m_model);
    applyLines();
    m_widths.assign(static_cast<std::size_t>(Cols()), useDefaultWidth);
    applyWidths();
    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int section, int, int size) { onSectionResized(section, size); });
    connect(horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int section) { m_clickedCol = section + m_model->fixedCols(); });
    connect(horizontalHeader(), &QHeaderView::sectionMoved, this, &FlexGrid::onSectionMoved);
    disconnect(horizontalHeader(), &QHeaderView::sectionHandleDoubleClicked, this, nullptr);
    connect(horizontalHeader(), &QHeaderView::sectionHandleDoubleClicked, this,
            [this](int section) { Q_EMIT FittingWidthWanted(section + m_model->fixedCols()); });
}

FlexGrid::~FlexGrid() = default;

int FlexGrid::Rows() const
{
    return m_model->source().rows();
}

void FlexGrid::PutRows(int rows)
{
    if (rows < 1)
        throw std::out_of_range("a grid has at least one row");
    Show(std::make_unique<TextCells>(rows, Cols()));
}

int FlexGrid::Cols() const
{
    return m_model->source().cols();
}

void FlexGrid::PutCols(int cols)
{
    if (cols < 1)
        throw std::out_of_range("a grid has at least one column");
    Show(std::make_unique<TextCells>(Rows(), cols));
}

int FlexGrid::UsedRows() const
{
    return m_model->source().usedRows();
}

bool FlexGrid::isBlank() const
{
    return m_model->source().isBlank();
}

void FlexGrid::updateGeometries()
{
    QTableView::updateGeometries();
    // The scroll bar counts rows; its page step is the number of visible rows.
    QScrollBar &bar = *verticalScrollBar();
    bar.setMaximum(std::min(bar.maximum(), std::max(UsedRows() - 1 - bar.pageStep(), 0)));
}

void FlexGrid::scrollContentsBy(int dx, int dy)
{
    const bool wasFrozen = frozenWidth() > 0;
    QTableView::scrollContentsBy(dx, dy);
    // Frozen columns were scrolled with the rest, so everything must be painted again.
    if (dx != 0 && (wasFrozen || frozenWidth() > 0))
        Refresh();
    // At the end of its scroll bar, a table view shows the very last row, which may be unused here.
    if (const int top = verticalScrollBar()->value(); UsedRows() < Rows() && TopRow() != top + 1) {
        verticalHeader()->setOffsetToSectionPosition(top);
        Refresh();
    }
}

int FlexGrid::TopRow() const
{
    return rowAt(0) + 1;
}

void FlexGrid::PutTopRow(int row)
{
    checkRow(row);
    if (row > 0)
        verticalScrollBar()->setValue(row - 1);
}

bool FlexGrid::RowIsVisible(int row) const
{
    checkRow(row);
    if (row == 0)
        return true;
    const int top = rowViewportPosition(row - 1);
    return top + rowHeight(row - 1) > 0 && top < viewport()->height();
}

QString FlexGrid::TextMatrix(int row, int col) const
{
    checkRow(row);
    checkCol(col);
    return m_model->source().text(row, col);
}

void FlexGrid::PutTextMatrix(int row, int col, const QString &text)
{
    checkRow(row);
    checkCol(col);
    m_model->setText(row, col, text);
    applyLines();
}

QString FlexGrid::Text() const
{
    return TextMatrix(m_row, m_col);
}

QStringList FlexGrid::Headings() const
{
    QStringList texts;
    for (int col = m_model->fixedCols(); col < Cols(); ++col)
        texts.append(m_model->source().text(0, col));
    return texts;
}

void FlexGrid::Clear()
{
    Show(std::make_unique<TextCells>(Rows(), Cols()));
}

void FlexGrid::Refresh()
{
    viewport()->update();
    horizontalHeader()->viewport()->update();
    verticalHeader()->viewport()->update();
}

QColor FlexGrid::BackColor() const
{
    return palette().color(QPalette::Active, QPalette::Base);
}

void FlexGrid::PutBackColor(const QColor &colour)
{
    QPalette changed = palette();
    changed.setColor(QPalette::Base, colour);
    changed.setColor(QPalette::AlternateBase, colour.darker(103)); // every second row
    setPalette(changed);
}

void FlexGrid::Show(std::unique_ptr<CellSource> source)
{
    // The view restores its own section sizes on a reset; ours are exact.
    const QScopedValueRollback<bool> applying(m_isApplyingWidths, true);
    m_model->setSource(std::move(source));
    applyLines();
    m_row = 0;
    m_col = 0;
    m_widths.resize(static_cast<std::size_t>(Cols()), useDefaultWidth);
    applyWidths();
    applyArrangement();
}

void FlexGrid::ShowMore(std::unique_ptr<CellSource> source)
{
    m_model->growTo(std::move(source));
    updateGeometries(); // the view itself would wait for its next event
}

bool FlexGrid::event(QEvent *event)
{
    // The window was moved to a screen with another resolution.
    if (event->type() == QEvent::ScreenChangeInternal) {
        applyRowHeight();
        applyWidths();
    }
    return QTableView::event(event);
}

void FlexGrid::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        applyRowHeight();
}

bool FlexGrid::viewportEvent(QEvent *event)
{
    // Tracks hovering as the view does, which keeps it private.
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverMove)
        m_hover = indexAt(static_cast<QHoverEvent *>(event)->position().toPoint());
    else if (event->type() == QEvent::HoverLeave || event->type() == QEvent::Leave)
        m_hover = QModelIndex();
    else if (event->type() == QEvent::StyleChange || event->type() == QEvent::PaletteChange)
        takeBackground(*viewport());
    return QTableView::viewportEvent(event);
}

void FlexGrid::paintEvent(QPaintEvent *event)
{
    const QPoint offset = dirtyRegionOffset();
    const QRegion dirty = event->region().translated(offset);
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const QBrush paper = backgroundToPaint(*viewport());
    if (state() != DraggingState && m_painter->canPaint(dirty.boundingRect())) {
        m_painter->paint(option, dirty.subtracted(QRect(0, 0, frozenWidth(), viewport()->height())), offset,
                         m_hover, paper);
    } else {
        QPainter(viewport()).fillRect(event->rect(), paper); // the event's region limits it
        QTableView::paintEvent(event);
    }
    if (frozenWidth() > 0)
        paintFrozenCells(option, event->region());
    QRect part = viewport()->rect();
    if (!isFrozen(currentIndex().column()))
        part.setLeft(frozenWidth());
    paintCurrentCellFrame(*this, part);
}

void FlexGrid::checkRow(int row) const
{
    if (row < 0 || row >= Rows())
        throw std::out_of_range("row outside the grid");
}

void FlexGrid::checkCol(int col) const
{
    if (col < 0 || col >= Cols())
        throw std::out_of_range("column outside the grid");
}

int FlexGrid::section(int col) const
{
    return col - m_model->fixedCols();
}

void FlexGrid::applyLines()
{
    const bool hasRows = !isBlank() && UsedRows() > 1;
    setShowGrid(hasRows);
    setAlternatingRowColors(hasRows);
}

void FlexGrid::applyRowHeight()
{
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + Twips::toPixels(rowPadding, *this));
}

MSFlexGrid::MSFlexGrid(QWidget *parent) : FlexGrid(0, parent)
{
    verticalHeader()->hide();
    horizontalHeader()->setStretchLastSection(true);
}

} // namespace KOVAVSFDataGridLib
