#pragma once

#include <QtCore/QSize>
#include <QtWidgets/QWidget>

#include <cmath>
#include <windows.h>

namespace KOVAVSFDataGridLib::ActiveX {

// Containers measure in units of 0.01 mm.
inline constexpr int himetricPerInch = 2540;

inline QSize fromHimetric(const SIZEL &size, const QWidget &widget)
{
    return QSize(static_cast<int>(std::lround(double(size.cx) * widget.logicalDpiX() / himetricPerInch)),
                 static_cast<int>(std::lround(double(size.cy) * widget.logicalDpiY() / himetricPerInch)));
}

inline SIZEL toHimetric(const QSize &size, const QWidget &widget)
{
    return {std::lround(double(size.width()) * himetricPerInch / widget.logicalDpiX()),
            std::lround(double(size.height()) * himetricPerInch / widget.logicalDpiY())};
}

} // namespace KOVAVSFDataGridLib::ActiveX
