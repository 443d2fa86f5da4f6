#include "grid/painting/CellSpans.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

#include <algorithm>

namespace KOVAVSFDataGridLib {

CellSpans::Span CellSpans::rowsIn(const QRect &area) const
{
    const QHeaderView &header = *m_view.verticalHeader();
    const int first = header.visualIndexAt(area.top());
    const int last = header.visualIndexAt(area.bottom());
    return {first, first < 0 ? -2 : last < 0 ? header.count() - 1 : last};
}

CellSpans::Span CellSpans::columnsIn(const QRect &area) const
{
    const QHeaderView &header = *m_view.horizontalHeader();
    int first = header.visualIndexAt(area.left() - m_shift);
    int last = header.visualIndexAt(area.right() - m_shift);
    if (m_view.isRightToLeft())
        std::swap(first, last);
    return {std::max(first, 0), last < 0 ? header.count() - 1 : last};
}

QRect CellSpans::clipped(QRect area) const
{
    const QHeaderView &columns = *m_view.horizontalHeader();
    const QHeaderView &rows = *m_view.verticalHeader();
    const int width = columns.length() - columns.offset();
    area.setBottom(std::min(area.bottom(), rows.length() - rows.offset() - 1));
    if (m_view.isRightToLeft())
        area.setLeft(std::max(area.left(), m_view.viewport()->width() - width));
    else
        area.setRight(std::min(area.right(), width + m_shift - 1));
    return area;
}

CellSpans::Span CellSpans::strip(Span rows, int height) const
{
    Span strip{rows.first, rows.first};
    while (strip.last < rows.last && rectOf(strip).height() < height)
        ++strip.last;
    return strip;
}

QRect CellSpans::rectOf(Span rows) const
{
    const QHeaderView &header = *m_view.verticalHeader();
    const int first = header.logicalIndex(rows.first);
    const int last = header.logicalIndex(rows.last);
    const int top = header.sectionViewportPosition(first);
    return {0, top, m_view.viewport()->width(),
            header.sectionViewportPosition(last) + header.sectionSize(last) - top};
}

} // namespace KOVAVSFDataGridLib
