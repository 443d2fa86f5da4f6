#pragma once

#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib {

// The width in pixels of `count` digits in the widget's font. The average character width is not suitable: in
// a font with Chinese characters it is twice as wide, and dialogs would be larger than the screen.
inline int widthOfDigits(const QWidget &widget, int count)
{
    return widget.fontMetrics().horizontalAdvance(u'0') * count;
}

} // namespace KOVAVSFDataGridLib
