#include "control/parts/toolbar/IconMaskSizes.h"
#include "control/parts/toolbar/IconPicture.h"

#include <QtCore/QFile>
#include <QtGui/QColor>
#include <QtGui/QPainter>

#include <algorithm>
#include <iterator>

namespace KOVAVSFDataGridLib {
namespace {

QString fileOf(const QString &key, int side)
{
    return QStringLiteral(":/KOVAVSFDataGridLib/icons/%1-%2.png").arg(key).arg(side);
}

// In a mask, red is the coverage of a pixel by lines, and blue by the accent.
QRgb coloured(QRgb mask, QRgb line, QRgb accent)
{
    const int lineShare = qRed(mask);
    const int accentShare = qBlue(mask);
    const auto channel = [&](int a, int b) { return (a * lineShare + b * accentShare + 127) / 255; };
    return qRgba(channel(qRed(line), qRed(accent)), channel(qGreen(line), qGreen(accent)),
                 channel(qBlue(line), qBlue(accent)), channel(255, 255));
}

} // namespace

bool hasIconPicture(const QString &key)
{
    return QFile::exists(fileOf(key, iconMaskSizes[0]));
}

QImage iconPicture(const QString &key, const QSize &size, const QColor &line, const QColor &accent)
{
    const int side = std::min(size.width(), size.height());
    const int *const largest = std::prev(std::end(iconMaskSizes));
    const int *const enough = std::lower_bound(std::begin(iconMaskSizes), largest, side);
    QImage mask;
    if (!mask.load(fileOf(key, *enough)))
        return {};
    mask.convertTo(QImage::Format_ARGB32_Premultiplied);
    if (side != *enough)
        mask = mask.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);

    for (int y = 0; y < mask.height(); ++y) {
        auto *const pixels = reinterpret_cast<QRgb *>(mask.scanLine(y));
        std::transform(pixels, pixels + mask.width(), pixels,
                       [&](QRgb pixel) { return coloured(pixel, line.rgb(), accent.rgb()); });
    }
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.drawImage((size.width() - side) / 2, (size.height() - side) / 2, mask);
    return picture;
}

} // namespace KOVAVSFDataGridLib
