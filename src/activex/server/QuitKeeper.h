#pragma once

namespace KOVAVSFDataGridLib::ActiveX {

// Makes sure that the host's message loop ends even if a Qt dialog is open. The dialog's loop would remove
// WM_QUIT from the queue and ignore it, because the application is not Qt's. Instead, the dialogs are
// cancelled and the message is posted again for the host's own loop.
//
// Both are called on the widgets' thread; the second before Qt ends.
void keepQuitMessages();
void forgetQuitMessages();

} // namespace KOVAVSFDataGridLib::ActiveX
