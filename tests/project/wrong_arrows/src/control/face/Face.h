#pragma once

#include "control/viewer/Viewer.h"
