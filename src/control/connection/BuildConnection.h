#pragma once

#include "../../KovaExport.h"

#include <QtCore/QString>

#include <optional>

class QWidget;

namespace KOVAVSFDataGridLib {

// Lets a person build a connection string for a database of the given AllDBType in a window above `parent`,
// beginning with `present`. Nothing when that was cancelled. What was opened to try it is closed again.
KOVA_EXPORT std::optional<QString> BuildConnection(QWidget *parent, const QString &present, qint32 dbType);

} // namespace KOVAVSFDataGridLib
