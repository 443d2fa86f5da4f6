#pragma once

#include <QtCore/QString>

class QPoint;
class QRect;
class QWidget;

namespace KOVAVSFDataGridLib {

// As much of a text as a tool tip of a third of the screen's height has room for, with dots where it was cut.
QString textForTip(const QString &text, const QWidget &widget);

// Shows a text that a view has room for only in part as a tool tip at `place` on the screen, until the mouse
// leaves `area` of `widget`. It is shown as it is, whatever markup it looks like, and of a very long one only
// the beginning.
void showWholeText(const QString &text, const QPoint &place, QWidget &widget, const QRect &area);

} // namespace KOVAVSFDataGridLib
