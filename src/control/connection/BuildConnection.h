#pragma once

#include "../../KovaExport.h"

#include <QtCore/QString>

#include <optional>

class QWidget;

namespace KOVAVSFDataGridLib {

// Shows a dialog above `parent` in which the user builds a connection string for a database of the given
// AllDBType, starting with `present`. Returns nothing if the user cancels. A connection opened for testing is
// closed again.
KOVA_EXPORT std::optional<QString> buildConnection(QWidget *parent, const QString &present, qint32 dbType);

} // namespace KOVAVSFDataGridLib
