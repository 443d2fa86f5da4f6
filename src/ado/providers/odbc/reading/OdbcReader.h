#pragma once

#include "ado/providers/odbc/reading/OdbcValue.h"

#include <vector>

namespace ADODB {

class OdbcHandle;
class OdbcWatch;

// One column as it is to be read.
struct OdbcColumn
{
    OdbcTypes::Form form = OdbcTypes::Form::Text;
    qint64 size = 0; // characters or bytes; 0 where that has no limit or none is known
};

// Takes the rows of an executed statement over, some at a time. The statement must live as long.
class OdbcReader
{
public:
    virtual ~OdbcReader();
    // Waits for the server. False when there is no further row.
    virtual bool fetch(const OdbcWatch &watch) = 0;
    // Appends the rows that fetch() got. False when a value came cut and can't be had whole any more; the
    // rows are without meaning then.
    virtual bool append(RowStore &rows) = 0;
};

} // namespace ADODB
