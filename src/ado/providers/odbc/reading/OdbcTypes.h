#pragma once

#include "ado/FieldInfo.h"
#include "ado/providers/odbc/OdbcApi.h"

namespace ADODB::OdbcTypes {

// What a driver says about one column.
struct Declared
{
    int sqlType = 0;
    qint64 size = 0; // characters, bytes or digits; 0 if unlimited or unknown
    int scale = 0;
    bool isUnsigned = false;
    bool isZoned = false; // timestamps with a time zone
    bool isMoney = false; // the driver reports money as a float
};

// Whether a column of this type (by the driver's name for it) stores a timestamp with its time zone.
bool isZonedType(int sqlType, const QString &name);

// Whether records can be sorted by a column of this type; see Field::HasKnownOrder.
bool hasKnownOrder(const QString &name);

// Sets type, size, precision, scale and the attributes that depend on the type.
void apply(FieldInfo &field, const Declared &declared);

// In which form the values of a column are requested.
enum class Form {
    Integer,
    Unsigned, // can be too large for an integer, and then becomes text
    Real,
    Boolean,
    Digits, // the text of a number or a date, ASCII only
    Guid,
    Whole,       // text; becomes an integer if it is one
    Approximate, // text; becomes a floating point number if it is one
    Text,
    Bytes
};

// With `loose`, a column can contain values of any type, which must not be converted to its declared type.
Form formOf(DataTypeEnum type, bool loose);

} // namespace ADODB::OdbcTypes
