#include "control/parts/ButtonItem.h"

#include "control/parts/GridTexts.h"
#include "control/parts/ToolbarIcons.h"

#include <QtGui/QAction>

namespace KOVAVSFDataGridLib {

void dressAsButton(QAction &item, const QString &key)
{
    const QKeySequence shortcut(GridTexts::buttonOf(key).shortcut);
    item.setIcon(toolbarIcon(key));
    item.setText(item.text() + u'\t' + shortcut.toString(QKeySequence::NativeText));
}

} // namespace KOVAVSFDataGridLib
