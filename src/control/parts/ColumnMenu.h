#pragma once

#include <QtCore/QObject>
#include <QtCore/QString>

#include <functional>

class QAction;
class QMenu;
class QPoint;
class QWidget;

namespace KOVAVSFDataGridLib {

class Session;
class VSFlexGrid;
struct ColumnCommand;

// The menu of a column. It is opened by the arrow in the heading or by Ctrl+Alt+Down in a cell, and can be
// appended to another menu. Without records, it belongs to the column that was current last; Left and Right
// go to another one.
class ColumnMenu : public QObject
{
    Q_OBJECT

public:
    // Runs a command on a column.
    using Runner = std::function<void(const ColumnCommand &command, int col)>;

    // All must outlive this object. `window` gets the shortcut. The menu does not open while the toolbar is
    // disabled.
    ColumnMenu(QWidget &window, const QWidget &toolbar, VSFlexGrid &grid, Session &session, Runner run);

    // The menu itself, which the window owns.
    QMenu &menu() const { return *m_menu; }

    // Shows the menu at a position on the screen. Does nothing for a column without a menu.
    void popUp(int col, const QPoint &place);
    // Adds a menu with a column's entries to the end of another one, until that is closed.
    void addTo(QMenu &menu, int col);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void openAtCurrentColumn();
    int currentCol() const;
    void moveWithoutRecords(bool isForward);
    void makeActions(QMenu &menu, int col);

    const QWidget &m_toolbar;
    VSFlexGrid &m_grid;
    Session &m_session;
    const Runner m_run;
    QMenu *m_menu;
    QString m_lastHeading; // of the cell that was current last
};

} // namespace KOVAVSFDataGridLib
