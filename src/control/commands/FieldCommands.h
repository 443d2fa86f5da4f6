#pragma once

#include "control/commands/ControlHub.h"

// Which fields are shown.
namespace KOVAVSFDataGridLib {

// Both change only the columns' layout as long as each field they need has a column; otherwise they open the
// statement that has them. Without a part statement ShowPartFields presses "All" and leaves the rest.
void ShowAllFields(ControlHub &hub);
void ShowPartFields(ControlHub &hub);

// Lets the user choose the part fields and shows them; `strSQL` receives the new statement. Nothing changes
// when the user cancels.
void SelectShowFields(ControlHub &hub, QString &strSQL);

} // namespace KOVAVSFDataGridLib
