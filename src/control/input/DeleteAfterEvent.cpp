#include "control/input/DeleteAfterEvent.h"

#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib {

void deleteAfterEvent(QWidget &part)
{
    part.setParent(nullptr);
    part.deleteLater();
}

} // namespace KOVAVSFDataGridLib
