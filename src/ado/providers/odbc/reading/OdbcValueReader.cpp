#include "ado/providers/odbc/reading/OdbcValueReader.h"

#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/waiting/OdbcWatch.h"

namespace ADODB {

namespace {

constexpr qint64 rowsAtOnce = 1000;
constexpr qint64 bytesAtOnce = qint64{1} << 20;

} // namespace

OdbcValueReader::OdbcValueReader(const OdbcHandle &statement, std::vector<OdbcColumn> columns)
    : m_statement(statement), m_columns(std::move(columns)), m_part(static_cast<int>(m_columns.size()))
{
}

SQLRETURN OdbcValueReader::readRow()
{
    int column = 0;
    for (const OdbcColumn &read : m_columns) {
        SQLLEN length = 0;
        const SQLRETURN code = m_long.read(m_statement, column++, read.form, length);
        if (!succeeded(code))
            return code;
        if (length == SQL_NULL_DATA)
            m_part.addNull();
        else
            m_value.append(m_part, read.form, m_long.data(), length);
    }
    m_part.endRow();
    return SQL_SUCCESS;
}

SQLRETURN OdbcValueReader::readSome()
{
    SQLRETURN code = SQL_SUCCESS;
    while (succeeded(code) && m_part.rows() < rowsAtOnce && m_part.bytesWritten() < bytesAtOnce) {
        code = SQLFetch(m_statement.get());
        if (succeeded(code))
            code = readRow();
    }
    return code;
}

bool OdbcValueReader::fetch(const OdbcWatch &watch)
{
    m_part.clear();
    const SQLRETURN code = watch.run([this] { return readSome(); });
    if (code != SQL_NO_DATA)
        m_statement.check(code);
    return m_part.rows() > 0;
}

bool OdbcValueReader::append(RowStore &rows)
{
    for (qint64 row = 0; row < m_part.rows(); ++row) {
        for (const RawValue &value : m_part.row(row))
            rows.add(value);
        rows.endRow();
    }
    return true;
}

} // namespace ADODB
