#pragma once

#include <QtCore/QHash>
#include <QtCore/QStringView>
#include <QtGui/QFont>
#include <QtGui/QRawFont>

#include <array>
#include <memory>
#include <vector>

namespace KOVAVSFDataGridLib {

// One glyph of a line: the index of its font in the table, and its position relative to the line's left end
// and baseline.
struct PlacedGlyph
{
    quint32 index = 0;
    int font = 0;
    QPointF position;
};

// A line of text, ready to be painted. A caller keeps one and reuses it for each text.
struct GlyphLine
{
    std::vector<PlacedGlyph> glyphs;
    qreal width = 0; // without spaces at the end
};

// Lays out single lines in one font, many times faster than QTextLayout and with the same result: a layout
// is created only once per character and per pair of neighbours, and the results are added up. This is valid
// for scripts in which a glyph depends on nothing else. Texts with other characters, with ligatures or in
// right-to-left direction are laid out as a whole.
//
// A line that does not fit ends with an ellipsis.
class GlyphTable
{
public:
    explicit GlyphTable(const QFont &font);

    const QFont &font() const { return m_font; }
    // The distance from the top of a line to its baseline, and the line's height. Both are those of the main
    // font, so all lines have the same baseline, whatever fonts their characters use.
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
    static constexpr int shaped = -2; // needs a layout
    static constexpr std::size_t pageSize = 256;
    static constexpr int printable = 95; // in ASCII
    using Page = std::array<Entry, pageSize>;

    // Glyphs as placed by a layout, from left to right.
    struct Shape
    {
        std::vector<PlacedGlyph> glyphs;
        std::vector<qreal> ends; // per character
    };

    bool addUp(QStringView text, qreal room, GlyphLine &line);
    bool elide(QStringView text, qreal room, GlyphLine &line);
    void shape(const QString &text, qreal room, Qt::LayoutDirection direction, GlyphLine &line);
    Shape shapeOf(const QString &text);
    Entry &slot(char16_t c);
    const Entry &entry(QStringView text, qsizetype at);
    void learn(char16_t c);
    void learnIdeographs(QStringView text);
    // The kerning of a pair, which is added to the first character's advance; NaN if the pair has its own
    // glyphs.
    qreal kerning(char16_t first, char16_t second);
    qreal learnKerning(char16_t first, char16_t second);
    int fontIndex(const QRawFont &font);

    QFont m_font;
    qreal m_ascent = 0;
    int m_height = 0;
    std::vector<QRawFont> m_rawFonts;
    std::array<std::unique_ptr<Page>, 0x10000 / pageSize> m_pages;
    std::vector<float> m_printablePairs; // kerning in ASCII
    QHash<quint32, float> m_otherPairs;
};

} // namespace KOVAVSFDataGridLib
