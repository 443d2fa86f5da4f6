#pragma once

class QWidget;

// Twips are the unit of all widths and positions in the interface: 1440 per inch, so 15 per pixel at 96 DPI.
// Only the functions here convert them to pixels.
namespace KOVAVSFDataGridLib::Twips {

inline constexpr int perInch = 1440;

// The nearest pixel width for twips at `dpi` dots per inch (> 0). A width above 0 never becomes 0.
int toPixels(double twips, int dpi);
// Twips for a width in pixels, rounded to the nearest whole twip.
int fromPixels(double pixels, int dpi);

// The same with the logical DPI of the widget.
int toPixels(double twips, const QWidget &widget);
int fromPixels(double pixels, const QWidget &widget);

} // namespace KOVAVSFDataGridLib::Twips
