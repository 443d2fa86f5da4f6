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

// Runs the session's commands as the user asks for them in the control, after the host has heard of a key.
// Keeps the grid's current row and the recordset's current record together when the host moves or changes it.
class CommandInput : public QObject
{
    Q_OBJECT

public:
    // All must outlive this object.
    CommandInput(QWidget &control, InputEvents &host, Session &session, GridParts &parts, GridEvents &events,
                 SingleRecordView &singleRecord);
    // Toolbar and menu outlive it until the event loop runs again when the host deletes the control from
    // inside a command, because the button or the item that runs it is still in Qt's hands.
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
    bool m_isKeyConsumed = false; // the host kept the last shortcut from its command
};

} // namespace KOVAVSFDataGridLib
