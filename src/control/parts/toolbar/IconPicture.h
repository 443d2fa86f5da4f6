#pragma once

#include <QtGui/QImage>

class QColor;

namespace KOVAVSFDataGridLib {

// The drawings of the toolbar, made of lines and accented parts. There are two implementations: with Qt's SVG
// module, drawings are rendered on demand; without it, pictures rendered when this library was built are
// coloured. CMake chooses one.

bool hasIconPicture(const QString &key);

// The drawing in these two opaque colours, centred in a transparent picture of this size and as large as
// possible. Null if there is no such drawing.
QImage iconPicture(const QString &key, const QSize &size, const QColor &line, const QColor &accent);

} // namespace KOVAVSFDataGridLib
