#pragma once

#include "Late.h"

// A control without a container, as a script makes it: by its ProgID.
Late::Object newControl();
// One that has loaded all columns of the sample file, three records.
Late::Object loadedControl();
