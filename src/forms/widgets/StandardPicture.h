#pragma once

#include <QtGui/QPixmap>
#include <QtWidgets/QStyle>

class QWidget;

namespace KOVAVSFDataGridLib {

// One of the style's pictures for a widget, `size` pixels at 96 DPI. It is drawn once and then taken from the
// application's pixmap cache, even if many dialogs show it.
QPixmap standardPicture(const QWidget &widget, QStyle::StandardPixmap picture, int size);

} // namespace KOVAVSFDataGridLib
