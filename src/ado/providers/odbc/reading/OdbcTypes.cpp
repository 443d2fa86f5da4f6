#include "ado/providers/odbc/reading/OdbcTypes.h"

#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace ADODB::OdbcTypes {

namespace {

struct Rule
{
    int sqlType;
    DataTypeEnum type;
    DataTypeEnum unsignedType;
    qint32 bytes;     // 0 if the size is the declared one
    qint32 precision; // see above
};

// The numbers below are SQL Server's own types.
constexpr int sqlServerVariant = -150;
constexpr int sqlServerUdt = -151;
constexpr int sqlServerXml = -152;
constexpr int sqlServerTime = -154;
constexpr int sqlServerOffset = -155;

constexpr Rule rules[] = {
    {SQL_CHAR, adChar, adChar, 0, 0},
    {SQL_VARCHAR, adVarChar, adVarChar, 0, 0},
    {SQL_LONGVARCHAR, adLongVarChar, adLongVarChar, 0, 0},
    {SQL_WCHAR, adWChar, adWChar, 0, 0},
    {SQL_WVARCHAR, adVarWChar, adVarWChar, 0, 0},
    {SQL_WLONGVARCHAR, adLongVarWChar, adLongVarWChar, 0, 0},
    {SQL_NUMERIC, adNumeric, adNumeric, 19, 0},
    {SQL_DECIMAL, adNumeric, adNumeric, 19, 0},
    {SQL_BIT, adBoolean, adBoolean, 2, 0},
    {SQL_TINYINT, adTinyInt, adUnsignedTinyInt, 1, 3},
    {SQL_SMALLINT, adSmallInt, adUnsignedSmallInt, 2, 5},
    {SQL_INTEGER, adInteger, adUnsignedInt, 4, 10},
    {SQL_BIGINT, adBigInt, adUnsignedBigInt, 8, 19},
    {SQL_REAL, adSingle, adSingle, 4, 7},
    {SQL_FLOAT, adDouble, adDouble, 8, 15},
    {SQL_DOUBLE, adDouble, adDouble, 8, 15},
    {SQL_TYPE_DATE, adDBDate, adDBDate, 6, 10},
    {SQL_TYPE_TIME, adDBTime, adDBTime, 6, 8},
    {SQL_TYPE_TIMESTAMP, adDBTimeStamp, adDBTimeStamp, 16, 23},
    {SQL_DATE, adDBDate, adDBDate, 6, 10},
    {SQL_TIME, adDBTime, adDBTime, 6, 8},
    {SQL_TIMESTAMP, adDBTimeStamp, adDBTimeStamp, 16, 23},
    {SQL_BINARY, adBinary, adBinary, 0, 0},
    {SQL_VARBINARY, adVarBinary, adVarBinary, 0, 0},
    {SQL_LONGVARBINARY, adLongVarBinary, adLongVarBinary, 0, 0},
    {SQL_GUID, adGUID, adGUID, 16, 0},
    {sqlServerVariant, adVarWChar, adVarWChar, 0, 0},
    {sqlServerUdt, adLongVarBinary, adLongVarBinary, 0, 0},
    {sqlServerXml, adLongVarWChar, adLongVarWChar, 0, 0},
    {sqlServerTime, adDBTime, adDBTime, 6, 8},
    {sqlServerOffset, adDBTimeStamp, adDBTimeStamp, 16, 23},
};

constexpr Rule money{SQL_FLOAT, adCurrency, adCurrency, 8, 19};

// Intervals and any other types of a driver are read as text.
constexpr Rule asText{0, adVarChar, adVarChar, 0, 0};

const Rule &ruleOf(int sqlType)
{
    const auto found = std::find_if(std::begin(rules), std::end(rules),
                                    [&](const Rule &rule) { return rule.sqlType == sqlType; });
    return found == std::end(rules) ? asText : *found;
}

bool isLongType(DataTypeEnum type)
{
    return type == adLongVarChar || type == adLongVarWChar || type == adLongVarBinary;
}

} // namespace

bool isZonedType(int sqlType, const QString &name)
{
    return sqlType == sqlServerOffset || name.compare("timestamptz"_L1, Qt::CaseInsensitive) == 0 ||
           name.endsWith("with time zone"_L1, Qt::CaseInsensitive);
}

// PostgreSQL's driver calls all types unknown that it has no word for, whether they have an order or not.
bool hasKnownOrder(const QString &name)
{
    return name != "unknown"_L1 && name != "xml"_L1 && name != "xid"_L1;
}

void apply(FieldInfo &field, const Declared &declared)
{
    const Rule &rule = declared.isMoney ? money : ruleOf(declared.sqlType);
    // Some drivers report texts as unsigned too, where it means nothing.
    field.type = declared.isUnsigned ? rule.unsignedType : rule.type;
    const auto size =
        static_cast<qint32>(std::clamp<qint64>(declared.size, 0, std::numeric_limits<qint32>::max()));
    field.definedSize = rule.bytes > 0 ? rule.bytes : size;
    field.precision = rule.precision;
    if (field.type == adNumeric) {
        field.precision = size;
        field.numericScale = declared.scale;
    }
    if (isLongType(field.type))
        field.attributes |= adFldLong;
    else if (rule.bytes > 0 || field.type == adChar || field.type == adWChar || field.type == adBinary)
        field.attributes |= adFldFixed;
}

Form formOf(DataTypeEnum type, bool loose)
{
    switch (type) {
    case adTinyInt:
    case adUnsignedTinyInt:
    case adSmallInt:
    case adUnsignedSmallInt:
    case adInteger:
    case adUnsignedInt:
    case adBigInt:
        return loose ? Form::Whole : Form::Integer;
    case adUnsignedBigInt:
        return loose ? Form::Whole : Form::Unsigned;
    case adSingle:
    case adDouble:
    case adCurrency:
        return loose ? Form::Approximate : Form::Real;
    case adBoolean:
        return loose ? Form::Whole : Form::Boolean;
    case adNumeric: // binary forms could lose digits
    case adDBDate:
    case adDBTime:
    case adDBTimeStamp:
        return loose ? Form::Text : Form::Digits;
    case adGUID:
        return Form::Guid;
    case adBinary:
    case adVarBinary:
    case adLongVarBinary:
        return Form::Bytes;
    default:
        return Form::Text;
    }
}

} // namespace ADODB::OdbcTypes
