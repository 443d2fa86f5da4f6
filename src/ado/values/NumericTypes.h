#pragma once

#include "ado/Enums.h"

namespace ADODB {

// Whether values of the type are numbers, money included. For the rooms of this library.
bool isNumericType(DataTypeEnum type);

} // namespace ADODB
