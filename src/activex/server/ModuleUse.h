#pragma once

#include <windows.h>

namespace KOVAVSFDataGridLib::ActiveX {

// Keeps the server in use. Held by every COM object of this server and by LockServer.
class ModuleUse
{
public:
    ModuleUse() { InterlockedIncrement(&s_count); }
    ~ModuleUse() { InterlockedDecrement(&s_count); }
    ModuleUse(const ModuleUse &) = delete;
    ModuleUse &operator=(const ModuleUse &) = delete;

    static LONG count() { return s_count; }
    static void lock(bool on) { on ? InterlockedIncrement(&s_count) : InterlockedDecrement(&s_count); }

private:
    static inline volatile LONG s_count = 0;
};

// The handle of this server's module; set when it is loaded.
inline HINSTANCE moduleInstance = nullptr;

} // namespace KOVAVSFDataGridLib::ActiveX
