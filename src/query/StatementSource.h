#pragma once

#include <QtCore/qglobal.h>

namespace KOVAVSFDataGridLib {

// What the statement of a host selects from, as the host says it. Any other number can be stored.
enum StatementSource : qint32 { FromTable = 0, FromView = 1, FromOwnStatement = 2 };

} // namespace KOVAVSFDataGridLib
