#include "control/parts/toolbar/IconPicture.h"

#include <QtCore/QFile>
#include <QtGui/QColor>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

namespace KOVAVSFDataGridLib {
namespace {

// The colours in the drawing files, which any viewer can show.
constexpr QByteArrayView lineInDrawing("currentColor");
constexpr QByteArrayView accentInDrawing("#2a82da");

QString fileOf(const QString &key)
{
    return QStringLiteral(":/KOVAVSFDataGridLib/icons/%1.svg").arg(key);
}

} // namespace

bool hasIconPicture(const QString &key)
{
    return QFile::exists(fileOf(key));
}

QImage iconPicture(const QString &key, const QSize &size, const QColor &line, const QColor &accent)
{
    QFile file(fileOf(key));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QByteArray drawing = file.readAll();
    drawing.replace(lineInDrawing, line.name().toLatin1());
    drawing.replace(accentInDrawing, accent.name().toLatin1());

    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QSvgRenderer renderer(drawing);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    renderer.render(&painter);
    return picture;
}

} // namespace KOVAVSFDataGridLib
