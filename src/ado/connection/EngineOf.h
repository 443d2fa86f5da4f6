#pragma once

#include "sql/Engine.h"

#include <memory>

namespace ADODB {
class Connection;
}

namespace KOVAVSFDataGridLib {

// What an open connection leads to; Other when it is null or closed.
Engine engineOf(const std::shared_ptr<ADODB::Connection> &connection);

} // namespace KOVAVSFDataGridLib
