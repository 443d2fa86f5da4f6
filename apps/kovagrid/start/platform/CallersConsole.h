#pragma once

// On Windows, a program with windows starts without a console. If it was called in one, its messages go there
// from now on, unless they are redirected. Does nothing on other systems.
void useCallersConsole();
