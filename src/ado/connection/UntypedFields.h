#pragma once

#include "ado/FieldInfo.h"

#include <memory>

namespace ADODB {

class Connection;

// Whether each value of the field has its own type, as in SQLite's expressions and columns without a declared
// type. Queries the database if the field is a column.
bool isUntyped(const std::shared_ptr<Connection> &connection, const FieldInfo &field);

} // namespace ADODB
