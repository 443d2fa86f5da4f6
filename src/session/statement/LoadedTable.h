#pragma once

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

class Session;

// The table of the loaded statement, for settings that are stored per table.
QString loadedTable(Session &session);

} // namespace KOVAVSFDataGridLib
