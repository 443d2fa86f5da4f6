#pragma once

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib {

class Session;

// Saves the user's changes before the control disappears for good: before its window, or a part of it that
// contains the control (a dock, a sub window), is closed; when its dialog is finished; when the program ends.
// If that fails and the user wants to continue with the record, closing is prevented.
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
    QList<QPointer<QWidget>> m_parents; // of the control, from the inside out
};

} // namespace KOVAVSFDataGridLib
