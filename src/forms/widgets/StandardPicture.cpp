#include "forms/widgets/StandardPicture.h"

#include <QtGui/QIcon>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib {

// QStyle creates a new icon for each call, and an icon caches its
// pixmaps under unique names. The cache drops pixmaps but keeps their
// names forever (Qt 6.4), so every dialog would leak some memory.
QPixmap standardPicture(const QWidget &widget, QStyle::StandardPixmap picture, int size)
{
    const double ratio = widget.devicePixelRatioF();
    const QString name = QStringLiteral("KOVAVSFDataGridLib/standard/%1/%2/%3/%4x%5")
                             .arg(widget.style()->name(), QIcon::themeName(), QString::number(picture),
                                  QString::number(size), QString::number(ratio));
    QPixmap pixmap;
    if (!QPixmapCache::find(name, &pixmap)) {
        pixmap = widget.style()->standardIcon(picture).pixmap(QSize(size, size), ratio);
        QPixmapCache::insert(name, pixmap);
    }
    return pixmap;
}

} // namespace KOVAVSFDataGridLib
