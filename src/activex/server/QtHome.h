#pragma once

#include <windows.h>

namespace KOVAVSFDataGridLib::ActiveX {

// Held by every object of this server that has widgets. While there is one, Qt stays on its thread.
class QtUse
{
public:
    QtUse() { InterlockedIncrement(&s_count); }
    ~QtUse() { InterlockedDecrement(&s_count); }
    QtUse(const QtUse &) = delete;
    QtUse &operator=(const QtUse &) = delete;

    static LONG count() { return s_count; }

private:
    static inline volatile LONG s_count = 0;
};

// The thread of Qt's application. Without widgets, the application ends when the thread uninitializes COM for
// the last time, or when another thread needs Qt. So one thread after the other can have controls, but
// never two at the same time.
namespace QtHome {

// Makes this thread the one of the application that `make` creates.
void settle(void (*make)());

// Asks the application's thread to end it, if it is not this one. Returns false if it stays there: it has
// widgets, or its thread does not process messages.
bool claim();

} // namespace QtHome

} // namespace KOVAVSFDataGridLib::ActiveX
