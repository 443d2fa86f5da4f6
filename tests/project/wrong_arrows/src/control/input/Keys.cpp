#include "control/viewer/Viewer.h"
