#pragma once

#include "filter/ValueEdit.h"

namespace KOVAVSFDataGridLib {

class Session;

// The values to choose from for a field of the open result (0-based): those of the table that it references,
// or else those that its column has, as they are shown. Only the ones that contain `search`; it may be empty.
ListedValues knownValues(Session &session, int field, const QString &search);

} // namespace KOVAVSFDataGridLib
