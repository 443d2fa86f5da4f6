#include "control/input/DeleteAfterEvent.h"

#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib {

void DeleteAfterEvent(QWidget &part)
{
    part.setParent(nullptr);
    part.deleteLater();
}

} // namespace KOVAVSFDataGridLib
