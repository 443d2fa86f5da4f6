#include "ado/providers/odbc/reading/OdbcDescription.h"

#include "ado/providers/odbc/OdbcHandle.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

// What the driver says about one column. The name is
// always requested, because some drivers fail otherwise.
struct Answer
{
    std::array<char16_t, 512> name{};
    SQLSMALLINT sqlType = 0;
    SQLULEN size = 0;
    SQLSMALLINT scale = 0;
    SQLSMALLINT nullable = SQL_NULLABLE_UNKNOWN;

    Answer(const OdbcHandle &statement, int column)
    {
        SQLSMALLINT length = 0;
        statement.check(SQLDescribeColW(
            statement.get(), static_cast<SQLUSMALLINT>(column + 1), reinterpret_cast<SQLWCHAR *>(name.data()),
            static_cast<SQLSMALLINT>(name.size()), &length, &sqlType, &size, &scale, &nullable));
    }
};

FieldInfo describe(const OdbcHandle &statement, int column)
{
    const Answer answer(statement, column);
    FieldInfo field;
    field.name = QString::fromUtf16(answer.name.data());
    field.baseTable = statement.columnText(column, SQL_DESC_BASE_TABLE_NAME);
    field.baseColumn =
        field.baseTable.isEmpty() ? QString() : statement.columnText(column, SQL_DESC_BASE_COLUMN_NAME);
    field.attributes = answer.nullable == SQL_NO_NULLS ? 0 : adFldIsNullable | adFldMayBeNull;
    field.hasKnownOrder = OdbcTypes::hasKnownOrder(statement.columnText(column, SQL_DESC_TYPE_NAME));
    OdbcTypes::apply(field, declaredType(statement, column));
    return field;
}

} // namespace

OdbcTypes::Declared declaredType(const OdbcHandle &statement, int column)
{
    const Answer answer(statement, column);
    const bool isMoment = answer.sqlType == SQL_TYPE_TIMESTAMP || answer.sqlType == SQL_TIMESTAMP;
    const bool isFloat = answer.sqlType == SQL_FLOAT || answer.sqlType == SQL_DOUBLE;
    const QString name = isMoment || isFloat ? statement.columnText(column, SQL_DESC_TYPE_NAME) : QString();
    return {answer.sqlType,
            static_cast<qint64>(answer.size),
            answer.scale,
            statement.columnNumber(column, SQL_DESC_UNSIGNED) == SQL_TRUE,
            OdbcTypes::isZonedType(answer.sqlType, name),
            isFloat && name.compare("money"_L1, Qt::CaseInsensitive) == 0};
}

std::vector<FieldInfo> describeColumns(const OdbcHandle &statement)
{
    std::vector<FieldInfo> fields;
    const int count = statement.columns();
    fields.reserve(static_cast<std::size_t>(count));
    for (int column = 0; column < count; ++column)
        fields.push_back(describe(statement, column));
    return fields;
}

} // namespace ADODB
