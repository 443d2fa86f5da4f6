#include "grid/Twips.h"

#include <QtCore/QtNumeric>
#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib::Twips {

int toPixels(double twips, int dpi)
{
    const int pixels = qRound(twips * dpi / perInch);
    return pixels == 0 && twips > 0 ? 1 : pixels;
}

int fromPixels(double pixels, int dpi)
{
    return qRound(pixels * perInch / dpi);
}

int toPixels(double twips, const QWidget &widget)
{
    return toPixels(twips, widget.logicalDpiX());
}

int fromPixels(double pixels, const QWidget &widget)
{
    return fromPixels(pixels, widget.logicalDpiX());
}

} // namespace KOVAVSFDataGridLib::Twips
