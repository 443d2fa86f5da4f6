#include "grid/FlexHeader.h"

#include "grid/FlexGrid.h"
#include "grid/WholeText.h"
#include "grid/cells/FlexGridModel.h"
#include "grid/painting/HeadingPainter.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QStyleOptionHeader>
#include <QtWidgets/QToolTip>

namespace KOVAVSFDataGridLib {

namespace {

constexpr int leastSize = 4; // pixels, so that the edge can still be grabbed
// Pixels at both sides of a column's heading, besides the style's own, so that a name at the right of its
// column and the next one at the left of its own are told apart.
constexpr int headingPadding = 2;

// The same event at the position where the header itself has the heading.
QMouseEvent shifted(const QMouseEvent &event, int shift)
{
    return {event.type(),          event.position() - QPointF(shift, 0),
            event.scenePosition(), event.globalPosition(),
            event.button(),        event.buttons(),
            event.modifiers(),     event.pointingDevice()};
}

} // namespace

FlexHeader::FlexHeader(Qt::Orientation orientation, FlexGrid &grid)
    : QHeaderView(orientation, &grid), m_grid(grid)
{
    // Set up like the headers of a table view.
    setSectionsClickable(true);
}

void FlexHeader::setSelectionModel(QItemSelectionModel *selectionModel)
{
    if (!selectionModel || selectionModel->parent() == this) // the header's own, in which nothing is selected
        return QHeaderView::setSelectionModel(selectionModel);
    disconnect(m_current);
    m_current =
        connect(selectionModel, &QItemSelectionModel::currentChanged, this, &FlexHeader::currentChanged);
}

void FlexHeader::mousePressEvent(QMouseEvent *event)
{
    m_pressedArrow = event->button() == Qt::LeftButton ? arrowAt(event->position().toPoint()) : -1;
    if (m_pressedArrow >= 0)
        return viewport()->update();
    m_resized = event->button() == Qt::LeftButton ? frozenEdgeAt(event->position().toPoint()) : -1;
    if (m_resized >= 0) {
        m_resizeStart = event->position().toPoint().x();
        m_resizeSize = sectionSize(m_resized);
        return;
    }
    m_pressShift = shiftAt(event->position().toPoint());
    // A section covered by others must not react to the mouse.
    if (m_pressShift != 0)
        setSectionsMovable(false);
    QMouseEvent inner = shifted(*event, m_pressShift);
    m_grid.notifyAfter([&] { QHeaderView::mousePressEvent(&inner); });
}

void FlexHeader::mouseMoveEvent(QMouseEvent *event)
{
    if (m_pressedArrow >= 0)
        return;
    const QPoint position = event->position().toPoint();
    if (m_resized >= 0) {
        const int size = std::max(m_resizeSize + position.x() - m_resizeStart, leastSize);
        return m_grid.notifyAfter([&] { resizeSection(m_resized, size); });
    }
    const bool isDragged = event->buttons() != Qt::NoButton;
    if (!isDragged && shiftAt(position) != 0) {
        frozenEdgeAt(position) >= 0 ? setCursor(Qt::SplitHCursor) : unsetCursor();
        return;
    }
    QMouseEvent inner = shifted(*event, isDragged ? m_pressShift : shiftAt(event->position().toPoint()));
    m_grid.notifyAfter([&] { QHeaderView::mouseMoveEvent(&inner); });
}

void FlexHeader::mouseReleaseEvent(QMouseEvent *event)
{
    if (m_pressedArrow >= 0) {
        const int pressed = std::exchange(m_pressedArrow, -1);
        viewport()->update();
        if (arrowAt(event->position().toPoint()) == pressed) {
            const int col = m_grid.ColumnOfHeadingAt(event->position().toPoint());
            Q_EMIT m_grid.ColumnMenuWanted(col, m_grid.ColumnMenuPlace(col));
        }
        return;
    }
    if (std::exchange(m_resized, -1) >= 0)
        return;
    QMouseEvent inner = shifted(*event, std::exchange(m_pressShift, 0));
    const QPointer<FlexHeader> alive(this);
    m_grid.notifyAfter([&] { QHeaderView::mouseReleaseEvent(&inner); });
    if (alive)
        setSectionsMovable(orientation() == Qt::Horizontal && m_grid.HasColumnMenus());
}

void FlexHeader::mouseDoubleClickEvent(QMouseEvent *event)
{
    QMouseEvent inner = shifted(*event, shiftAt(event->position().toPoint()));
    m_grid.notifyAfter([&] { QHeaderView::mouseDoubleClickEvent(&inner); });
}

// Qt adds room for the bold text of highlighted sections, which are not used here.
QSize FlexHeader::sectionSizeFromContents(int logicalIndex) const
{
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.section = logicalIndex;
    option.text = model()->headerData(logicalIndex, orientation()).toString();
    // The row headings keep their width for the first hundreds of records.
    if (orientation() == Qt::Vertical && option.text.size() < 3)
        option.text = QStringLiteral("000");
    const QSize size = style()->sizeFromContents(QStyle::CT_HeaderSection, &option, {}, this);
    return m_grid.isBlank() ? QSize(0, size.height()) : size;
}

// Whether the column is sorted by and pointed at now or not.
int FlexHeader::fittingWidth(int logicalIndex) const
{
    int width = sectionSizeFromContents(logicalIndex).width() + 2 * headingPadding;
    if (m_grid.HasColumnMenus()) {
        HeadingMark mark = markOf(logicalIndex);
        mark.sortPlace = std::max(mark.sortPlace, 1);
        width += headingMarkWidth(mark, fontMetrics()) + arrowWidth();
    }
    return std::max(width, 2 * arrowWidth());
}

// A style paints a text that is too long over both ends of its section.
void FlexHeader::initStyleOptionForIndex(QStyleOptionHeader *option, int logicalIndex) const
{
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    // Styles use a bold font for such a section.
    if (orientation() == Qt::Vertical && m_grid.currentIndex().row() == logicalIndex)
        option->state |= QStyle::State_On;
    option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight,
                                                  sectionRect(logicalIndex).width() - 2 * margin() -
                                                      headingMarkWidth(markOf(logicalIndex), fontMetrics()));
}

