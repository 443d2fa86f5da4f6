#include "designer/GridTaskMenuFactory.h"

#include "designer/GridTaskMenu.h"

#include <KOVAVSFDataGrid>

namespace KOVAVSFDataGridLib {

QObject *GridTaskMenuFactory::createExtension(QObject *object, const QString &iid, QObject *parent) const
{
    auto *grid = qobject_cast<KOVAVSFDataGrid *>(object);
    return grid && iid == Q_TYPEID(QDesignerTaskMenuExtension) ? new GridTaskMenu(*grid, parent) : nullptr;
}

} // namespace KOVAVSFDataGridLib
