#pragma once

#include "control/parts/WindowCommands.h"

#include <QtCore/QObject>

class QKeyEvent;
class QWidget;

namespace KOVAVSFDataGridLib {

class GridEvents;
class GridParts;
class InputEvents;
class SingleRecordView;

// Runs the session's commands for the user's input in the control, after the host was notified of a key.
// Keeps the grid's current row and the recordset's current record in sync when the host moves or changes it.
class CommandInput : public QObject
{
    Q_OBJECT

public:
    // All must outlive this object.
    CommandInput(QWidget &control, InputEvents &host, Session &session, GridParts &parts, GridEvents &events,
                 SingleRecordView &singleRecord);
    // If the host deletes the control inside a command, toolbar and menu outlive it until the event loop runs
    // again, because Qt still uses the button or item that runs the command.
    ~CommandInput() override;

    PopupMenu &menu() { return m_commands.menu(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showMenu(const QPoint &position);
    bool isShortcut(const QKeyEvent &event) const;
    void followRecord();
    void followChange();

    QWidget &m_control;
    InputEvents &m_host;
    Session &m_session;
    GridParts &m_parts;
    SingleRecordView &m_singleRecord;
    WindowCommands m_commands;
    bool m_isKeyConsumed = false; // the host suppressed the command of the last shortcut
};

} // namespace KOVAVSFDataGridLib
