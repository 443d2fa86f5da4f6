#pragma once

#include "grid/HeadingMark.h"

class QPainter;
class QPalette;
class QRect;
class QFontMetrics;

namespace KOVAVSFDataGridLib {

// The pixels that a heading's marks take, with the gap before them; 0 without any.
int headingMarkWidth(const HeadingMark &mark, const QFontMetrics &metrics);

// Draws the marks into `room`, as wide as headingMarkWidth: the sort's arrow and its place, a funnel.
void paintHeadingMark(QPainter &painter, const QRect &room, const HeadingMark &mark, const QPalette &palette,
                      const QFontMetrics &metrics);

// Draws the small arrow by which a column's menu opens.
void paintMenuArrow(QPainter &painter, const QRect &room, const QPalette &palette, bool isPressed);

} // namespace KOVAVSFDataGridLib
