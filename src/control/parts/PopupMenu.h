#pragma once

#include <QtCore/QObject>

#include <functional>

class QAction;
class QMenu;
class QPoint;
class QWidget;

namespace KOVAVSFDataGridLib {

class GridToolbar;
struct Command;

// PopMnuData: the commands on the data under the pointer, each known by its index from 1 on. An item that
// repeats a toolbar button is shown and enabled as that button is.
class PopupMenu : public QObject
{
    Q_OBJECT

public:
    // Both must outlive this object. `whyNot` answers why a command can't run, empty when it can.
    PopupMenu(QWidget &control, const GridToolbar &toolbar,
              std::function<QString(const Command &command)> whyNot);

    // The menu itself, which the control owns.
    QMenu &menu() const { return *m_menu; }

    // Brings the items in step with the buttons.
    void PreparePopupMenu();
    // Shows the menu at a place on the screen until the user has chosen or gone elsewhere.
    void show(const QPoint &position);

Q_SIGNALS:
    // An item was chosen, in the menu or by its shortcut.
    void PopMnuDataActionClicked(int index);

private:
    void addItem(int index, QWidget &control);

    const GridToolbar &m_toolbar;
    const std::function<QString(const Command &command)> m_whyNot;
    QMenu *m_menu;
};

} // namespace KOVAVSFDataGridLib
