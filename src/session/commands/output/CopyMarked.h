#pragma once

namespace KOVAVSFDataGridLib {

class Session;

// Copies the marked cells to the clipboard, or the marked fields of a single record.
void copyMarked(Session &session, bool hasHeadings);

} // namespace KOVAVSFDataGridLib
