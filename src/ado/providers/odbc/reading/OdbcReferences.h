#pragma once

#include "ado/connection/TableColumn.h"

#include <memory>
#include <optional>

namespace ADODB {

class OdbcConnection;
struct OdbcEngine;

// See Session::reference. Asks ODBC's own catalogue, so it is the same for all engines; nothing where the
// driver has no such answer.
std::optional<TableColumn> odbcReference(const std::shared_ptr<OdbcConnection> &connection,
                                         const OdbcEngine &engine, const TableColumn &column);

} // namespace ADODB
