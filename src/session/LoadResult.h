#pragma once

namespace KOVAVSFDataGridLib {

class Session;

// The whole load, from the host's texts to the first entry of the history. Whether it succeeded and its
// result is still open: the host can close it as soon as it hears of it.
bool loadResult(Session &session);

} // namespace KOVAVSFDataGridLib
