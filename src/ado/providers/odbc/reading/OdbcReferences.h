#pragma once

#include "ado/connection/TableColumn.h"

#include <memory>
#include <optional>

namespace ADODB {

class OdbcConnection;
struct OdbcEngine;

// See Session::reference. Uses ODBC's own catalogue functions, so it is the same for all engines. Empty if
// the driver does not support them.
std::optional<TableColumn> odbcReference(const std::shared_ptr<OdbcConnection> &connection,
                                         const OdbcEngine &engine, const TableColumn &column);

} // namespace ADODB
