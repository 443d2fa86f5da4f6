#include "grid/painting/GlyphBatch.h"

#include <QtGui/QGlyphRun>
#include <QtGui/QPainter>

namespace KOVAVSFDataGridLib {

void GlyphBatch::add(const GlyphLine &line, const QPointF &origin, const QColor &colour)
{
    Run *run = nullptr;
    for (const PlacedGlyph &glyph : line.glyphs) {
        if (!run || run->font != glyph.font)
            run = &runOf(glyph.font, colour);
        run->indexes.append(glyph.index);
        run->positions.append(origin + glyph.position);
    }
}

void GlyphBatch::draw(QPainter &painter)
{
    for (const Run &run : m_runs) {
        QGlyphRun glyphs;
        glyphs.setRawFont(m_table.rawFonts()[static_cast<std::size_t>(run.font)]);
        glyphs.setGlyphIndexes(run.indexes);
        glyphs.setPositions(run.positions);
        painter.setPen(run.colour);
        painter.drawGlyphRun({}, glyphs);
    }
    m_runs.clear();
}

// There are only a few: the fonts of some scripts, normal and selected.
GlyphBatch::Run &GlyphBatch::runOf(int font, const QColor &colour)
{
    for (Run &run : m_runs) {
        if (run.font == font && run.colour == colour)
            return run;
    }
    m_runs.push_back({colour, font, {}, {}});
    return m_runs.back();
}

} // namespace KOVAVSFDataGridLib
