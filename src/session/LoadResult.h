#pragma once

namespace KOVAVSFDataGridLib {

class Session;

// The complete load, from the host's texts to the first entry of the history. Returns whether it succeeded
// and the result is still open: the host can close it as soon as it is notified.
bool loadResult(Session &session);

} // namespace KOVAVSFDataGridLib
