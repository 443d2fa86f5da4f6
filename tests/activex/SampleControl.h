#pragma once

#include "Late.h"

// The control's class, from its ProgID.
CLSID controlId();
// A control without a container, created by its ProgID as in a script.
Late::Object newControl();
// One that has loaded all columns of the sample file, three records.
Late::Object loadedControl();
