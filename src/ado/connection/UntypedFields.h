#pragma once

#include "ado/FieldInfo.h"

#include <memory>

namespace ADODB {

class Connection;

// Whether each value of the field is of a type of its own, as SQLite's are in an expression and in a column
// that is declared without a type. Asks the database about a column.
bool isUntyped(const std::shared_ptr<Connection> &connection, const FieldInfo &field);

} // namespace ADODB
