#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>

#include <memory>

namespace ADODB {
class Connection;
}

namespace KOVAVSFDataGridLib {

// The engine of an open connection, and how it reads statements; Other if the connection is null or closed.
EngineMode engineOf(const std::shared_ptr<ADODB::Connection> &connection);

// Whether a new connection with `connectionString` sees the same data as this open one.
bool isRepeatable(const std::shared_ptr<ADODB::Connection> &connection, const QString &connectionString);

} // namespace KOVAVSFDataGridLib
