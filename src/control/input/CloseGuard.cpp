#include "control/input/CloseGuard.h"

#include "control/parts/Survives.h"
#include "session/Session.h"
#include "session/editing/EditedRecord.h"

#include <QtCore/QEvent>

namespace KOVAVSFDataGridLib {

CloseGuard::CloseGuard(QWidget &control, Session &session) : m_control(control), m_session(session)
{
    control.installEventFilter(this);
}

bool CloseGuard::eventFilter(QObject *watched, QEvent *event)
{
    // A control can be put on another window at any time, but is shown on it before the user writes anything.
    if (watched == &m_control && event->type() == QEvent::Show && m_window != m_control.window()) {
        if (m_window && m_window != &m_control)
            m_window->removeEventFilter(this);
        m_window = m_control.window();
        m_window->installEventFilter(this);
    }
    if (watched == m_window && event->type() == QEvent::Close) {
        bool isLeft = false;
        const auto leave = [&](CloseGuard &) { isLeft = m_session.record().leaveResult(); };
        const bool isThere = survives(*this, leave);
        if (!isLeft)
            event->ignore();
        return !isLeft || !isThere;
    }
    return false;
}

} // namespace KOVAVSFDataGridLib
