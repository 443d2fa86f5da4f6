#pragma once

#include <QtCore/QString>

class QPoint;
class QRect;
class QWidget;

namespace KOVAVSFDataGridLib {

// As much of a text as fits a tool tip of a third of the screen's height; an ellipsis shows where it was cut.
QString textForTip(const QString &text, const QWidget &widget);

// Shows a text that a view shows only partly as a tool tip at `place` (in screen coordinates), until the
// mouse leaves `area` of `widget`. The text is shown as plain text, even if it looks like markup. Of a very
// long text only the beginning is shown.
void showWholeText(const QString &text, const QPoint &place, QWidget &widget, const QRect &area);

} // namespace KOVAVSFDataGridLib
