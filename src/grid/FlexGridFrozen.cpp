#include "grid/FlexGrid.h"

#include "grid/cells/FlexGridModel.h"
#include "grid/painting/CellPainter.h"

#include <QtGui/QPainter>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QScrollBar>

#include <algorithm>

// Paints the frozen columns. They are the first columns of the view, and cover those that have been scrolled
// under them.
namespace KOVAVSFDataGridLib {

namespace {

constexpr int leastRoom = 40; // pixels, at least, for the columns that scroll

} // namespace

int FlexGrid::frozenWidth() const
{
    const QHeaderView &header = *horizontalHeader();
    const int count = std::min(m_frozenCols, header.count());
    if (count == 0 || header.offset() == 0 || isRightToLeft())
        return 0;
    const int last = header.logicalIndex(count - 1);
    const int width = header.sectionPosition(last) + header.sectionSize(last);
    return width + leastRoom <= viewport()->width() ? width : 0;
}

bool FlexGrid::isFrozen(int section) const
{
    return section >= 0 && frozenWidth() > 0 && horizontalHeader()->visualIndex(section) < m_frozenCols;
}

QModelIndex FlexGrid::indexAt(const QPoint &position) const
{
    if (position.x() < 0 || position.x() >= frozenWidth())
        return QTableView::indexAt(position);
    const QHeaderView &header = *horizontalHeader();
    return m_model->index(rowAt(position.y()), header.logicalIndexAt(position.x() - header.offset()));
}

QRect FlexGrid::visualRect(const QModelIndex &index) const
{
    const QRect rect = QTableView::visualRect(index);
    return isFrozen(index.column()) ? rect.translated(horizontalHeader()->offset(), 0) : rect;
}

void FlexGrid::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    QScrollBar &bar = *horizontalScrollBar();
    const int before = bar.value();
    const bool wasFrozen = isFrozen(index.column());
    QTableView::scrollTo(index, hint);
    if (wasFrozen) {
        bar.setValue(before);
    } else if (index.isValid() && !isFrozen(index.column())) {
        const int covered = frozenWidth() - columnViewportPosition(index.column());
        if (covered > 0)
            bar.setValue(bar.value() - covered);
    }
}

QRegion FlexGrid::visualRegionForSelection(const QItemSelection &selection) const
{
    const QRegion region = QTableView::visualRegionForSelection(selection);
    return frozenWidth() > 0 ? region | QRect(0, 0, frozenWidth(), viewport()->height()) : region;
}

void FlexGrid::paintFrozenCells(const QStyleOptionViewItem &option, const QRegion &dirty)
{
    const QRect part(0, 0, frozenWidth(), viewport()->height());
    if (!dirty.intersects(part))
        return;
    const QRect shown = part.translated(-horizontalHeader()->offset(), 0);
    if (m_painter->canPaint(shown))
        m_painter->paintShifted(option, dirty, part, horizontalHeader()->offset(), m_hover);
    else
        paintByDelegate(option, part);
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawLine(part.topRight(), part.bottomRight());
}

// Paints as the view does, for a host's delegate or style sheet.
void FlexGrid::paintByDelegate(const QStyleOptionViewItem &option, const QRect &area)
{
    QPainter painter(viewport());
    painter.fillRect(area, palette().brush(QPalette::Base));
    painter.setClipRect(area);
    const int firstRow = std::max(rowAt(area.top()), 0);
    const int lastRow = rowAt(area.bottom());
    const int rows = lastRow < 0 ? m_model->rowCount() : lastRow + 1;
    for (int row = firstRow; row < rows; ++row) {
        for (int visual = 0; visual < m_frozenCols; ++visual) {
            const QModelIndex index = m_model->index(row, horizontalHeader()->logicalIndex(visual));
            QStyleOptionViewItem cell = option;
            cell.rect = visualRect(index);
            if (showGrid())
                cell.rect.adjust(0, 0, -1, -1);
            cell.features.setFlag(QStyleOptionViewItem::Alternate, alternatingRowColors() && row % 2 != 0);
            cell.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
            cell.state.setFlag(QStyle::State_HasFocus, hasFocus() && index == currentIndex());
            cell.state.setFlag(QStyle::State_MouseOver, index == m_hover);
            style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &cell, &painter, this);
            itemDelegateForIndex(index)->paint(&painter, cell, index);
        }
    }
}

} // namespace KOVAVSFDataGridLib
