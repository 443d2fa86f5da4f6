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

int decimalsOf(DataTypeEnum type, int scale)
{
    constexpr int most = 15; // more are no decimals that anybody chose
    const bool isDecimal = type == adNumeric || type == adDecimal || type == adVarNumeric;
    return isDecimal && scale > 0 && scale <= most ? scale : 0;
}

} // namespace ADODB
