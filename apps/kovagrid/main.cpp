#include "start/Program.h"
#include "start/platform/CallersConsole.h"

int main(int argc, char **argv)
{
    useCallersConsole();
    return runKovagrid(argc, argv);
}
