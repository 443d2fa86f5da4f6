#pragma once

#include "ado/Enums.h"

namespace ADODB {

// Whether values of the type are numbers, money included. For the rooms of this library.
bool isNumericType(DataTypeEnum type);

// The decimals that every value of a field of this type and scale has; 0 where they vary.
int decimalsOf(DataTypeEnum type, int scale);

} // namespace ADODB
