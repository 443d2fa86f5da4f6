#pragma once

#include "ado/Enums.h"
#include "ado/values/RawValue.h"

#include <QtCore/QVariant>

namespace ADODB {

// Between what a database stores and what a field of a given type shows.
namespace FieldValue {

// The value as Field::Value() gives it; what does not fit the type is given as it is stored.
QVariant fromRaw(const RawValue &raw, DataTypeEnum type);

// A value that a user or host gives, as this type holds it. Null stays Null. `ok` is false when it does not
// fit; the answer is then without meaning.
QVariant convert(const QVariant &value, DataTypeEnum type, bool *ok);

// One of Null, qlonglong, double, QString, QByteArray: what a database without types of its own stores.
QVariant toStorage(const QVariant &value);

bool isText(DataTypeEnum type);

} // namespace FieldValue

} // namespace ADODB
