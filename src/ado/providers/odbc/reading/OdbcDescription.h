#pragma once

#include "ado/FieldInfo.h"
#include "ado/providers/odbc/reading/OdbcTypes.h"

#include <vector>

namespace ADODB {

class OdbcHandle;

// The columns of a prepared statement.
std::vector<FieldInfo> describeColumns(const OdbcHandle &statement);
OdbcTypes::Declared declaredType(const OdbcHandle &statement, int column);

} // namespace ADODB
