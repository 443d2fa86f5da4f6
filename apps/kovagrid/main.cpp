#include "start/Program.h"

#if defined(Q_OS_WIN)
#include <cstdio>
#include <windows.h>

namespace {

// A program with windows starts without a console. If it was called in one, its messages belong there.
void useConsoleOfCaller()
{
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    if ((output && output != INVALID_HANDLE_VALUE) || !AttachConsole(ATTACH_PARENT_PROCESS))
        return;
    std::freopen("CONOUT$", "w", stdout);
    std::freopen("CONOUT$", "w", stderr);
}

} // namespace
#endif

int main(int argc, char **argv)
{
#if defined(Q_OS_WIN)
    useConsoleOfCaller();
#endif
    return runKovagrid(argc, argv);
}
