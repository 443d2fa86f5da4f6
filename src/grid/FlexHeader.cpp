#include "grid/FlexHeader.h"

#include "grid/FlexGrid.h"

namespace KOVAVSFDataGridLib {

FlexHeader::FlexHeader(Qt::Orientation orientation, FlexGrid &grid)
    : QHeaderView(orientation, &grid), m_grid(grid)
{
    // As a table view sets up the headers of its own.
    setSectionsClickable(true);
}

void FlexHeader::mousePressEvent(QMouseEvent *event)
{
    m_grid.tellAfter([&] { QHeaderView::mousePressEvent(event); });
}

void FlexHeader::mouseMoveEvent(QMouseEvent *event)
{
    m_grid.tellAfter([&] { QHeaderView::mouseMoveEvent(event); });
}

void FlexHeader::mouseReleaseEvent(QMouseEvent *event)
{
    m_grid.tellAfter([&] { QHeaderView::mouseReleaseEvent(event); });
}

} // namespace KOVAVSFDataGridLib
