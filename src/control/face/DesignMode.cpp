#include "control/face/DesignMode.h"

#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib {

bool isInFormEditor(const QWidget &widget)
{
    // Compares class names, so that the library need not link the form editor.
    for (const QWidget *ancestor = widget.parentWidget(); ancestor; ancestor = ancestor->parentWidget()) {
        if (ancestor->inherits("QDesignerFormWindowInterface"))
            return true;
    }
    return false;
}

} // namespace KOVAVSFDataGridLib
