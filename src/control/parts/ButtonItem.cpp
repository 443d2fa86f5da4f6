#include "control/parts/ButtonItem.h"

#include "control/parts/ToolbarIcons.h"
#include "session/commands/Command.h"

#include <QtGui/QAction>

namespace KOVAVSFDataGridLib {

void dressAsButton(QAction &item, const Command &command)
{
    const QKeySequence shortcut(command.shortcut);
    item.setIcon(toolbarIcon(command.key));
    item.setText(item.text() + u'\t' + shortcut.toString(QKeySequence::NativeText));
}

} // namespace KOVAVSFDataGridLib
