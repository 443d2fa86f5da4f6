#include "control/viewer/ViewerMenu.h"

#include "control/parts/ButtonItem.h"
#include "control/parts/GridTexts.h"
#include "control/parts/GridToolbar.h"
#include "control/viewer/ViewerTexts.h"

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QString actionName(int index)
{
    return u"PopMnuAction"_s + QString::number(index);
}

} // namespace

ViewerMenu::ViewerMenu(QWidget *parent) : QMenu(parent)
{
    setObjectName(u"PopMnu"_s);
    setAccessibleName(GridTexts::MenuName);
    const auto add = [this](QAction *action, int index) {
        action->setObjectName(actionName(index));
        action->setData(index);
    };
    int next = 1;
    for (const ViewerTexts::MenuItem &item : ViewerTexts::MenuItems) {
        for (; next < item.index; ++next)
            add(addSeparator(), next);
        QAction *action = addAction(item.caption);
        // The filter on the cell shares the state of its button and nothing more.
        if (!item.key.isEmpty() && item.index != CellFilter)
            dressAsButton(*action, item.key);
        add(action, next++);
    }
    connect(this, &QMenu::triggered, this,
            [this](const QAction *action) { Q_EMIT chosen(action->data().toInt()); });
}

void ViewerMenu::EnablePopupItems(const GridToolbar &toolbar, bool hasCellText)
{
    for (const ViewerTexts::MenuItem &item : ViewerTexts::MenuItems) {
        const bool isUsable = item.key.isEmpty() || toolbar.isButtonEnabled(item.key);
        findChild<QAction *>(actionName(item.index))
            ->setEnabled(isUsable && (item.index != CellFilter || hasCellText));
    }
}

} // namespace KOVAVSFDataGridLib
