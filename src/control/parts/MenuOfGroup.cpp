#include "control/parts/MenuOfGroup.h"

#include "control/parts/GridTexts.h"

#include <QtWidgets/QMenu>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

QMenu &menuOfGroup(QMenu &menu, MenuGroup group)
{
    if (group == MenuGroup::None)
        return menu;
    const QString name = menu.objectName() + u"CopyAs"_s;
    if (auto *made = menu.findChild<QMenu *>(name))
        return *made;
    QMenu *const made = menu.addMenu(GridTexts::CopyAsMenu);
    made->setObjectName(name);
    made->setAccessibleName(GridTexts::CopyAsName);
    return *made;
}

} // namespace KOVAVSFDataGridLib
