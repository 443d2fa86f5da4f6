#pragma once

#include <windows.h>

namespace KOVAVSFDataGridLib::ActiveX {

// Makes sure that Qt runs in this process and that the caller is on the widgets' thread: the first thread
// that called this. Uses the host's QApplication if it has one. RPC_E_WRONG_THREAD on any other thread.
HRESULT startQt();

} // namespace KOVAVSFDataGridLib::ActiveX
