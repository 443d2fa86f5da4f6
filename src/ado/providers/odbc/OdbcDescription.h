#pragma once

#include "ado/FieldInfo.h"

#include <vector>

namespace ADODB {

class OdbcHandle;

// What a prepared statement's columns are.
std::vector<FieldInfo> describeColumns(const OdbcHandle &statement);

} // namespace ADODB
