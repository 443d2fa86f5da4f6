#include "control/input/MenuKey.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QTableView>

namespace KOVAVSFDataGridLib {

bool isMenuKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Menu ||
           (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

QPoint menuPlace(const QTableView &grid)
{
    const QRect cell = grid.visualRect(grid.currentIndex()) & grid.viewport()->rect();
    return grid.viewport()->mapToGlobal(cell.bottomLeft());
}

} // namespace KOVAVSFDataGridLib
