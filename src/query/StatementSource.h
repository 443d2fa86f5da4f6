#pragma once

#include <QtCore/qglobal.h>

namespace KOVAVSFDataGridLib {

// What a host's statement selects from, as set by the host. Other numbers can be stored too.
enum StatementSource : qint32 { FromTable = 0, FromView = 1, FromOwnStatement = 2 };

} // namespace KOVAVSFDataGridLib
