#include "control/input/CloseGuard.h"

#include "control/parts/Survives.h"
#include "session/Session.h"
#include "session/editing/EditedRecord.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtWidgets/QDialog>

namespace KOVAVSFDataGridLib {

CloseGuard::CloseGuard(QWidget &control, Session &session) : m_control(control), m_session(session)
{
    control.installEventFilter(this);
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &CloseGuard::save);
}

// All of them, because a floating dock or a dialog is closed with the window behind it.
void CloseGuard::watchParents()
{
    for (const QPointer<QWidget> &left : std::as_const(m_parents)) {
        if (!left)
            continue;
        left->removeEventFilter(this);
        left->disconnect(this);
    }
    m_parents.clear();
    for (QWidget *parent = m_control.parentWidget(); parent; parent = parent->parentWidget()) {
        m_parents.append(parent);
        parent->installEventFilter(this);
        if (const auto *dialog = qobject_cast<QDialog *>(parent))
            connect(dialog, &QDialog::finished, this, &CloseGuard::save); // can come without a close event
    }
}

// For events that can't be prevented.
void CloseGuard::save()
{
    m_session.record().save();
}

bool CloseGuard::eventFilter(QObject *watched, QEvent *event)
{
    // A control can get another parent at any time, but is shown there before the user can change anything.
    if (watched == &m_control && event->type() == QEvent::Show)
        watchParents();
    if (event->type() != QEvent::Close)
        return false;
    bool isLeft = false;
    const bool isThere = survives(*this, [&](CloseGuard &) { isLeft = m_session.record().leaveResult(); });
    if (!isLeft)
        event->ignore();
    return !isLeft || !isThere;
}

} // namespace KOVAVSFDataGridLib
