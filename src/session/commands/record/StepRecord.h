#pragma once

namespace KOVAVSFDataGridLib {

class Session;

// Moves by `by` records, to an adjacent page if necessary.
void stepRecord(Session &session, int by);

} // namespace KOVAVSFDataGridLib
