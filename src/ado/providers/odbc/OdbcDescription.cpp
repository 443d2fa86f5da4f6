#include "ado/providers/odbc/OdbcDescription.h"

#include "ado/providers/odbc/OdbcHandle.h"

#include <array>

namespace ADODB {

namespace {

constexpr SQLUSMALLINT numberOf(int column)
{
    return static_cast<SQLUSMALLINT>(column + 1);
}

FieldInfo describe(const OdbcHandle &statement, int column)
{
    std::array<char16_t, 512> name{};
    SQLSMALLINT nullable = SQL_NULLABLE_UNKNOWN;
    statement.check(SQLDescribeColW(
        statement.get(), numberOf(column), reinterpret_cast<SQLWCHAR *>(name.data()),
        static_cast<SQLSMALLINT>(name.size()), nullptr, nullptr, nullptr, nullptr, &nullable));
    FieldInfo field;
    field.name = QString::fromUtf16(name.data());
    field.baseTable = statement.columnText(column, SQL_DESC_BASE_TABLE_NAME);
    field.baseColumn =
        field.baseTable.isEmpty() ? QString() : statement.columnText(column, SQL_DESC_BASE_COLUMN_NAME);
    field.attributes = nullable == SQL_NO_NULLS ? 0 : adFldIsNullable | adFldMayBeNull;
    OdbcTypes::apply(field, declaredType(statement, column));
    return field;
}

} // namespace

OdbcTypes::Declared declaredType(const OdbcHandle &statement, int column)
{
    SQLSMALLINT sqlType = 0;
    SQLULEN size = 0;
    SQLSMALLINT scale = 0;
    statement.check(SQLDescribeColW(statement.get(), numberOf(column), nullptr, 0, nullptr, &sqlType, &size,
                                    &scale, nullptr));
    return {sqlType, static_cast<qint64>(size), scale,
            statement.columnNumber(column, SQL_DESC_UNSIGNED) == SQL_TRUE};
}

std::vector<FieldInfo> describeColumns(const OdbcHandle &statement)
{
    std::vector<FieldInfo> fields;
    const int count = statement.columns();
    for (int column = 0; column < count; ++column)
        fields.push_back(describe(statement, column));
    return fields;
}

} // namespace ADODB
