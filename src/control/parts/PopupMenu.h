#pragma once

#include "session/commands/Command.h"

#include <QtWidgets/QMenu>

namespace KOVAVSFDataGridLib {

class GridToolbar;
class Session;

// The commands on the data under the pointer, each item known by its index from 1 on; an index without a
// command is a separator. An item that repeats a toolbar button is shown and enabled as that button is; the
// shortcuts of the others work in the whole window.
class PopupMenu final : public QMenu
{
    Q_OBJECT

public:
    // The names of a window's menu and of its items, and where a command says what its item is like.
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

    // Brings the items in step with the buttons. `hasText` says whether the current cell has one.
    void refresh(bool hasText = true);
    QAction &item(int index) const { return *m_items.at(static_cast<std::size_t>(index - 1)); }

Q_SIGNALS:
    // An item was chosen, in the menu or by its shortcut.
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
