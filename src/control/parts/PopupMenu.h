#pragma once

#include "forms/widgets/TickBoxes.h"
#include "session/commands/Command.h"

namespace KOVAVSFDataGridLib {

class GridToolbar;
class Session;

// The commands for the data at the cursor. Each item has an index from 1; an index without a command is a
// separator. An item that is also a toolbar button has the visibility and state of that button. The shortcuts
// of all others work in the whole window.
class PopupMenu final : public Menu
{
    Q_OBJECT

public:
    // The object names of a window's menu and its items, and the member of Command that describes the item.
    struct Kind
    {
        QString name;
        QString itemName;
        MenuItemTexts Command::*texts;
    };
    static const Kind ofControl;
    static const Kind ofViewer;

    // `window` owns it. All must outlive this object.
    PopupMenu(QWidget &window, const Kind &kind, const GridToolbar &toolbar, Session &session);

    // Updates the items from the buttons. `hasText`: whether the current cell has a text.
    void refresh(bool hasText = true);
    QAction &item(int index) const { return *m_items.at(static_cast<std::size_t>(index - 1)); }

Q_SIGNALS:
    // An item was chosen in the menu or by its shortcut.
    void chosen(const QString &key);

private:
    QAction *addItem(const Command &command, QWidget &window);
    QMenu &menuOfGroup(MenuGroup group);
    void writeTexts();

    const Kind &m_kind;
    const GridToolbar &m_toolbar;
    Session &m_session;
    std::vector<QAction *> m_items; // by index
    QMenu *m_copyAs = nullptr;      // the menu of MenuGroup::CopyAs
};

} // namespace KOVAVSFDataGridLib
