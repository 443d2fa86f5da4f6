#include "control/input/PressedPart.h"

#include "control/input/DeleteAfterEvent.h"
#include "control/parts/GridParts.h"
#include "grid/FlexGrid.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QHeaderView>

namespace KOVAVSFDataGridLib {

PressedPart::PressedPart(const GridParts &parts)
{
    parts.picMainBack->installEventFilter(this);
    for (const FlexGrid *grid :
         {static_cast<FlexGrid *>(parts.vsfgDataGrid), static_cast<FlexGrid *>(parts.MSFlexGrid1)}) {
        grid->viewport()->installEventFilter(this);
        grid->horizontalHeader()->viewport()->installEventFilter(this);
        grid->verticalHeader()->viewport()->installEventFilter(this);
    }
}

PressedPart::~PressedPart()
{
    if (m_part)
        deleteAfterEvent(*m_part);
}

bool PressedPart::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        const auto &press = *static_cast<QMouseEvent *>(event);
        auto *part = static_cast<QWidget *>(watched);
        // A label passes the press on to the panel below it, but the label itself was pressed.
        QWidget *const hit = part->childAt(press.position().toPoint());
        if (press.button() == Qt::RightButton)
            m_part = hit ? hit : part;
    } else if (event->type() == QEvent::ContextMenu) {
        m_part.clear();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace KOVAVSFDataGridLib
