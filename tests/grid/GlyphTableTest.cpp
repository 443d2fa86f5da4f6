#include "grid/painting/GlyphTable.h"

#include <QtGui/QFontMetricsF>
#include <QtGui/QGlyphRun>
#include <QtGui/QTextLayout>
#include <QtWidgets/QApplication>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <tuple>

using namespace KOVAVSFDataGridLib;
using namespace Qt::StringLiterals;

namespace {

constexpr qreal endless = 1e5;

// What is seen of a glyph: its picture, its font and its place.
using Seen = std::tuple<int, quint32, std::string>;

std::vector<Seen> sorted(std::vector<Seen> glyphs)
{
    std::ranges::sort(glyphs);
    return glyphs;
}

std::vector<Seen> seen(const GlyphTable &table, const GlyphLine &line)
{
    std::vector<Seen> all;
    for (const PlacedGlyph &glyph : line.glyphs) {
        const QRawFont &font = table.rawFonts()[static_cast<std::size_t>(glyph.font)];
        if (!font.boundingRect(glyph.index).isEmpty())
            all.emplace_back(std::lround(glyph.position.x() * 64), glyph.index,
                             font.familyName().toStdString());
    }
    return sorted(all);
}

// The same text as a text layout places it.
std::vector<Seen> laidOut(const QString &text, const QFont &font, Qt::LayoutDirection direction)
{
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setTextDirection(direction);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(endless);
    layout.endLayout();
    std::vector<Seen> all;
    for (const QGlyphRun &run : layout.glyphRuns()) {
        for (qsizetype i = 0; i < run.glyphIndexes().size(); ++i) {
            const quint32 index = run.glyphIndexes()[i];
            const qreal x = run.positions()[i].x() - line.naturalTextRect().left();
            if (!run.rawFont().boundingRect(index).isEmpty())
                all.emplace_back(std::lround(x * 64), index, run.rawFont().familyName().toStdString());
        }
    }
    return sorted(all);
}

struct Text : testing::TestWithParam<const char *>
{
    const QString text = QString::fromUtf8(GetParam());
    const QFont font = QApplication::font();
    GlyphTable table{font};
    GlyphLine line;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Scripts, Text,
                         testing::Values("", "a", " a  b ", "Product number 31", "2015-01-01 00:37:00",
                                         "-0.14", "AVATAR To, We. P.T.", "office affluent fjord",
                                         "深圳市第1号仓库", "深圳 第1 号，a 库 ",
                                         "中文，标点。（括号）《书名》“引号”——破折号……", "ＡＢＣ１２３",
                                         "ひらがなカタカナ", "한국어 문장", "Ünïcödé Łódź", "Ελληνικά",
                                         "Кириллица", "e\xcc\x81 combined", "שלום עולם", "مرحبا بالعالم",
                                         "mixed עברית text", "a\tb", "x² ≥ 3 µm → ½"));

TEST_P(Text, IsPlacedAsATextLayoutPlacesIt)
{
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        for (int round = 0; round < 2; ++round) { // the second from what the first has learned
            table.layOut(text, endless, direction, line);
            EXPECT_EQ(seen(table, line), laidOut(text, font, direction)) << "direction " << direction;
        }
    }
}

TEST_P(Text, IsElidedAsFontMetricsElideIt)
{
    table.layOut(text, endless, Qt::LeftToRight, line);
    const qreal whole = line.width;
    for (qreal room = 15; room < whole; room += 1.7) {
        table.layOut(text, room, Qt::LeftToRight, line);
        const QString elided = QFontMetricsF(font).elidedText(text, Qt::ElideRight, room);
        GlyphLine fitting;
        table.layOut(elided, endless, Qt::LeftToRight, fitting);
        // Font metrics don't see that joined letters grow at the end of a word.
        if (fitting.width <= room + 2) {
            EXPECT_EQ(seen(table, line), laidOut(elided, font, Qt::LeftToRight)) << room;
        }
        EXPECT_LE(line.width, room + 2);
    }
}

TEST(GlyphTable, AllScriptsStandOnOneBaseline)
{
    GlyphTable table{QApplication::font()};
    GlyphLine line;
    for (const QString &text : {u"Latin"_s, u"中文"_s, u"office"_s, u"שלום"_s}) {
        table.layOut(text, endless, Qt::LeftToRight, line);
        ASSERT_FALSE(line.glyphs.empty());
        for (const PlacedGlyph &glyph : line.glyphs)
            EXPECT_EQ(glyph.position.y(), 0) << qUtf8Printable(text);
    }
}
