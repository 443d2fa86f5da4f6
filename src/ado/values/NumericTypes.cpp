#include "ado/values/NumericTypes.h"

namespace ADODB {

bool isNumericType(DataTypeEnum type)
{
    switch (type) {
    case adSmallInt:
    case adInteger:
    case adSingle:
    case adDouble:
    case adCurrency:
    case adDecimal:
    case adTinyInt:
    case adUnsignedTinyInt:
    case adUnsignedSmallInt:
    case adUnsignedInt:
    case adBigInt:
    case adUnsignedBigInt:
    case adNumeric:
    case adVarNumeric:
        return true;
    default:
        return false;
    }
}

} // namespace ADODB
