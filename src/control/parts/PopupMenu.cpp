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

PopupMenu::PopupMenu(QWidget &control, const GridToolbar &toolbar,
                     std::function<QString(const Command &)> whyNot)
    : m_toolbar(toolbar), m_whyNot(std::move(whyNot)), m_menu(new QMenu(&control))
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
        action = menuOfGroup(*m_menu, command->menu.group).addAction(command->menu.caption);
    action->setObjectName(u"PopMnuDataAction%1"_s.arg(index));
    action->setData(index);
    if (!command)
        return;
    connect(action, &QAction::triggered, this, [this, index] { Q_EMIT PopMnuDataActionClicked(index); });
    if (command->button) {
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
        const Command *const command = Command::findMenuItem(action->data().toInt());
        if (!command)
            continue;
        const bool isGiven = !command->button || m_toolbar.isButtonEnabled(command->key);
        if (command->button)
            action->setVisible(m_toolbar.isButtonVisible(command->key));
        action->setEnabled(isGiven && m_whyNot(*command).isEmpty());
    }
}

void PopupMenu::show(const QPoint &position)
{
    PreparePopupMenu();
    m_menu->exec(position);
}

} // namespace KOVAVSFDataGridLib
