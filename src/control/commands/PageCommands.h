#pragma once

#include "control/commands/ControlHub.h"

namespace KOVAVSFDataGridLib {

// 1 the first page, 2 the previous, 3 the next, 4 the last. Nothing happens when that is the page shown.
void GotoPage(ControlHub &hub, qint32 direction);

// Shows a page of the result as it is laid out; one behind the last becomes the last.
void TurnToPage(ControlHub &hub, qint64 page);

// Fills the grid anew after the records themselves changed, and makes that record current (0: none), in its
// row and page, without telling of a move. What was in view stays in view.
void RefillAtRecord(ControlHub &hub, qint64 record);

} // namespace KOVAVSFDataGridLib
