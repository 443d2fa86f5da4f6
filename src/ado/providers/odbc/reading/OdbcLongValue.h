#pragma once

#include "ado/providers/odbc/reading/OdbcValue.h"

#include <vector>

namespace ADODB {

class OdbcHandle;

// Reads single values of a statement's current row, in as many pieces as necessary.
class OdbcLongValue
{
public:
    // Returns the length in bytes or SQL_NULL_DATA; data() is then the value. Columns are numbered from 0.
    SQLRETURN read(const OdbcHandle &statement, int column, OdbcTypes::Form form, SQLLEN &length);
    const char *data() const { return m_bytes.data(); }

private:
    std::vector<char> m_bytes = std::vector<char>(4096);
};

} // namespace ADODB
