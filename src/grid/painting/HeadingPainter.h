#pragma once

#include "grid/HeadingMark.h"

class QPainter;
class QPalette;
class QRect;
class QFontMetrics;

namespace KOVAVSFDataGridLib {

// The width in pixels of a heading's marks, including the gap before them; 0 if there are none.
int headingMarkWidth(const HeadingMark &mark, const QFontMetrics &metrics);

// Paints the marks into `room`, of width headingMarkWidth: the sort arrow with its number, and a funnel.
void paintHeadingMark(QPainter &painter, const QRect &room, const HeadingMark &mark, const QPalette &palette,
                      const QFontMetrics &metrics);

// Paints the small arrow that opens a column's menu.
void paintMenuArrow(QPainter &painter, const QRect &room, const QPalette &palette, bool isPressed);

} // namespace KOVAVSFDataGridLib
