#include "control/parts/toolbar/ToolbarIcons.h"
#include "session/commands/Command.h"

#include <QtCore/QSet>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <gtest/gtest.h>

using KOVAVSFDataGridLib::Command;
using KOVAVSFDataGridLib::toolbarIcon;

namespace {

QPalette palette(const QColor &window, const QColor &text, const QColor &disabled, const QColor &highlight)
{
    QPalette result(window, window);
    result.setColor(QPalette::WindowText, text);
    result.setColor(QPalette::Disabled, QPalette::WindowText, disabled);
    result.setColor(QPalette::Highlight, highlight);
    result.setColor(QPalette::HighlightedText, Qt::yellow);
    return result;
}

QImage image(const QString &key, QSize size, QIcon::Mode mode = QIcon::Normal,
             QIcon::State state = QIcon::Off)
{
    return toolbarIcon(key).pixmap(size, 1.0, mode, state).toImage().convertToFormat(QImage::Format_ARGB32);
}

// The colours of the pixels that a drawing covers wholly, that is without anti-aliasing.
QSet<QRgb> inks(const QImage &picture)
{
    QSet<QRgb> result;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) == 255)
                result.insert(picture.pixel(x, y));
        }
    }
    return result;
}

class ToolbarIcons : public testing::Test
{
protected:
    ToolbarIcons() { QGuiApplication::setPalette(m_light); }
    ~ToolbarIcons() override { QGuiApplication::setPalette(m_before); }

    const QPalette m_before = QGuiApplication::palette();
    const QPalette m_light =
        palette(Qt::white, QColor(10, 20, 30), QColor(150, 151, 152), QColor(0, 90, 200));
    const QPalette m_dark =
        palette(QColor(30, 30, 30), QColor(240, 230, 220), QColor(90, 91, 92), QColor(80, 160, 250));
    const QSize m_large{64, 64};
};

TEST_F(ToolbarIcons, EveryKeyHasItsOwnPicture)
{
    QList<QImage> seen;
    for (const Command *command : Command::all()) {
        if (!command->button)
            continue;
        const QString &key = command->key;
        const QImage picture = image(key, QSize(16, 16));
        EXPECT_EQ(picture.size(), QSize(16, 16)) << qPrintable(key);
        EXPECT_FALSE(inks(picture).isEmpty()) << qPrintable(key);
        EXPECT_FALSE(seen.contains(picture)) << qPrintable(key);
        seen.append(picture);
    }
}

TEST_F(ToolbarIcons, AnUnknownKeyGivesANullIcon)
{
    for (const char *key : {"", "all", "Nothing", "All.svg"})
        EXPECT_TRUE(toolbarIcon(QString::fromLatin1(key)).isNull()) << key;
}

