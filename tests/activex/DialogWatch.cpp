#include "DialogWatch.h"

#include <iterator>
#include <stop_token>
#include <string_view>
#include <thread>
#include <utility>
#include <windows.h>

namespace {

std::function<void()> pendingAction; // what the next dialog waits for

// The window of this thread in front, unless it is of the other class.
HWND openDialog(DWORD thread, std::wstring_view otherClass)
{
    const HWND front = GetForegroundWindow();
    wchar_t name[64]{};
    if (!front || GetWindowThreadProcessId(front, nullptr) != thread ||
        !GetClassNameW(front, name, static_cast<int>(std::size(name))))
        return nullptr;
    return name == otherClass ? nullptr : front;
}

// On a thread of its own, because the system delivers timers only when there are no other messages, and on a
// busy machine there always are while a button is animated.
void watch(const std::stop_token &stop, std::wstring_view otherClass, DWORD thread, HWND receiver)
{
    HWND seen = nullptr;
    while (!stop.stop_requested()) {
        Sleep(500);
        // When it is in front for the second time, it has been drawn.
        const HWND before = std::exchange(seen, openDialog(thread, otherClass));
        if (seen && seen == before) {
            PostMessageW(receiver, WM_APP, 0, 0);
            return;
        }
    }
}

std::jthread watcher;

LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM wide, LPARAM data)
{
    if (message != WM_APP)
        return DefWindowProcW(window, message, wide, data);
    DestroyWindow(window);
    if (pendingAction)
        std::exchange(pendingAction, nullptr)();
    return 0;
}

// A window of this thread for messages to it.
HWND newReceiver()
{
    static const ATOM windowClass = [] {
        WNDCLASSW description{};
        description.lpfnWndProc = onMessage;
        description.hInstance = GetModuleHandleW(nullptr);
        description.lpszClassName = L"KovaAction";
        return RegisterClassW(&description);
    }();
    return CreateWindowW(MAKEINTATOM(windowClass), nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                         GetModuleHandleW(nullptr), nullptr);
}

} // namespace

void DialogWatch::whenOpen(const wchar_t *otherClass, std::function<void()> action)
{
    pendingAction = std::move(action);
    watcher = std::jthread(watch, std::wstring_view(otherClass), GetCurrentThreadId(), newReceiver());
}

void DialogWatch::cancel()
{
    watcher = {};
    pendingAction = nullptr;
}
