#pragma once

#include "ado/Enums.h"
#include "ado/values/RawValue.h"

#include <QtCore/QVariant>

namespace ADODB {

// Converts between stored values and the values that a field of a given type shows.
namespace FieldValue {

// The value as returned by Field::Value(). A value that does not fit the type is returned as it is stored.
QVariant fromRaw(const RawValue &raw, DataTypeEnum type);

// Converts a value from a user or host to this type. Null stays Null. If the value does not fit, `ok` is
// false and the result is undefined.
QVariant convert(const QVariant &value, DataTypeEnum type, bool *ok);

// Returns Null, qlonglong, double, QString or QByteArray: the types that an untyped database stores.
QVariant toStorage(const QVariant &value);

bool isText(DataTypeEnum type);

} // namespace FieldValue

} // namespace ADODB