int FlexHeader::margin() const
{
    return style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this) +
           (orientation() == Qt::Horizontal ? headingPadding : 0);
}

void FlexHeader::paintEvent(QPaintEvent *event)
{
    QHeaderView::paintEvent(event);
    const int frozen = orientation() == Qt::Horizontal ? m_grid.frozenWidth() : 0;
    if (frozen == 0)
        return;
    QPainter painter(viewport());
    for (int visual = 0; visual < m_grid.FrozenCols(); ++visual) {
        const int section = logicalIndex(visual);
        if (!isSectionHidden(section))
            paintSection(&painter, headingRect(section), section);
    }
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawLine(frozen - 1, 0, frozen - 1, viewport()->height());
}

void FlexHeader::paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const
{
    const bool isPlain = m_grid.isBlank() || (orientation() == Qt::Vertical && m_grid.UsedRows() < 2);
    QStyleOptionHeaderV2 option;
    initStyleOption(&option);
    option.rect = rect;
    if (isPlain)
        return style()->drawControl(QStyle::CE_HeaderEmptyArea, &option, painter, this);
    if (orientation() == Qt::Vertical)
        return QHeaderView::paintSection(painter, rect, logicalIndex);
    const HeadingMark mark = markOf(logicalIndex);
    initStyleOptionForIndex(&option, logicalIndex);
    option.rect = rect;
    painter->save();
    painter->setClipRect(rect);
    style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
    const int arrow = hasArrow(logicalIndex) ? arrowWidth() : 0;
    const int markWidth = headingMarkWidth(mark, fontMetrics());
    // Text and marks give way to the arrow.
    const QRect room = rect.adjusted(margin(), 0, -std::max(margin(), arrow), 0);
    const QRect marks(room.right() + 1 - markWidth, rect.top(), markWidth, rect.height());
    QStyleOptionHeaderV2 label = option;
    label.rect = room.adjusted(0, 0, -markWidth, 0);
    label.text = option.fontMetrics.elidedText(option.text, Qt::ElideRight, label.rect.width());
    if (label.rect.isValid())
        style()->drawControl(QStyle::CE_HeaderLabel, &label, painter, this);
    paintHeadingMark(*painter, marks, mark, option.palette, fontMetrics());
    if (arrow > 0) {
        // Over whatever is there of marks that have no room.
        const QRect place(rect.right() + 1 - arrow, rect.top(), arrow, rect.height());
        painter->setClipRect(place);
        style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
        paintMenuArrow(*painter, place, option.palette, m_pressedArrow == logicalIndex);
    }
    painter->restore();
}

