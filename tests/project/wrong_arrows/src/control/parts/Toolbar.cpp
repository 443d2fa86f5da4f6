#include "control/viewer/Viewer.h"
#include "sql/Engine.h"
