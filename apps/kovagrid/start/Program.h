#pragma once

#include <QtCore/qglobal.h>

// The whole program. Returns its exit code: 0 done, 1 failed, 2 wrong usage.
//
// Exported, and with a plain name, because on Windows it is in the control's file if Qt is: see
// CMakeLists.txt.
extern "C" Q_DECL_EXPORT int runKovagrid(int argc, char **argv);
