#pragma once

#include "control/commands/ControlHub.h"
#include "control/commands/ShownStatement.h"
#include "control/input/SingleRecordView.h"
#include "control/parts/PopupMenu.h"

#include <QtCore/QObject>

#include <functional>

class QKeyEvent;

namespace KOVAVSFDataGridLib {

// The commands of one control: what its toolbar, its popup menu and their shortcuts run.
class GridCommands : public QObject
{
    Q_OBJECT

public:
    explicit GridCommands(ControlHub &hub);
    // Toolbar and menu outlive it until the event loop runs again when the host deletes the control from
    // inside a command, because the button or the item that runs it is still in Qt's hands.
    ~GridCommands() override;

    // Runs the command of a toolbar button, whether or not that is enabled. A key that no button has runs
    // nothing.
    void run(const QString &key);
    // Runs the command of a menu item; `ok` receives whether there is one and it could begin.
    void DoDataAction(int index, bool &ok);
    // Makes the page typed into the page box the one that is shown; below 1 is told to the user.
    void goToTypedPage();

    // Whether "Filter" filters what is shown rather than the first statement.
    bool isFromResult() const { return m_isFromResult; }
    void toggleFromResult();

    ShownStatement statement;
    SingleRecordView singleRecord;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void perform(const std::function<void()> &command);
    void showMenu(const QPoint &position);
    bool isShortcut(const QKeyEvent &event) const;
    void followRecord();
    void followChange();

    ControlHub &m_hub;
    PopupMenu m_menu;
    int m_running = 0; // commands, one inside the other
    bool m_isFromResult = false;
    bool m_isKeyTaken = false; // the host kept the last shortcut from its command
};

} // namespace KOVAVSFDataGridLib
