#include "filter/conditions/FieldClass.h"

#include "ado/values/NumericTypes.h"

namespace KOVAVSFDataGridLib {

FieldClass fieldClassOf(ADODB::DataTypeEnum type)
{
    if (ADODB::isNumericType(type))
        return FieldClass::Number;
    switch (type) {
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

bool hasDays(FieldClass fieldClass)
{
    return fieldClass == FieldClass::Date || fieldClass == FieldClass::Moment;
}

} // namespace KOVAVSFDataGridLib
