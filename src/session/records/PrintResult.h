#pragma once

#include "session/Questions.h"

namespace KOVAVSFDataGridLib {

class Session;

// What can be printed: the open result as it is shown.
PrintRequest printRequestOf(Session &session);

// Passes the open result to the answer's writer, showing progress. Returns false if the user cancelled, or if
// it failed, after a message.
bool printResult(Session &session, const PrintRequest &request, const PrintAnswer &what);

} // namespace KOVAVSFDataGridLib
