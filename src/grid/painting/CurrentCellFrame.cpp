#include "grid/painting/CurrentCellFrame.h"

#include <QtGui/QPainter>
#include <QtWidgets/QTableView>

namespace KOVAVSFDataGridLib {

namespace {

constexpr int frameWidth = 2; // pixels at 96 DPI

bool isOneOfSeveral(const QItemSelection &selection, const QModelIndex &cell)
{
    return selection.contains(cell) &&
           (selection.size() > 1 || selection.front().width() > 1 || selection.front().height() > 1);
}

} // namespace

void paintCurrentCellFrame(const QTableView &view, const QRect &part)
{
    const QModelIndex current = view.currentIndex();
    if (!current.isValid() || !isOneOfSeveral(view.selectionModel()->selection(), current))
        return;
    const QRect cell = view.visualRect(current);
    if (cell.width() <= 2 * frameWidth || !cell.intersects(part))
        return;
    QPainter painter(view.viewport());
    painter.setClipRect(part);
    QPen pen(view.palette().color(QPalette::HighlightedText), frameWidth);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    // Half of a pen's width is outside the rectangle.
    painter.drawRect(cell.adjusted(frameWidth / 2, frameWidth / 2, -frameWidth / 2, -frameWidth / 2));
}

} // namespace KOVAVSFDataGridLib
