#pragma once

#include "ado/FieldInfo.h"
#include "ado/providers/access/file/AccessColumn.h"

// Access's types, encoded in the column declarations of SQLite tables.
namespace ADODB::AccessTypes {

// The column's type and constraints, for the text after its name in CREATE TABLE.
QString declaration(const AccessColumn &column);
// The name of the collation for values of this type.
const char *collation(AccessType type);
// Sets type, size, precision, scale and attributes from a declaration.
void applyDeclaration(FieldInfo &field, const QString &declaration);

// How the values of a column are compared.
enum class Family { Number, Text, Date, Bytes };
Family familyOf(AccessType type);

} // namespace ADODB::AccessTypes
