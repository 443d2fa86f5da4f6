#pragma once

#include "ado/connection/TableColumn.h"

#include <optional>

namespace ADODB {

class Connection;

// The column of another table that `column` refers to by a foreign key; the first one if there are several.
// Empty if there is none or the database can't tell. Waits like Connection::Describe. Throws 3704 if the
// connection is closed.
std::optional<TableColumn> referenceOf(const Connection &connection, const TableColumn &column);

} // namespace ADODB
