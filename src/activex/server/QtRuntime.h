#pragma once

#include <windows.h>

namespace KOVAVSFDataGridLib::ActiveX {

// Makes sure that Qt runs in this process and that the calling thread is the one that widgets live on: the
// first that ever asks. Uses the host's QApplication when it has one. RPC_E_WRONG_THREAD on any other thread.
HRESULT startQt();

} // namespace KOVAVSFDataGridLib::ActiveX
