#pragma once

#include "ado/FieldInfo.h"
#include "ado/providers/access/file/AccessColumn.h"

// Access's types as the columns of a table in SQLite declare them.
namespace ADODB::AccessTypes {

// The column's type and constraints, to follow its name in a CREATE TABLE.
QString declaration(const AccessColumn &column);
// The name of the order in which the values of such a column stand.
const char *collation(AccessType type);
// Sets type, size, precision, scale and attributes from such a type.
void applyDeclaration(FieldInfo &field, const QString &declaration);

// How values of a column are compared.
enum class Family { Number, Text, Date, Bytes };
Family familyOf(AccessType type);

} // namespace ADODB::AccessTypes
