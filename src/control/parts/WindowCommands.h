#pragma once

#include "control/parts/ColumnMenu.h"
#include "control/parts/PopupMenu.h"
#include "session/Session.h"

#include <QtCore/QObject>

class QAbstractButton;
class QLineEdit;

namespace KOVAVSFDataGridLib {

class FilterBar;
class GridToolbar;
class VSFlexGrid;

// Runs a session's commands for the user's input in a window: toolbar, menu, shortcut, page box, column menu
// and the line of conditions. Nothing runs while the toolbar is disabled.
class WindowCommands : public QObject
{
    Q_OBJECT

public:
    struct Parts
    {
        GridToolbar &toolbar;
        VSFlexGrid &grid;
        FilterBar &conditions;
        QLineEdit &page;
        QAbstractButton &goToPage;
    };

    // All must outlive this object. `window` owns the menus and gets the shortcuts.
    WindowCommands(QWidget &window, const PopupMenu::Kind &kind, const Parts &parts, Session &session);

    PopupMenu &menu() { return m_menu; }
    QMenu &columnMenu() const { return m_columnMenu.menu(); }
    // The updated menu; with the entries of a column at its end, if `col` is not 0. `hasText`: whether the
    // current cell has a text.
    PopupMenu &menuFor(bool hasText, int col = 0);

    void run(const QString &key, ChosenBy by = ChosenBy::Button);

private:
    void runOnColumn(const ColumnCommand &command, int col);
    void removeCondition(int condition);

    const Parts m_parts;
    Session &m_session;
    PopupMenu &m_menu; // owned by the window
    ColumnMenu m_columnMenu;
};

} // namespace KOVAVSFDataGridLib
