#include "activex/server/QuitKeeper.h"

#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

#include <windows.h>

namespace KOVAVSFDataGridLib::ActiveX {

namespace {

HHOOK hook = nullptr;
bool isEnding = false;

// A dialog that ends can be followed by the next question, so this goes on until no loop of Qt's is left.
void endDialogs(int exitCode)
{
    if (QThread::currentThread()->loopLevel() == 0) {
        isEnding = false;
        PostQuitMessage(exitCode);
        return;
    }
    if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
        dialog->done(QDialog::Rejected);
    else if (QWidget *popup = QApplication::activePopupWidget())
        popup->close(); // a menu has a loop, too
    QTimer::singleShot(10, qApp, [exitCode] { endDialogs(exitCode); });
}

LRESULT CALLBACK look(int code, WPARAM removed, LPARAM data)
{
    if (code == HC_ACTION && removed == PM_REMOVE) {
        const auto &message = *reinterpret_cast<const MSG *>(data);
        // Without a loop of Qt's it is the host that takes the message.
        if (message.message == WM_QUIT && !isEnding && QThread::currentThread()->loopLevel() > 0) {
            isEnding = true;
            const int exitCode = static_cast<int>(message.wParam);
            QTimer::singleShot(0, qApp, [exitCode] { endDialogs(exitCode); });
        }
    }
    return CallNextHookEx(hook, code, removed, data);
}

} // namespace

void keepQuitMessages()
{
    if (!hook)
        hook = SetWindowsHookExW(WH_GETMESSAGE, look, nullptr, GetCurrentThreadId());
}

} // namespace KOVAVSFDataGridLib::ActiveX
