#pragma once

#include <QtCore/QString>

class QPoint;
class QRect;
class QWidget;

namespace KOVAVSFDataGridLib {

// A tool tip for a text: as much of it as a third of the screen's height has room for, with dots where it was
// cut. It is shown as it is, whatever markup it looks like. Empty for no text.
QString wholeTextTip(const QString &text, const QWidget &widget);

// The same for the whole text, for what changes often and shows showWholeText() when it is asked for a tip:
// finding out what there is room for lays the text out several times.
QString uncutTextTip(const QString &text);

// Shows a text that a view has room for only in part as a tool tip at `place` on the screen, until the mouse
// leaves `area` of `widget`.
void showWholeText(const QString &text, const QPoint &place, QWidget &widget, const QRect &area);

} // namespace KOVAVSFDataGridLib
