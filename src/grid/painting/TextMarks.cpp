#include "grid/painting/TextMarks.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>
#include <QtGui/QPalette>

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

// Suitable for light and dark themes: the text on it keeps its contrast.
QColor markColour(const QPalette &palette)
{
    constexpr int darkestOfLight = 128;
    const bool isDark = palette.color(QPalette::Base).lightness() < darkestOfLight;
    return isDark ? QColor(230, 170, 0, 110) : QColor(255, 196, 0, 140);
}

} // namespace

void paintTextMarks(QPainter &painter, const QPalette &palette, const PlacedText &placed, int col,
                    const TextMarker &marker)
{
    const QFontMetricsF metrics(placed.font);
    marker(placed.text, col, [&](qsizetype start, qsizetype length) {
        QRectF marked = placed.line;
        // In right-to-left text, positions in the text differ from positions on the line.
        if (!placed.text.isRightToLeft()) {
            const auto widthOf = [&](qsizetype end) {
                return metrics.horizontalAdvance(placed.text, static_cast<int>(end));
            };
            marked.setLeft(placed.line.left() + widthOf(start));
            marked.setRight(std::min(placed.line.right(), placed.line.left() + widthOf(start + length)));
        }
        if (marked.width() <= 0)
            return;
        marked.adjust(-1, 1, 1, -1);
        if (!placed.isSelected)
            return painter.fillRect(marked, markColour(palette));
        // On a selection's colour, only a frame is visible without making the text unreadable.
        QColor frame = markColour(palette);
        frame.setAlpha(255);
        painter.setPen(QPen(frame, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(marked);
    });
}

} // namespace KOVAVSFDataGridLib
