#pragma once

namespace KOVAVSFDataGridLib {

class Session;

// Makes the record `by` records after the current one current, on the page beside where the page ends.
void stepRecord(Session &session, int by);

} // namespace KOVAVSFDataGridLib
