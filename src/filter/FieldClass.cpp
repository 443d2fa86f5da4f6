#include "filter/FieldClass.h"

namespace KOVAVSFDataGridLib {

FieldClass FieldClassOf(ADODB::DataTypeEnum type)
{
    switch (type) {
    case ADODB::adSmallInt:
    case ADODB::adInteger:
    case ADODB::adSingle:
    case ADODB::adDouble:
    case ADODB::adCurrency:
    case ADODB::adDecimal:
    case ADODB::adTinyInt:
    case ADODB::adUnsignedTinyInt:
    case ADODB::adUnsignedSmallInt:
    case ADODB::adUnsignedInt:
    case ADODB::adBigInt:
    case ADODB::adUnsignedBigInt:
    case ADODB::adNumeric:
    case ADODB::adVarNumeric:
        return FieldClass::Number;
    case ADODB::adBoolean:
        return FieldClass::Boolean;
    case ADODB::adDBDate:
        return FieldClass::Date;
    case ADODB::adDBTime:
        return FieldClass::Time;
    case ADODB::adDate:
    case ADODB::adDBTimeStamp:
    case ADODB::adFileTime:
        return FieldClass::Moment;
    case ADODB::adBSTR:
    case ADODB::adGUID:
    case ADODB::adChar:
    case ADODB::adWChar:
    case ADODB::adVarChar:
    case ADODB::adLongVarChar:
    case ADODB::adVarWChar:
    case ADODB::adLongVarWChar:
        return FieldClass::Text;
    default:
        return FieldClass::Other;
    }
}

} // namespace KOVAVSFDataGridLib
