#include "control/input/EndKeys.h"

#include "ado/Recordset.h"
#include "grid/FlexGrid.h"
#include "session/Session.h"

#include <QtGui/QKeyEvent>

namespace KOVAVSFDataGridLib {

EndKeys::EndKeys(VSFlexGrid &grid, Session &session, QObject *parent) : QObject(parent), m_session(session)
{
    grid.installEventFilter(this);
}

// The commands get the keys unless the grid uses them itself.
bool EndKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto &key = *static_cast<QKeyEvent *>(event);
        const bool isEnd =
            key.modifiers() == Qt::ControlModifier && (key.key() == Qt::Key_Home || key.key() == Qt::Key_End);
        if (isEnd && m_session.result().hasRecords() && m_session.result().recordset()->PageCount() < 2) {
            event->accept();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace KOVAVSFDataGridLib