TEST_F(ToolbarIcons, LinesTakeTheTextColourOfTheCurrentPalette)
{
    const QIcon icon = toolbarIcon(QStringLiteral("First"));
    for (const QPalette &current : {m_light, m_dark, m_light}) {
        QGuiApplication::setPalette(current);
        const QImage picture = icon.pixmap(m_large, 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
        EXPECT_EQ(inks(picture), QSet<QRgb>{current.color(QPalette::WindowText).rgb()});
    }
}

TEST_F(ToolbarIcons, TheAccentIsTheHighlightColour)
{
    for (const QPalette &current : {m_light, m_dark}) {
        QGuiApplication::setPalette(current);
        const QSet<QRgb> used = inks(image(QStringLiteral("Sort"), m_large));
        EXPECT_TRUE(used.contains(current.color(QPalette::Highlight).rgb()));
        EXPECT_TRUE(used.contains(current.color(QPalette::WindowText).rgb()));
    }
}

TEST_F(ToolbarIcons, AHighlightTooPaleForALineIsDrawnTowardsTheTextColour)
{
    QGuiApplication::setPalette(palette(Qt::white, Qt::black, Qt::gray, QColor(255, 240, 150)));
    for (const QIcon::State state : {QIcon::Off, QIcon::On}) {
        const QSet<QRgb> used = inks(image(QStringLiteral("Sort"), m_large, QIcon::Normal, state));
        EXPECT_GE(used.size(), 2);
        for (const QRgb ink : used)
            EXPECT_LT(qGray(ink), 150);
    }
}

TEST_F(ToolbarIcons, ACheckedPictureIsNeverPalerThanAnUncheckedOne)
{
    const QRgb justReadable = qRgb(48, 140, 198);
    QGuiApplication::setPalette(palette(QColor(239, 239, 239), Qt::black, Qt::gray, QColor(justReadable)));
    EXPECT_TRUE(inks(image(QStringLiteral("Sort"), m_large)).contains(justReadable));
    const QSet<QRgb> checked = inks(image(QStringLiteral("Sort"), m_large, QIcon::Normal, QIcon::On));
    EXPECT_GE(checked.size(), 2);
    for (const QRgb ink : checked)
        EXPECT_LT(qGray(ink), qGray(justReadable));
}

TEST_F(ToolbarIcons, ADisabledPictureHasOnlyTheDisabledColour)
{
    const QSet<QRgb> expected{m_light.color(QPalette::Disabled, QPalette::WindowText).rgb()};
    EXPECT_EQ(inks(image(QStringLiteral("Sort"), m_large, QIcon::Disabled)), expected);
}

TEST_F(ToolbarIcons, ASelectedPictureHasTheColourOfSelectedText)
{
    EXPECT_EQ(inks(image(QStringLiteral("Sort"), m_large, QIcon::Selected)),
              QSet<QRgb>{QColor(Qt::yellow).rgb()});
}

TEST_F(ToolbarIcons, ATranslucentTextColourIsMixedWithTheWindow)
{
    QGuiApplication::setPalette(palette(Qt::white, QColor(0, 0, 0, 128), Qt::gray, Qt::blue));
    EXPECT_EQ(inks(image(QStringLiteral("First"), m_large)), QSet<QRgb>{qRgb(127, 127, 127)});
}

TEST_F(ToolbarIcons, ADenseScreenGetsItsOwnRenderingInsteadOfAnEnlargedOne)
{
    const QPixmap dense = toolbarIcon(QStringLiteral("Filter")).pixmap(QSize(16, 16), 2.0);
    EXPECT_EQ(dense.size(), QSize(32, 32));
    EXPECT_EQ(dense.devicePixelRatio(), 2.0);
    QImage picture = dense.toImage().convertToFormat(QImage::Format_ARGB32);
    picture.setDevicePixelRatio(1.0);
    EXPECT_EQ(picture, image(QStringLiteral("Filter"), QSize(32, 32)));
}

TEST_F(ToolbarIcons, PaintingFollowsTheDensityOfTheDevice)
{
    QImage page(48, 48, QImage::Format_ARGB32_Premultiplied);
    page.fill(Qt::transparent);
    page.setDevicePixelRatio(2.0);
    QPainter painter(&page);
    toolbarIcon(QStringLiteral("FromResult")).paint(&painter, QRect(4, 4, 16, 16));
    painter.end();
    page.setDevicePixelRatio(1.0);
    EXPECT_EQ(page.copy(8, 8, 32, 32).convertToFormat(QImage::Format_ARGB32),
              image(QStringLiteral("FromResult"), QSize(32, 32)));
}

TEST_F(ToolbarIcons, AnOblongSpaceHoldsTheSquarePictureInItsMiddle)
{
    const QImage oblong = image(QStringLiteral("AllRecord"), QSize(64, 32));
    EXPECT_EQ(oblong.size(), QSize(64, 32));
    EXPECT_EQ(oblong.copy(16, 0, 32, 32), image(QStringLiteral("AllRecord"), QSize(32, 32)));
}

TEST_F(ToolbarIcons, ARenderingIsKeptUntilAColourChanges)
{
    const auto rendering = [] {
        return toolbarIcon(QStringLiteral("Next")).pixmap(QSize(16, 16), 1.0).cacheKey();
    };
    const qint64 first = rendering();
    EXPECT_EQ(rendering(), first);
    QGuiApplication::setPalette(m_dark);
    EXPECT_NE(rendering(), first);
}

TEST_F(ToolbarIcons, NoSpaceIsNoPicture)
{
    EXPECT_TRUE(toolbarIcon(QStringLiteral("Next")).pixmap(QSize(0, 0), 1.0).isNull());
}

} // namespace
