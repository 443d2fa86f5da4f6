#pragma once

#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib {

// The width in pixels of so many digits in the widget's font. The average character would not do as a
// measure: in a font with Chinese characters it is twice as wide, and dialogs sized by it outgrow the screen.
inline int widthOfDigits(const QWidget &widget, int count)
{
    return widget.fontMetrics().horizontalAdvance(u'0') * count;
}

} // namespace KOVAVSFDataGridLib
