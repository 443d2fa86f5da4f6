#include "control/parts/PopupMenu.h"

#include "control/parts/ButtonItem.h"
#include "control/parts/GridTexts.h"
#include "control/parts/GridToolbar.h"
#include "control/parts/MenuOfGroup.h"
#include "session/commands/Command.h"

#include <QtGui/QAction>
#include <QtWidgets/QMenu>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

PopupMenu::PopupMenu(QWidget &control, const GridToolbar &toolbar)
    : m_toolbar(toolbar), m_menu(new QMenu(&control))
{
    m_menu->setObjectName(u"PopMnuData"_s);
    m_menu->setAccessibleName(GridTexts::MenuName);
    const int last = Command::lastMenuIndex(&Command::menu);
    for (int index = 1; index <= last; ++index)
        addItem(index, control);
}

// An index without a command is a separator.
void PopupMenu::addItem(int index, QWidget &control)
{
    const Command *const command = Command::findMenuItem(index);
    QAction *action = nullptr;
    if (!command)
        action = m_menu->addSeparator();
    else
        action = MenuOfGroup(*m_menu, command->menu.group).addAction(command->menu.caption);
    action->setObjectName(u"PopMnuDataAction%1"_s.arg(index));
    action->setData(index);
    if (!command)
        return;
    connect(action, &QAction::triggered, this, [this, index] { Q_EMIT PopMnuDataActionClicked(index); });
    if (command->button) {
        action->setProperty("key", command->key);
        dressAsButton(*action, *command);
    } else if (!command->shortcut.isEmpty()) {
        action->setShortcut(QKeySequence(command->shortcut));
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        control.addAction(action);
    }
}

void PopupMenu::PreparePopupMenu()
{
    for (QAction *action : m_menu->actions()) {
        const QString key = action->property("key").toString();
        if (action->isSeparator() || key.isEmpty())
            continue;
        action->setVisible(m_toolbar.isButtonVisible(key));
        action->setEnabled(m_toolbar.isButtonEnabled(key));
    }
}

void PopupMenu::show(const QPoint &position)
{
    PreparePopupMenu();
    m_menu->exec(position);
}

} // namespace KOVAVSFDataGridLib
