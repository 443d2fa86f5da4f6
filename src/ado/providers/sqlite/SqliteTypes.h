#pragma once

#include "ado/FieldInfo.h"
#include "ado/values/RawValue.h"

namespace ADODB::SqliteTypes {

// Sets type, size, precision and scale from a declared type such as "VARCHAR(20)".
void applyDeclaration(FieldInfo &field, const QString &declaration);
// The same for a column without a declaration, from its first value that is not Null.
void applyValue(FieldInfo &field, const RawValue &value);

} // namespace ADODB::SqliteTypes
