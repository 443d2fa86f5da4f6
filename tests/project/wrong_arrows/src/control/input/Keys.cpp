#include "control/face/Face.h"
#include "control/viewer/Viewer.h"
