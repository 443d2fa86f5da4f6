#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib {

class Session;

// Saves what the user wrote into a record before the control goes out of sight for good: before its window,
// or what it stands on in it (a dock, a sub window), is closed; when its dialog is finished; when the program
// ends. What is closed stays when that fails and the user wants to go on with the record.
class CloseGuard final : public QObject
{
    Q_OBJECT

public:
    // Both must outlive this object.
    CloseGuard(QWidget &control, Session &session);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watchParents();
    void save();

    QWidget &m_control;
    Session &m_session;
    QList<QPointer<QWidget>> m_parents; // that the control stands on now
};

} // namespace KOVAVSFDataGridLib
