#pragma once

#include "ado/connection/TableColumn.h"

#include <optional>

namespace ADODB {

class Connection;

// The column of another table that `column` refers to by a foreign key, the first one where there are
// several. Nothing where it refers to none, and where the database can't be asked. Waits like
// Connection::Describe. Throws 3704 if the connection is closed.
std::optional<TableColumn> referenceOf(const Connection &connection, const TableColumn &column);

} // namespace ADODB
