#pragma once

#include "session/Questions.h"

namespace KOVAVSFDataGridLib {

class Session;

// What can be printed of the open result: what is shown, as it is shown.
PrintRequest printRequestOf(Session &session);

// Hands the open result to the answer's writer under the progress line. False when the user cancelled and
// when it fails, which he has been shown.
bool printResult(Session &session, const PrintRequest &request, const PrintAnswer &what);

} // namespace KOVAVSFDataGridLib
