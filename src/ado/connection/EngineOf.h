#pragma once

#include "sql/Engine.h"

#include <QtCore/QString>

#include <memory>

namespace ADODB {
class Connection;
}

namespace KOVAVSFDataGridLib {

// What an open connection leads to and how that reads statements; Other when it is null or closed.
EngineMode engineOf(const std::shared_ptr<ADODB::Connection> &connection);

// Whether a connection of its own that `connectionString` opens finds the same data as an open one.
bool isRepeatable(const std::shared_ptr<ADODB::Connection> &connection, const QString &connectionString);

} // namespace KOVAVSFDataGridLib
