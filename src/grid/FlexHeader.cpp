#include "grid/FlexHeader.h"

#include "grid/FlexGrid.h"
#include "grid/WholeText.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QStyleOption>
#include <QtWidgets/QToolTip>

namespace KOVAVSFDataGridLib {

FlexHeader::FlexHeader(Qt::Orientation orientation, FlexGrid &grid)
    : QHeaderView(orientation, &grid), m_grid(grid)
{
    // As a table view sets up the headers of its own.
    setSectionsClickable(true);
}

void FlexHeader::mousePressEvent(QMouseEvent *event)
{
    m_grid.notifyAfter([&] { QHeaderView::mousePressEvent(event); });
}

void FlexHeader::mouseMoveEvent(QMouseEvent *event)
{
    m_grid.notifyAfter([&] { QHeaderView::mouseMoveEvent(event); });
}

void FlexHeader::mouseReleaseEvent(QMouseEvent *event)
{
    m_grid.notifyAfter([&] { QHeaderView::mouseReleaseEvent(event); });
}

// Qt's own adds what a highlighted section needs for its bold text, and none is highlighted here.
QSize FlexHeader::sectionSizeFromContents(int logicalIndex) const
{
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.section = logicalIndex;
    option.text = model()->headerData(logicalIndex, orientation()).toString();
    const QSize size = style()->sizeFromContents(QStyle::CT_HeaderSection, &option, {}, this);
    return m_grid.isBlank() ? QSize(0, size.height()) : size;
}

// A style draws a text that is too long over both ends of its section.
void FlexHeader::initStyleOptionForIndex(QStyleOptionHeader *option, int logicalIndex) const
{
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    // Styles write such a section's text bold.
    if (orientation() == Qt::Vertical && m_grid.currentIndex().row() == logicalIndex)
        option->state |= QStyle::State_On;
    const int margins = 2 * style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
    option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight,
                                                  sectionRect(logicalIndex).width() - margins);
}

void FlexHeader::paintSection(QPainter *painter, const QRect &rect, int logicalIndex) const
{
    const bool isPlain = m_grid.isBlank() || (orientation() == Qt::Vertical && m_grid.UsedRows() < 2);
    if (!isPlain)
        return QHeaderView::paintSection(painter, rect, logicalIndex);
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.rect = rect;
    style()->drawControl(QStyle::CE_HeaderEmptyArea, &option, painter, this);
}

bool FlexHeader::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QHeaderView::viewportEvent(event);
    const auto &help = *static_cast<QHelpEvent *>(event);
    showHeadingTip(help.pos(), help.globalPos());
    return true;
}

void FlexHeader::showHeadingTip(const QPoint &position, const QPoint &place)
{
    const int section = logicalIndexAt(position);
    if (section < 0)
        return QToolTip::hideText();
    QStyleOptionHeaderV2 option;
    initStyleOption(&option);
    initStyleOptionForIndex(&option, section);
    const QString text = model()->headerData(section, orientation()).toString();
    if (option.text != text)
        showWholeText(text, place, *viewport(), sectionRect(section));
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
