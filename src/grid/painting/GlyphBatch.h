#pragma once

#include "grid/painting/GlyphTable.h"

#include <QtCore/QList>
#include <QtGui/QColor>

class QPainter;

namespace KOVAVSFDataGridLib {

// Collects the text lines of a frame and paints them with one call per font and colour, which is much cheaper
// than one call per text.
class GlyphBatch
{
public:
    explicit GlyphBatch(const GlyphTable &table) : m_table(table) {}

    // `origin` is the left end of the line's baseline.
    void add(const GlyphLine &line, const QPointF &origin, const QColor &colour);
    void draw(QPainter &painter);

private:
    struct Run
    {
        QColor colour;
        int font = 0;
        QList<quint32> indexes;
        QList<QPointF> positions;
    };
    Run &runOf(int font, const QColor &colour);

    const GlyphTable &m_table;
    std::vector<Run> m_runs;
};

} // namespace KOVAVSFDataGridLib
