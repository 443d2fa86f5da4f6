#include "control/viewer/ViewerMenu.h"

#include "control/parts/ButtonItem.h"
#include "control/parts/GridTexts.h"
#include "control/parts/GridToolbar.h"
#include "control/parts/MenuOfGroup.h"
#include "control/viewer/ViewerTexts.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"

#include <algorithm>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

constexpr int backIndex = 7; // other indexes without a command are separators

const Command *commandOf(int index)
{
    const auto &all = Command::all();
    const auto found =
        std::ranges::find_if(all, [=](const Command *command) { return command->viewerMenu.index == index; });
    return found == all.end() ? nullptr : *found;
}

} // namespace

ViewerMenu::ViewerMenu(QWidget *parent) : QMenu(parent)
{
    setObjectName(u"PopMnu"_s);
    setAccessibleName(GridTexts::MenuName);
    const int last = std::max(backIndex, Command::lastMenuIndex(&Command::viewerMenu));
    for (int index = 1; index <= last; ++index)
        addItem(index);
}

void ViewerMenu::addItem(int index)
{
    const Command *const command = commandOf(index);
    QAction *action = nullptr;
    if (command) {
        action = menuOfGroup(*this, command->viewerMenu.group).addAction(command->viewerMenu.caption);
        if (command->button) {
            dressAsButton(*action, *command);
        } else if (!command->shortcut.isEmpty() && index > backIndex) {
            action->setShortcut(QKeySequence(command->shortcut));
            action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
            parentWidget()->addAction(action);
        }
        connect(action, &QAction::triggered, this, [this, command] { Q_EMIT commandChosen(command->key); });
    } else if (index == backIndex) {
        action = addAction(ViewerTexts::Back);
        connect(action, &QAction::triggered, this, &ViewerMenu::backChosen);
    } else {
        action = addSeparator();
    }
    action->setObjectName(u"PopMnuAction"_s + QString::number(index));
    action->setData(index);
}

void ViewerMenu::EnablePopupItems(const GridToolbar &toolbar, bool hasCellText)
{
    for (QAction *action : actions()) {
        const int index = action->data().toInt();
        const Command *const command = index < backIndex ? commandOf(index) : nullptr;
        if (!command)
            continue;
        const bool isCellFilter = command->key == CommandKeys::CellFilter;
        action->setEnabled(toolbar.isButtonEnabled(isCellFilter ? CommandKeys::Filter : command->key) &&
                           (!isCellFilter || hasCellText));
    }
}

} // namespace KOVAVSFDataGridLib
