#pragma once

#include <QtGui/QColor>

class QPalette;
class QWidget;

namespace KOVAVSFDataGridLib {

// The minimum contrast that WCAG 2 requires for texts, and for the meaningful parts of a picture.
constexpr double leastTextContrast = 4.5;
constexpr double leastPictureContrast = 3.0;

// The contrast ratio defined by WCAG 2, from 1 to 21.
double contrast(const QColor &a, const QColor &b);

// `share` is the weight of `top`, from 0 to 1. The result is opaque.
QColor blended(const QColor &top, const QColor &bottom, double share);

// Sets the colour of hints (the palette's PlaceholderText) in a widget and its children to one that is paler
// than text but still readable. Repeats this when the palette changes.
void makeHintsReadable(QWidget &widget);

// Changes a palette, with which only a box for a tick is drawn, so that the box can be seen without one.
// Styles that use the palette only darken its Window for the line around the box, which is hardly seen on
// light windows and not at all on dark ones.
void makeBoxVisible(QPalette &palette);

} // namespace KOVAVSFDataGridLib
