#pragma once

#include <QtGui/QColor>

class QWidget;

namespace KOVAVSFDataGridLib {

// What the accessibility guidelines ask of texts, and of the parts of a picture that carry its meaning.
constexpr double leastTextContrast = 4.5;
constexpr double leastPictureContrast = 3.0;

// The contrast ratio of WCAG 2, from 1 to 21.
double contrast(const QColor &a, const QColor &b);

// `share` is the part of `top`, from 0 to 1. The result is opaque.
QColor blended(const QColor &top, const QColor &bottom, double share);

// Gives hints in and below a widget (all that is drawn in the palette's PlaceholderText) a colour that is
// quieter than texts and still readable, and does so again when the palette changes.
void makeHintsReadable(QWidget &widget);

} // namespace KOVAVSFDataGridLib
