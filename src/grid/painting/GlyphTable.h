#pragma once

#include <QtCore/QHash>
#include <QtCore/QStringView>
#include <QtGui/QFont>
#include <QtGui/QRawFont>

#include <array>
#include <memory>
#include <vector>

namespace KOVAVSFDataGridLib {

// One glyph of a line: which of the table's fonts draws it, and where it is from the line's left end and
// baseline.
struct PlacedGlyph
{
    quint32 index = 0;
    int font = 0;
    QPointF position;
};

// A line of text that is ready to be drawn. A caller keeps one and has it filled again for each text.
struct GlyphLine
{
    std::vector<PlacedGlyph> glyphs;
    qreal width = 0; // without spaces at the end
};

// Lays out single lines in one font, many times faster than a text layout, with the same result: the layout
// is asked once for each character and each pair of neighbours, and its answers are added up. That holds for
// scripts where a glyph depends on nothing else. A text with any other character, with a ligature, or in a
// right-to-left layout is left to the layout whole.
//
// A line that is wider than its room ends in an ellipsis.
class GlyphTable
{
public:
    explicit GlyphTable(const QFont &font);

    const QFont &font() const { return m_font; }
    // From the top of a line to its baseline, and its height, both of the font itself: all lines have the
    // same baseline, whichever other fonts their characters come from.
    qreal ascent() const { return m_ascent; }
    int height() const { return m_height; }

    const std::vector<QRawFont> &rawFonts() const { return m_rawFonts; }

    void layOut(const QString &text, qreal room, Qt::LayoutDirection direction, GlyphLine &line);

private:
    struct Entry
    {
        quint32 glyph = 0;
        int font = unknown;
        qreal advance = 0;
    };
    static constexpr int unknown = -1;
    static constexpr int shaped = -2; // only a layout knows
    static constexpr std::size_t pageSize = 256;
    static constexpr int printable = 95; // of ASCII
    using Page = std::array<Entry, pageSize>;

    // A glyph as a layout placed it, from left to right.
    struct Shape
    {
        std::vector<PlacedGlyph> glyphs;
        std::vector<qreal> ends; // of each character
    };

    bool addUp(QStringView text, qreal room, GlyphLine &line);
    bool elide(QStringView text, qreal room, GlyphLine &line);
    void shape(const QString &text, qreal room, Qt::LayoutDirection direction, GlyphLine &line);
    Shape shapeOf(const QString &text);
    Entry &slot(char16_t c);
    const Entry &entry(QStringView text, qsizetype at);
    void learn(char16_t c);
    void learnIdeographs(QStringView text);
    // How much nearer than its width the second character is to the first; NaN for a pair with glyphs of its
    // own.
    qreal kerning(char16_t first, char16_t second);
    qreal learnKerning(char16_t first, char16_t second);
    int fontIndex(const QRawFont &font);

    QFont m_font;
    qreal m_ascent = 0;
    int m_height = 0;
    std::vector<QRawFont> m_rawFonts;
    std::array<std::unique_ptr<Page>, 0x10000 / pageSize> m_pages;
    std::vector<float> m_printablePairs; // kerning of ASCII
    QHash<quint32, float> m_otherPairs;
};

} // namespace KOVAVSFDataGridLib
