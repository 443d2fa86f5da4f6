#pragma once

#include <QtGui/QIcon>

namespace KOVAVSFDataGridLib {

// The picture of the toolbar button with this key (exact spelling, "ToPreview"); a null icon for any
// other text. The drawing takes its colours from the application's palette each time it is painted, so
// one icon serves light and dark desktops, every button state and every device pixel ratio.
QIcon toolbarIcon(const QString &key);

} // namespace KOVAVSFDataGridLib
