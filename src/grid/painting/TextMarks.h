#pragma once

#include <QtCore/QRectF>
#include <QtCore/QString>

#include <functional>

class QFont;
class QPainter;
class QPalette;

namespace KOVAVSFDataGridLib {

// Determines which parts of a cell's shown text are marked, by calling `mark` for each. Columns are those of
// the grid.
using TextMarker = std::function<void(const QString &shown, int col,
                                      const std::function<void(qsizetype start, qsizetype length)> &mark)>;

// A text as placed in its cell.
struct PlacedText
{
    const QString &text;
    QRectF line; // from the left end of the text, clipped like it
    const QFont &font;
    bool isSelected = false;
};

// Marks the parts of a text that `marker` determines. The mark is transparent, so it can be painted before or
// after the text.
void paintTextMarks(QPainter &painter, const QPalette &palette, const PlacedText &placed, int col,
                    const TextMarker &marker);

} // namespace KOVAVSFDataGridLib
