#include "control/parts/PopupMenu.h"

#include "control/parts/ButtonItem.h"
#include "control/parts/GridTexts.h"
#include "control/parts/GridToolbar.h"

#include <QtGui/QAction>
#include <QtWidgets/QMenu>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

PopupMenu::PopupMenu(QWidget &control, const GridToolbar &toolbar)
    : m_toolbar(toolbar), m_menu(new QMenu(&control))
{
    m_menu->setObjectName(u"PopMnuData"_s);
    m_menu->setAccessibleName(GridTexts::MenuName);
    int index = 0;
    for (const GridTexts::PopupItem &item : GridTexts::PopupItems) {
        QAction *action = item.caption.isEmpty() ? m_menu->addSeparator() : m_menu->addAction(item.caption);
        action->setObjectName(u"PopMnuDataAction%1"_s.arg(++index));
        action->setData(index);
        action->setProperty("key", item.key);
        if (!item.key.isEmpty()) {
            dressAsButton(*action, item.key);
        } else if (!item.shortcut.isEmpty()) {
            action->setShortcut(QKeySequence(item.shortcut));
            action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
            control.addAction(action);
        }
    }
    connect(m_menu, &QMenu::triggered, this,
            [this](const QAction *action) { Q_EMIT PopMnuDataActionClicked(action->data().toInt()); });
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
