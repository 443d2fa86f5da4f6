#pragma once

#include "ado/FieldInfo.h"
#include "ado/providers/odbc/OdbcApi.h"

namespace ADODB::OdbcTypes {

// What a driver says about one column.
struct Declared
{
    int sqlType = 0;
    qint64 size = 0; // characters, bytes or digits; 0 where it has no limit or none is known
    int scale = 0;
    bool isUnsigned = false;
    bool isZoned = false; // moments with a time zone
    bool isMoney = false; // the driver passes off money as a float
};

// Whether a column of this type, as the driver calls it, keeps the time zone of a moment.
bool isZonedType(int sqlType, const QString &name);

// Sets type, size, precision, scale and what goes with the type among the attributes.
void apply(FieldInfo &field, const Declared &declared);

// How a column's values are asked for.
enum class Form {
    Integer,
    Unsigned, // can be too large for an integer, and then becomes text
    Real,
    Boolean,
    Digits, // the text of a number or a date, which is plain ASCII
    Guid,
    Whole,       // text that becomes an integer where it is one
    Approximate, // likewise a floating point number
    Text,
    Bytes
};

// With `loose` a column can hold values of any type, which may not be forced into its own.
Form formOf(DataTypeEnum type, bool loose);

} // namespace ADODB::OdbcTypes
