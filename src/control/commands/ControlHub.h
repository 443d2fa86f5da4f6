#pragma once

#include "control/face/KOVAVSFDataGrid.h"

namespace KOVAVSFDataGridLib {

// What a control keeps behind its face, and what its commands work on. Only a command's source file needs
// the whole of it (control/KOVAVSFDataGridPrivate.h).
using ControlHub = KOVAVSFDataGrid::Private;

} // namespace KOVAVSFDataGridLib
