#pragma once

#include "control/commands/ControlHub.h"

namespace KOVAVSFDataGridLib {

// Shows the result in a window of its own that fills the screen. Nothing happens without records.
void ShowFullScreen(ControlHub &hub);

} // namespace KOVAVSFDataGridLib
