#pragma once

#include "ado/providers/odbc/reading/OdbcValue.h"

#include <vector>

namespace ADODB {

class OdbcHandle;

// Reads single values of the row that a statement stands on, in as many pieces as they need.
class OdbcLongValue
{
public:
    // Answers the length in bytes or SQL_NULL_DATA; the value then is data(). Columns count from 0.
    SQLRETURN read(const OdbcHandle &statement, int column, OdbcTypes::Form form, SQLLEN &length);
    const char *data() const { return m_bytes.data(); }

private:
    std::vector<char> m_bytes = std::vector<char>(4096);
};

} // namespace ADODB
