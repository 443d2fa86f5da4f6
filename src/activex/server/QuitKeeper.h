#pragma once

namespace KOVAVSFDataGridLib::ActiveX {

// Lets the end of the process's message loop reach it also while a dialog of Qt's is open. The dialog's loop
// takes WM_QUIT out of the queue and does nothing about it, because the application is not Qt's. From now on
// the dialogs are cancelled then, and the message is posted again for the host's own loop.
//
// Call it once, on the thread of the widgets.
void keepQuitMessages();

} // namespace KOVAVSFDataGridLib::ActiveX
