#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

class Session;

// The table of the statement that was loaded, for what is kept for each table.
QString loadedTable(Session &session);

} // namespace KOVAVSFDataGridLib
