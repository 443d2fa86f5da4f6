#include "control/parts/toolbar/ToolbarIcons.h"

#include "control/parts/toolbar/IconPicture.h"
#include "forms/Contrast.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QIconEngine>
#include <QtGui/QPainter>
#include <QtGui/QPalette>
#include <QtGui/QPixmapCache>

namespace KOVAVSFDataGridLib {
namespace {

struct Colours
{
    QColor line;
    QColor accent;
};

// The highlight colour is intended as a background, not for thin lines. If its contrast to the background is
// too low, it is blended with the text colour until it is sufficient.
QColor readable(const QColor &accent, const QColor &line, const QColor &paper)
{
    for (int tenths = 10; tenths > 0; --tenths) {
        const QColor candidate = blended(accent, line, tenths / 10.0);
        if (contrast(candidate, paper) >= leastPictureContrast)
            return candidate;
    }
    return line;
}

Colours coloursFor(QIcon::Mode mode, QIcon::State state)
{
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Selected) {
        const QColor text = palette.color(QPalette::HighlightedText);
        return {text, text};
    }
    const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const QColor window = palette.color(group, QPalette::Window);
    const QColor text = palette.color(group, QPalette::WindowText);
    const QColor line = blended(text, window, text.alphaF());
    if (mode == QIcon::Disabled)
        return {line, line};
    // Styles tint the background of a checked button: darker in light windows, lighter in dark ones.
    const QColor paper = state == QIcon::On ? blended(line, window, 0.12) : window;
    return {line, readable(palette.color(group, QPalette::Highlight), line, paper)};
}

// One drawing in the palette's colours. The application's pixmap cache stores its pixmaps under names that
// include everything they depend on, so a new palette results in new names.
class ToolbarIconEngine final : public QIconEngine
{
public:
    explicit ToolbarIconEngine(const QString &key) : m_key(key) {}

    QString key() const override { return QStringLiteral("KOVAVSFDataGridLib::ToolbarIconEngine"); }
    QIconEngine *clone() const override { return new ToolbarIconEngine(*this); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const double ratio = painter->device()->devicePixelRatioF();
        QPixmap picture = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
        picture.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect.topLeft(), picture);
    }

    // `size` is in device pixels, as usual for an icon engine.
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        if (size.isEmpty())
            return {};
        const Colours colours = coloursFor(mode, state);
        const QString name = QStringLiteral("KOVAVSFDataGridLib/%1/%2x%3/%4/%5")
                                 .arg(m_key)
                                 .arg(size.width())
                                 .arg(size.height())
                                 .arg(colours.line.name(), colours.accent.name());
        QPixmap picture;
        if (!QPixmapCache::find(name, &picture)) {
            picture = QPixmap::fromImage(iconPicture(m_key, size, colours.line, colours.accent));
            QPixmapCache::insert(name, picture);
        }
        return picture;
    }

private:
    QString m_key;
};

} // namespace

QIcon toolbarIcon(const QString &key)
{
    return hasIconPicture(key) ? QIcon(new ToolbarIconEngine(key)) : QIcon();
}

} // namespace KOVAVSFDataGridLib
