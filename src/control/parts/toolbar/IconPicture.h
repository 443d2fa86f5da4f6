#pragma once

#include <QtGui/QImage>

class QColor;

namespace KOVAVSFDataGridLib {

// The drawings of the toolbar, each made of lines and of parts with an accent. There are two implementations:
// with Qt's SVG module the drawings are rendered when they are asked for; without it, pictures that were
// rendered when this library was built are coloured. CMake takes one of them.

bool hasIconPicture(const QString &key);

// The drawing in the middle of a transparent picture of this size, as large as fits, in these two opaque
// colours. Null when there is no such drawing.
QImage iconPicture(const QString &key, const QSize &size, const QColor &line, const QColor &accent);

} // namespace KOVAVSFDataGridLib
