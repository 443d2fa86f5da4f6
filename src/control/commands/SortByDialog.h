#pragma once

#include "control/commands/ControlHub.h"

#include <QtCore/QString>

namespace KOVAVSFDataGridLib {

// Lets the user choose a sort and shows the records in it. `strSort` receives the sort list and `ok` whether
// it was applied; both stay as they are when the user cancels.
void SortByDialog(ControlHub &hub, QString &strSort, bool &ok);

} // namespace KOVAVSFDataGridLib
