#include "activex/server/QuitKeeper.h"

#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <QtWidgets/QDialog>

#include <utility>
#include <windows.h>

namespace KOVAVSFDataGridLib::ActiveX {

namespace {

HHOOK hook = nullptr;
bool isEnding = false;

// The end of one dialog can open the next, so this repeats until no event loop of Qt is left.
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
        popup->close(); // a menu has an event loop too
    QTimer::singleShot(10, qApp, [exitCode] { endDialogs(exitCode); });
}

LRESULT CALLBACK look(int code, WPARAM removed, LPARAM data)
{
    if (code == HC_ACTION && removed == PM_REMOVE) {
        const auto &message = *reinterpret_cast<const MSG *>(data);
        // If no event loop of Qt is running, the host receives the message itself.
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

void forgetQuitMessages()
{
    UnhookWindowsHookEx(std::exchange(hook, nullptr));
    isEnding = false;
}

} // namespace KOVAVSFDataGridLib::ActiveX
