#include "ado/providers/odbc/OdbcDescription.h"

#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/OdbcTypes.h"

#include <array>

namespace ADODB {

namespace {

FieldInfo describe(const OdbcHandle &statement, int column)
{
    std::array<char16_t, 512> name{};
    SQLSMALLINT sqlType = 0;
    SQLULEN size = 0;
    SQLSMALLINT scale = 0;
    SQLSMALLINT nullable = SQL_NULLABLE_UNKNOWN;
    statement.check(SQLDescribeColW(
        statement.get(), static_cast<SQLUSMALLINT>(column + 1), reinterpret_cast<SQLWCHAR *>(name.data()),
        static_cast<SQLSMALLINT>(name.size()), nullptr, &sqlType, &size, &scale, &nullable));
    FieldInfo field;
    field.name = QString::fromUtf16(name.data());
    field.baseTable = statement.columnText(column, SQL_DESC_BASE_TABLE_NAME);
    field.baseColumn =
        field.baseTable.isEmpty() ? QString() : statement.columnText(column, SQL_DESC_BASE_COLUMN_NAME);
    field.attributes = nullable == SQL_NO_NULLS ? 0 : adFldIsNullable | adFldMayBeNull;
    const bool isUnsigned = statement.columnNumber(column, SQL_DESC_UNSIGNED) == SQL_TRUE;
    OdbcTypes::apply(field, {sqlType, static_cast<qint64>(size), scale, isUnsigned});
    return field;
}

} // namespace

std::vector<FieldInfo> describeColumns(const OdbcHandle &statement)
{
    std::vector<FieldInfo> fields;
    const int count = statement.columns();
    for (int column = 0; column < count; ++column)
        fields.push_back(describe(statement, column));
    return fields;
}

} // namespace ADODB
