#include "forms/widgets/StandardPicture.h"

#include <QtGui/QIcon>
#include <QtGui/QPixmapCache>
#include <QtWidgets/QWidget>

namespace KOVAVSFDataGridLib {

// QStyle makes a new icon for each call, and an icon caches its pixmaps under names that no other icon has.
// The cache drops pixmaps but never their names (Qt 6.4), so a name for each dialog would take memory for
// good.
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
