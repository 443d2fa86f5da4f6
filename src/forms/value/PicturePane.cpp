#include "forms/value/PicturePane.h"

#include "forms/FormTexts.h"

#include <QtCore/QBuffer>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

PicturePane::PicturePane(const QImage &picture, QWidget *parent) : QWidget(parent), m_picture(picture)
{
    setObjectName(u"PicturePane"_s);
    setAccessibleName(FormTexts::PictureTab);
}

QImage PicturePane::pictureIn(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    return reader.canRead() ? reader.read() : QImage();
}

QString PicturePane::formatOf(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return QString::fromLatin1(QImageReader::imageFormat(&buffer)).toUpper();
}

void PicturePane::paintEvent(QPaintEvent *)
{
    QSizeF size = m_picture.deviceIndependentSize();
    if (size.width() > width() || size.height() > height())
        size.scale(rect().size(), Qt::KeepAspectRatio);
    QRectF place({}, size);
    place.moveCenter(QRectF(rect()).center());
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, m_picture);
}

} // namespace KOVAVSFDataGridLib
