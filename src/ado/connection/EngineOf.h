#pragma once

#include "sql/Engine.h"

#include <memory>

namespace ADODB {
class Connection;
}

namespace KOVAVSFDataGridLib {

// What an open connection leads to and how that reads statements; Other when it is null or closed.
EngineMode engineOf(const std::shared_ptr<ADODB::Connection> &connection);

} // namespace KOVAVSFDataGridLib
