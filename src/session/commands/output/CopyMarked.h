#pragma once

namespace KOVAVSFDataGridLib {

class Session;

// Puts the marked cells on the clipboard, of a single record its marked fields.
void copyMarked(Session &session, bool hasHeadings);

} // namespace KOVAVSFDataGridLib
