#pragma once

#include "control/commands/ControlHub.h"

// The ways of showing fewer records. Each ends silently when there is nothing to filter, when the user
// cancels, and when no statement can be derived.
namespace KOVAVSFDataGridLib {

// Lets the user build a condition in the filter dialog above `parent`; an empty text when he cancels.
QString AskForCondition(ControlHub &hub, QWidget *parent);

// Asks the host for a condition by its event QurryFilter, and the user by the filter dialog unless the host
// took over. Filters what is shown while the "FromResult" button is pressed, else the first statement.
void FilterByDialog(ControlHub &hub);

// Asks for words and looks for them in all fields, or in one.
void QuickFilter(ControlHub &hub);

// Keeps the records whose field equals the current cell of the grid, or of the single-record view.
void FilterBySelectedCell(ControlHub &hub);

} // namespace KOVAVSFDataGridLib
