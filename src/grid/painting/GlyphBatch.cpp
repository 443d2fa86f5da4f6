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
        run->indexes.push_back(glyph.index);
        run->positions.push_back(origin + glyph.position);
    }
}

void GlyphBatch::draw(QPainter &painter, const GlyphTable &table)
{
    for (Run &run : m_runs) {
        if (run.indexes.empty())
            continue;
        QGlyphRun glyphs;
        glyphs.setRawFont(table.rawFonts()[static_cast<std::size_t>(run.font)]);
        glyphs.setRawData(run.indexes.data(), run.positions.data(), static_cast<int>(run.indexes.size()));
        painter.setPen(run.colour);
        painter.drawGlyphRun({}, glyphs);
        run.indexes.clear();
        run.positions.clear();
    }
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
