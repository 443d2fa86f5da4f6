#pragma once

#include <QtCore/qglobal.h>

namespace KOVAVSFDataGridLib {

// The databases whose SQL differs. Any other number can be stored; it means an unknown database.
enum AllDBType : qint32 { dbAccess = 1, dbOracle = 2, dbSQLServer = 3 };

} // namespace KOVAVSFDataGridLib
