#include "activex/server/QtHome.h"

#include "activex/server/ComObject.h"
#include "activex/server/QuitKeeper.h"

#include <QtCore/QThread>
#include <QtCore/private/qcoreapplication_p.h>
#include <QtWidgets/QApplication>

#include <atomic>
#include <mutex>
#include <objbase.h>

namespace KOVAVSFDataGridLib::ActiveX {

namespace {

constexpr UINT secondsToLeave = 5;

bool endApplication();

// Unlike a number of one's own, it means nothing to a window that has got the handle of one that is gone.
UINT leaveMessage()
{
    static const UINT number = RegisterWindowMessageW(L"KovaQtHome.Leave");
    return number;
}

LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM wide, LPARAM data)
{
    return message == leaveMessage() ? endApplication() : DefWindowProcW(window, message, wide, data);
}

// A window of this thread, which other threads can send a message to.
HWND newMessageWindow()
{
    static const ATOM known = [] {
        WNDCLASSW description{};
        description.lpfnWndProc = onMessage;
        description.hInstance = moduleInstance;
        description.lpszClassName = L"KovaQtHome";
        return RegisterClassW(&description);
    }();
    return CreateWindowW(MAKEINTATOM(known), nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, moduleInstance,
                         nullptr);
}

// Told by COM whenever this thread initializes or uninitializes it.
class Spy final : public ComObject<IInitializeSpy>
{
public:
    Spy() { CoRegisterInitializeSpy(this, &m_registration); }
    void revoke() { CoRevokeInitializeSpy(m_registration); }

    // Qt initializes COM for itself, as often as was counted until this call.
    void applicationIsMade() { m_isMaking = false; }

    STDMETHODIMP PreInitialize(DWORD, DWORD) override { return S_OK; }
    STDMETHODIMP PostInitialize(HRESULT outcome, DWORD, DWORD) override
    {
        if (m_isMaking && SUCCEEDED(outcome))
            ++m_ofQt;
        return outcome;
    }
    STDMETHODIMP PreUninitialize(DWORD) override { return S_OK; }
    STDMETHODIMP PostUninitialize(DWORD left) override
    {
        // The host is done with COM; only Qt keeps it here, and for a thread whose window has had the focus,
        // the system's input methods do. If the one more is the host's, the next control makes a new
        // application.
        if (!m_isMaking && left <= m_ofQt + 1)
            endApplication();
        return S_OK;
    }

private:
    ULARGE_INTEGER m_registration{};
    DWORD m_ofQt = 0;
    bool m_isMaking = true;
};

std::atomic<HWND> messageWindow = nullptr; // null while there is no application
Spy *spy = nullptr;                        // of the application's thread, which alone uses it
std::mutex ending;

// On the application's thread. Returns whether it has ended.
bool endApplication()
{
    const std::scoped_lock lock(ending);
    if (!messageWindow || QtUse::count() > 0 || QThread::currentThread()->loopLevel() > 0)
        return false;
    DestroyWindow(messageWindow.exchange(nullptr));
    spy->revoke();
    spy->Release();
    forgetQuitMessages();
    // A widget that the host has released in the widget's own event is left.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    delete QCoreApplication::instance();
    return true;
}

} // namespace

void QtHome::settle(void (*make)())
{
    // Qt takes the process's first thread for its main one, also when there is no application on it any more.
    // Event filters of the application work on the main thread only.
    QCoreApplicationPrivate::theMainThread.storeRelease(QThread::currentThread());
    spy = new Spy;
    make();
    spy->applicationIsMade();
    messageWindow = newMessageWindow();
}

bool QtHome::claim()
{
    HWND window = nullptr;
    {
        const std::scoped_lock lock(ending);
        const QCoreApplication *application = QCoreApplication::instance();
        if (!application || application->thread() == QThread::currentThread())
            return true;
        window = messageWindow;
    }
    // The host may have made the application itself; then there is no window.
    DWORD_PTR hasLeft = FALSE;
    return window && QtUse::count() == 0 &&
           SendMessageTimeoutW(window, leaveMessage(), 0, 0, SMTO_ABORTIFHUNG, secondsToLeave * 1000,
                               &hasLeft) &&
           hasLeft;
}

} // namespace KOVAVSFDataGridLib::ActiveX
