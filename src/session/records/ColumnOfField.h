#pragma once

#include "ado/connection/TableColumn.h"
#include "sql/Engine.h"

namespace ADODB {
class Field;
}

namespace KOVAVSFDataGridLib {

class Session;

// The column of a table that a field shows; empty where it is none. Some drivers don't tell; the statement
// does, if it is one of a single table.
ADODB::TableColumn columnOf(const Session &session, const Dialect &dialect, const ADODB::Field &field);

} // namespace KOVAVSFDataGridLib
