#pragma once

#include "ado/providers/odbc/reading/OdbcLongValue.h"
#include "ado/providers/odbc/reading/OdbcReader.h"

namespace ADODB {

// Reads value by value from left to right, which every driver supports for all values.
class OdbcValueReader : public OdbcReader
{
public:
    OdbcValueReader(const OdbcHandle &statement, std::vector<OdbcColumn> columns);

    bool fetch(const OdbcWatch &watch) override;
    bool append(RowStore &rows) override;

private:
    SQLRETURN readRow();
    SQLRETURN readSome();

    const OdbcHandle &m_statement;
    std::vector<OdbcColumn> m_columns;
    OdbcLongValue m_long;
    OdbcValue m_value;
    RowStore m_part; // filled by the thread that waits for the server
};

} // namespace ADODB
