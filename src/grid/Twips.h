#pragma once

class QWidget;

// Twips are the unit of every width and position in the interface: 1440 to an inch, so 15 to a pixel
// at 96 dots per inch. This is the only place where they meet pixels.
namespace KOVAVSFDataGridLib::Twips {

inline constexpr int perInch = 1440;

// Nearest pixel for a width in twips at `dpi` dots per inch (> 0); a width above 0 never vanishes.
int toPixels(double twips, int dpi);
// Twips for a width in pixels, rounded to the nearest whole twip.
int fromPixels(double pixels, int dpi);

// The same by the logical DPI of the widget that is measured.
int toPixels(double twips, const QWidget &widget);
int fromPixels(double pixels, const QWidget &widget);

} // namespace KOVAVSFDataGridLib::Twips
