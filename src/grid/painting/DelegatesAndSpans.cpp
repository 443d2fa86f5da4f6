#include "grid/painting/DelegatesAndSpans.h"

#include <QtWidgets/QHeaderView>
#include <QtWidgets/QTableView>

#include <algorithm>

namespace KOVAVSFDataGridLib {

bool hasDelegateOrSpan(const QTableView &view, const QRect &part)
{
    const QHeaderView &rows = *view.verticalHeader();
    const QHeaderView &columns = *view.horizontalHeader();
    const int top = rows.logicalIndexAt(part.top());
    const int bottom = rows.logicalIndexAt(part.bottom());
    const int firstColumn = columns.visualIndexAt(view.isRightToLeft() ? part.right() : part.left());
    const int lastColumn = columns.visualIndexAt(view.isRightToLeft() ? part.left() : part.right());
    const int rowEnd = bottom < 0 ? rows.count() : bottom + 1;
    const int columnEnd = lastColumn < 0 ? columns.count() : lastColumn + 1;
    for (int row = std::max(top, 0); row < rowEnd; ++row) {
        if (view.itemDelegateForRow(row))
            return true;
    }
    for (int visual = std::max(firstColumn, 0); visual < columnEnd; ++visual) {
        const int column = columns.logicalIndex(visual);
        if (view.itemDelegateForColumn(column))
            return true;
        for (int row = std::max(top, 0); row < rowEnd; ++row) {
            if (view.rowSpan(row, column) != 1 || view.columnSpan(row, column) != 1)
                return true;
        }
    }
    return false;
}

} // namespace KOVAVSFDataGridLib
