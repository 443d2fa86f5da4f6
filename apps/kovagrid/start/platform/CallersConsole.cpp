#include "start/platform/CallersConsole.h"

#if defined(_WIN32)

#include <cstdio>
#include <windows.h>

void useCallersConsole()
{
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    if ((output && output != INVALID_HANDLE_VALUE) || !AttachConsole(ATTACH_PARENT_PROCESS))
        return;
    std::freopen("CONOUT$", "w", stdout);
    std::freopen("CONOUT$", "w", stderr);
}

#else

void useCallersConsole() {}

#endif
