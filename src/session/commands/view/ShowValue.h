#pragma once

#include "session/SessionWindow.h"

#include <optional>

namespace KOVAVSFDataGridLib {

class Session;

// The value of the current cell; no value if there is none.
std::optional<CellValue> currentValue(Session &session);

} // namespace KOVAVSFDataGridLib
