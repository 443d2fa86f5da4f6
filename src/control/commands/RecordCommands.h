#pragma once

#include "control/commands/ControlHub.h"

// What changes the records themselves. None of them touches more than one record.
namespace KOVAVSFDataGridLib {

// Writes what was typed into the current record to the database, so that another record or result can be
// shown. A refused one is told and stays, and the answer is false. A new record that nobody wrote anything
// into is dropped. True when there is nothing to save. False as well when the host, told of it, has put
// another result in its place or destroyed the control.
bool SaveRecord(ControlHub &hub);
// Forgets what was written into the current record since it was last saved; a new one goes.
void CancelRecord(ControlHub &hub);

// Begins a new record and shows it in the single-record view.
void InsertRecord(ControlHub &hub);
// Asks, and deletes the current record; the next one becomes current, the last one behind the end.
void DeleteRecord(ControlHub &hub);

} // namespace KOVAVSFDataGridLib
