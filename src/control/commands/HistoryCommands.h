#pragma once

#include "control/commands/ControlHub.h"

// The ways through the history. Each ends silently when there is nowhere to go; a statement that can't be
// opened leaves the history as it was.
namespace KOVAVSFDataGridLib {

// One statement back, and back to the first; both show many records again.
void GotoPreviewSQL(ControlHub &hub);
void GotoOriginSQL(ControlHub &hub);
// The latest statement without its condition.
void ShowFullTable(ControlHub &hub);

} // namespace KOVAVSFDataGridLib
