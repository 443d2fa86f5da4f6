#pragma once

#include <windows.h>

namespace KOVAVSFDataGridLib::ActiveX {

// Makes sure that Qt runs on the caller's thread. Uses the host's QApplication if it has one.
// RPC_E_WRONG_THREAD if Qt stays on another thread (see QtHome).
HRESULT startQt();

// Whether Qt ran in this process at any time.
bool wasQtStarted();

} // namespace KOVAVSFDataGridLib::ActiveX
