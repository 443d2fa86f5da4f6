#pragma once

#include "grid/painting/GlyphTable.h"

#include <QtGui/QColor>

#include <vector>

class QPainter;

namespace KOVAVSFDataGridLib {

// Collects text lines and paints them with one call per font and colour, which is much cheaper than one call
// per text.
class GlyphBatch
{
public:
    // `origin` is the left end of the line's baseline.
    void add(const GlyphLine &line, const QPointF &origin, const QColor &colour);
    // Paints and removes all lines, which are of that table.
    void draw(QPainter &painter, const GlyphTable &table);

private:
    struct Run
    {
        QColor colour;
        int font = 0;
        std::vector<quint32> indexes;
        std::vector<QPointF> positions;
    };
    Run &runOf(int font, const QColor &colour);

    std::vector<Run> m_runs;
};

} // namespace KOVAVSFDataGridLib
