#include "grid/painting/GlyphTable.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QGlyphRun>
#include <QtGui/QTextLayout>

#include <algorithm>
#include <cmath>
#include <limits>

namespace KOVAVSFDataGridLib {

namespace {

constexpr char16_t ellipsis = u'…';
constexpr qreal tolerance = 2; // pixels by which an elided text can become narrower by kerning
constexpr float notLearned = std::numeric_limits<float>::infinity();
constexpr float hasOwnGlyphs = std::numeric_limits<float>::quiet_NaN();

constexpr bool isBetween(char16_t c, char16_t first, char16_t last)
{
    return c >= first && c <= last;
}

// Ideographs, whose width does not depend on their neighbours.
constexpr bool isIdeographic(char16_t c)
{
    return isBetween(c, 0x4E00, 0x9FFF) || isBetween(c, 0x3400, 0x4DBF) || isBetween(c, 0x3000, 0x3029) ||
           isBetween(c, 0xFF01, 0xFF5E);
}

// Latin, Greek and Cyrillic letters without combining marks, digits, punctuation, kana.
constexpr bool isAlphabetic(char16_t c)
{
    return isBetween(c, 0x20, 0x7E) || isBetween(c, 0xA1, 0xAC) || isBetween(c, 0xAE, 0x24F) ||
           isBetween(c, 0x386, 0x3CE) || isBetween(c, 0x400, 0x45F) || isBetween(c, 0x2010, 0x2027) ||
           isBetween(c, 0x2030, 0x205E) || isBetween(c, 0x20A0, 0x20BF) || isBetween(c, 0x2190, 0x22FF) ||
           isBetween(c, 0x2460, 0x25FF) || isBetween(c, 0x3041, 0x3096) || isBetween(c, 0x30A1, 0x30FC);
}

QTextLine lineOf(QTextLayout &layout, Qt::LayoutDirection direction, QTextOption::Flags flags = {})
{
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(flags);
    option.setTextDirection(direction);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    constexpr int widest = std::numeric_limits<int>::max() / 256;
    line.setLineWidth(widest);
    layout.endLayout();
    return line;
}

} // namespace

GlyphTable::GlyphTable(const QFont &font)
    : m_font(font), m_printablePairs(std::size_t{printable} * printable, notLearned)
{
    QTextLayout layout(QStringLiteral("x"), m_font);
    const QTextLine line = lineOf(layout, Qt::LeftToRight);
    m_ascent = line.ascent();
    m_height = layout.boundingRect().size().toSize().height();
}

void GlyphTable::layOut(const QString &text, qreal room, Qt::LayoutDirection direction, GlyphLine &line)
{
    if (direction == Qt::RightToLeft || !addUp(text, room, line))
        shape(text, room, direction, line);
}

// Returns false if the text needs a layout.
bool GlyphTable::addUp(QStringView text, qreal room, GlyphLine &line)
{
    line.glyphs.clear();
    line.width = 0;
    qreal x = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const char16_t c = text[at].unicode();
        const Entry &found = entry(text, at);
        if (found.font == shaped)
            return false;
        if (at > 0) {
            const qreal nearer = kerning(text[at - 1].unicode(), c);
            if (std::isnan(nearer))
                return false;
            x += nearer;
        }
        if (c != u' ') {
            line.glyphs.push_back({found.glyph, found.font, {x, 0}});
            line.width = x + found.advance;
            if (line.width > room)
                return elide(text, room, line);
        }
        x += found.advance;
    }
    return true;
}

// As much of the beginning as fits before the ellipsis.
bool GlyphTable::elide(QStringView text, qreal room, GlyphLine &line)
{
    const Entry dots = entry(QStringView(&ellipsis, 1), 0);
    if (dots.font == shaped)
        return false;
    line.glyphs.clear();
    line.width = 0;
    qreal x = 0;
    char16_t last = 0;
    qreal end = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const char16_t c = text[at].unicode();
        const Entry &found = entry(text, at);
        // Includes the kerning with its neighbour, as in font metrics.
        qreal next = x + found.advance;
        if (at + 1 < text.size() && entry(text, at + 1).font != shaped)
            next += kerning(c, text[at + 1].unicode());
        if (std::isnan(next))
            return false;
        if (next >= room - dots.advance)
            break;
        if (c != u' ')
            line.glyphs.push_back({found.glyph, found.font, {x, 0}});
        end = x + found.advance;
        x = next;
        last = c;
    }
    const qreal nearer = last ? kerning(last, ellipsis) : 0;
    if (std::isnan(nearer))
        return false;
    line.glyphs.push_back({dots.glyph, dots.font, {end + nearer, 0}});
    line.width = end + nearer + dots.advance;
    return true;
}

void GlyphTable::shape(const QString &text, qreal room, Qt::LayoutDirection direction, GlyphLine &line)
{
    QTextLayout layout(text, m_font);
    QTextLine laidOut = lineOf(layout, direction);
    if (laidOut.naturalTextWidth() > room) {
        const QFontMetricsF metrics(m_font);
        layout.setText(metrics.elidedText(text, Qt::ElideRight, room));
        laidOut = lineOf(layout, direction);
        // Joined letters can become wider at the end, so the metrics may allow too many.
        for (qreal fit = room - 1; fit > 0 && laidOut.naturalTextWidth() > room + tolerance; --fit) {
            layout.setText(metrics.elidedText(text, Qt::ElideRight, fit));
            laidOut = lineOf(layout, direction);
        }
    }
    line.glyphs.clear();
    line.width = laidOut.naturalTextWidth();
    const QPointF origin(laidOut.naturalTextRect().left(), laidOut.ascent());
    for (const QGlyphRun &run : layout.glyphRuns()) {
        const int font = fontIndex(run.rawFont());
        const QList<quint32> indexes = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        for (qsizetype i = 0; i < indexes.size(); ++i)
            line.glyphs.push_back({indexes[i], font, positions[i] - origin});
    }
}