bool FlexHeader::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverMove)
        setHovered(headingAt(static_cast<QHoverEvent *>(event)->position().toPoint()));
    else if (event->type() == QEvent::MouseMove)
        setHovered(headingAt(static_cast<QMouseEvent *>(event)->position().toPoint()));
    else if (event->type() == QEvent::HoverLeave || event->type() == QEvent::Leave)
        setHovered(-1);
    if (event->type() != QEvent::ToolTip)
        return QHeaderView::viewportEvent(event);
    const auto &help = *static_cast<QHelpEvent *>(event);
    showHeadingTip(help.pos(), help.globalPos());
    return true;
}

void FlexHeader::setHovered(int logicalIndex)
{
    if (std::exchange(m_hovered, logicalIndex) != logicalIndex && orientation() == Qt::Horizontal)
        viewport()->update();
}

HeadingMark FlexHeader::markOf(int logicalIndex) const
{
    const auto *cells = qobject_cast<const FlexGridModel *>(model());
    return cells && orientation() == Qt::Horizontal ? cells->headingMark(logicalIndex) : HeadingMark();
}

int FlexHeader::arrowWidth() const
{
    return std::max(fontMetrics().height(), 12);
}

// The edges of a heading are for resizing.
QRect FlexHeader::arrowRect(int logicalIndex) const
{
    const QRect heading = headingRect(logicalIndex);
    return {heading.right() + 1 - arrowWidth(), heading.top(), arrowWidth(), heading.height()};
}

bool FlexHeader::hasArrow(int logicalIndex) const
{
    const bool isHovered = m_hovered == logicalIndex || m_pressedArrow == logicalIndex;
    return orientation() == Qt::Horizontal && isHovered && m_grid.HasColumnMenus() &&
           sectionSize(logicalIndex) >= 2 * arrowWidth();
}

int FlexHeader::arrowAt(const QPoint &position) const
{
    const int section = headingAt(position);
    if (section < 0 || orientation() != Qt::Horizontal || !m_grid.HasColumnMenus() || m_grid.isBlank() ||
        sectionSize(section) < 2 * arrowWidth())
        return -1;
    const int grip = style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, this);
    return arrowRect(section).adjusted(0, 0, -grip, 0).contains(position) ? section : -1;
}

int FlexHeader::shiftAt(const QPoint &position) const
{
    const bool isFrozen = orientation() == Qt::Horizontal && position.x() < m_grid.frozenWidth();
    return isFrozen ? offset() : 0;
}

// A header ignores a drag that begins to the left of it, where frozen sections are.
int FlexHeader::frozenEdgeAt(const QPoint &position) const
{
    const int shift = shiftAt(position);
    const int section = shift == 0 ? -1 : headingAt(position);
    if (section < 0)
        return -1;
    const int grip = style()->pixelMetric(QStyle::PM_HeaderGripMargin, nullptr, this);
    const QRect heading = headingRect(section);
    if (position.x() > heading.right() - grip)
        return section;
    if (position.x() >= heading.left() + grip)
        return -1;
    int visual = visualIndex(section) - 1;
    while (visual >= 0 && isSectionHidden(logicalIndex(visual)))
        --visual;
    return visual < 0 ? -1 : logicalIndex(visual);
}

int FlexHeader::headingAt(const QPoint &position) const
{
    return logicalIndexAt(position - QPoint(shiftAt(position), 0));
}

QRect FlexHeader::headingRect(int logicalIndex) const
{
    QRect rect = sectionRect(logicalIndex);
    if (orientation() == Qt::Horizontal && m_grid.frozenWidth() > 0 &&
        visualIndex(logicalIndex) < m_grid.FrozenCols())
        rect.translate(offset(), 0);
    return rect;
}

void FlexHeader::showHeadingTip(const QPoint &position, const QPoint &place)
{
    const int section = headingAt(position);
    if (section < 0)
        return QToolTip::hideText();
    QStyleOptionHeaderV2 option;
    initStyleOption(&option);
    initStyleOptionForIndex(&option, section);
    const QString text = model()->headerData(section, orientation()).toString();
    if (option.text != text)
        showWholeText(text, place, *viewport(), headingRect(section));
    else
        QToolTip::hideText();
}

QRect FlexHeader::sectionRect(int logicalIndex) const
{
    const int begin = sectionViewportPosition(logicalIndex);
    const int length = sectionSize(logicalIndex);
    return orientation() == Qt::Horizontal ? QRect(begin, 0, length, viewport()->height())
                                           : QRect(0, begin, viewport()->width(), length);
}

} // namespace KOVAVSFDataGridLib
