#pragma once

#include "ado/providers/odbc/reading/OdbcValue.h"

#include <vector>

namespace ADODB {

class OdbcHandle;
class OdbcWatch;

// How to read one column.
struct OdbcColumn
{
    OdbcTypes::Form form = OdbcTypes::Form::Text;
    qint64 size = 0; // characters or bytes; 0 if unlimited or unknown
};

// Reads the rows of an executed statement, some at a time. The statement must outlive it.
class OdbcReader
{
public:
    virtual ~OdbcReader();
    // Waits for the server. Returns false if there is no further row.
    virtual bool fetch(const OdbcWatch &watch) = 0;
    // Appends the rows that fetch() read. Returns false if a value was truncated and can't be read again;
    // `rows` is then invalid.
    virtual bool append(RowStore &rows) = 0;
};

} // namespace ADODB
