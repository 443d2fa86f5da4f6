#pragma once

#include "ado/connection/TableColumn.h"

#include <QtCore/QStringList>

namespace ADODB {

class Connection;

// The columns of a table that the database gives a value where a new record has none: by a default, by
// counting or by computing it. `table` names no column. Empty also where the database can't be asked. Waits
// like Connection::Describe. Throws 3704 if the connection is closed.
QStringList filledColumns(const Connection &connection, const TableColumn &table);

} // namespace ADODB
