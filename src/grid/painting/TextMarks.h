#pragma once

#include <QtCore/QRectF>
#include <QtCore/QString>

#include <functional>

class QFont;
class QPainter;
class QPalette;

namespace KOVAVSFDataGridLib {

// Says which parts of a cell's shown text are marked, by calling `mark` for each. Columns are those of the
// grid.
using TextMarker = std::function<void(const QString &shown, int col,
                                      const std::function<void(qsizetype start, qsizetype length)> &mark)>;

// A text as it was placed in its cell.
struct PlacedText
{
    const QString &text;
    QRectF line; // from its left end on, cut where the text is
    const QFont &font;
    bool isSelected = false;
};

// Marks the parts of a text that `marker` names. The mark is transparent, so it may be painted before the
// text or after it.
void paintTextMarks(QPainter &painter, const QPalette &palette, const PlacedText &placed, int col,
                    const TextMarker &marker);

} // namespace KOVAVSFDataGridLib