GlyphTable::Shape GlyphTable::shapeOf(const QString &text)
{
    QTextLayout layout(text, m_font);
    const QTextLine line = lineOf(layout, Qt::LeftToRight, QTextOption::IncludeTrailingSpaces);
    Shape shape;
    for (const QGlyphRun &run : layout.glyphRuns()) {
        const int font = fontIndex(run.rawFont());
        const QList<quint32> indexes = run.glyphIndexes();
        const QList<QPointF> positions = run.positions();
        for (qsizetype i = 0; i < indexes.size(); ++i)
            shape.glyphs.push_back({indexes[i], font, positions[i]});
    }
    std::ranges::stable_sort(shape.glyphs, {}, [](const PlacedGlyph &glyph) { return glyph.position.x(); });
    for (int i = 1; i <= text.size(); ++i)
        shape.ends.push_back(line.cursorToX(i));
    return shape;
}

GlyphTable::Entry &GlyphTable::slot(char16_t c)
{
    std::unique_ptr<Page> &page = m_pages[c / pageSize];
    if (!page)
        page = std::make_unique<Page>();
    return (*page)[c % pageSize];
}

const GlyphTable::Entry &GlyphTable::entry(QStringView text, qsizetype at)
{
    const char16_t c = text[at].unicode();
    const Entry &found = slot(c);
    if (found.font == unknown) {
        if (isIdeographic(c))
            learnIdeographs(text.sliced(at));
        else
            learn(c);
    }
    return found;
}

void GlyphTable::learn(char16_t c)
{
    Entry &entry = slot(c);
    entry.font = shaped;
    if (!isAlphabetic(c))
        return;
    const Shape shape = shapeOf(QChar(c));
    if (shape.glyphs.size() == 1)
        entry = {shape.glyphs[0].index, shape.glyphs[0].font, shape.ends[0]};
}

// All characters of a text at once, because a table contains many. Punctuation takes the font of its script,
// so an ideograph precedes it here.
void GlyphTable::learnIdeographs(QStringView text)
{
    QString letters(u'中');
    for (const QChar c : text) {
        if (isIdeographic(c.unicode()) && slot(c.unicode()).font == unknown && letters.lastIndexOf(c) < 1)
            letters += c;
    }
    const Shape shape = shapeOf(letters);
    const auto count = static_cast<std::size_t>(letters.size());
    for (std::size_t i = 1; i < count; ++i) {
        Entry &entry = slot(letters[static_cast<qsizetype>(i)].unicode());
        entry.font = shaped;
        if (shape.glyphs.size() == count)
            entry = {shape.glyphs[i].index, shape.glyphs[i].font, shape.ends[i] - shape.ends[i - 1]};
    }
}

qreal GlyphTable::kerning(char16_t first, char16_t second)
{
    const auto isPrintable = [](char16_t c) { return isBetween(c, 0x20, 0x7E); };
    if (isPrintable(first) && isPrintable(second)) {
        float &kept = m_printablePairs[static_cast<std::size_t>((first - 0x20) * printable + second - 0x20)];
        if (kept == notLearned)
            kept = static_cast<float>(learnKerning(first, second));
        return kept;
    }
    // Ideographs have no kerning, but a space after one is taken from its font.
    if (isIdeographic(second) || (isIdeographic(first) && second != u' '))
        return 0;
    const quint32 row = isIdeographic(first) ? static_cast<quint32>(slot(first).font) : first;
    const quint32 key = (row << 16) | second;
    auto kept = m_otherPairs.find(key);
    if (kept == m_otherPairs.end())
        kept = m_otherPairs.insert(key, static_cast<float>(learnKerning(first, second)));
    return *kept;
}

qreal GlyphTable::learnKerning(char16_t first, char16_t second)
{
    const Entry a = slot(first);
    const Entry b = slot(second);
    const Shape shape = shapeOf(QString(QChar(first)) + QChar(second));
    const auto isThat = [](const PlacedGlyph &glyph, const Entry &entry) {
        return glyph.index == entry.glyph && glyph.font == entry.font;
    };
    const bool isSpace = second == u' '; // is not drawn, so its glyph does not matter
    if (shape.glyphs.size() != 2 || !isThat(shape.glyphs[0], a) || !(isSpace || isThat(shape.glyphs[1], b)))
        return hasOwnGlyphs;
    return shape.ends[1] - a.advance - b.advance;
}

int GlyphTable::fontIndex(const QRawFont &font)
{
    const auto found = std::ranges::find(m_rawFonts, font);
    if (found != m_rawFonts.end())
        return static_cast<int>(found - m_rawFonts.begin());
    m_rawFonts.push_back(font);
    return static_cast<int>(m_rawFonts.size()) - 1;
}

} // namespace KOVAVSFDataGridLib
