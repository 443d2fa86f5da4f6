#include "session/SessionWindow.h"

#include <QtCore/QMimeData>

namespace KOVAVSFDataGridLib {

void SessionWindow::putOnClipboard(std::unique_ptr<QMimeData>) {}

} // namespace KOVAVSFDataGridLib
