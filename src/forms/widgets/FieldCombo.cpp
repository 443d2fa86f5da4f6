#include "forms/widgets/FieldCombo.h"

#include <QtGui/QInputMethodEvent>
#include <QtWidgets/QAbstractItemView>

namespace KOVAVSFDataGridLib {

FieldCombo::FieldCombo(QWidget *parent) : QComboBox(parent)
{
    constexpr int rowsAtOnce = 20;
    setMaxVisibleItems(rowsAtOnce);
    setAttribute(Qt::WA_InputMethodEnabled);
}

void FieldCombo::inputMethodEvent(QInputMethodEvent *event)
{
    if (event->commitString().isEmpty())
        return;
    view()->setCurrentIndex(model()->index(currentIndex(), modelColumn()));
    view()->keyboardSearch(event->commitString());
    setCurrentIndex(view()->currentIndex().row());
}

} // namespace KOVAVSFDataGridLib
