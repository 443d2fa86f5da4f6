#pragma once

#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib {

class Session;

// Saves what the user wrote into a record before the window around the control closes. The window stays when
// that fails and the user wants to go on with the record.
class CloseGuard final : public QObject
{
    Q_OBJECT

public:
    // Both must outlive this object.
    CloseGuard(QWidget &control, Session &session);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget &m_control;
    Session &m_session;
    QPointer<QWidget> m_window; // that the control is on now
};

} // namespace KOVAVSFDataGridLib
