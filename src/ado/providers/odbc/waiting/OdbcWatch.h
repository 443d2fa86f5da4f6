#pragma once

#include "ado/providers/odbc/OdbcApi.h"

#include <functional>

namespace ADODB {

class OdbcHandle;
class RowStore;

// Makes calls that wait for the server and that cancelling `statement` stops; see OdbcOperation.
class OdbcWatch
{
public:
    // `statement` must outlive it. `timeout` is the limit per call in seconds, 0 for no limit.
    OdbcWatch(const OdbcHandle &statement, int timeout);

    // Returns the result of the call. Throws dbErrCancelled if the operation was stopped, and dbErrFailed if
    // the call took too long.
    SQLRETURN run(const std::function<SQLRETURN()> &call) const;
    // Reports the rows read so far, and throws as run() does.
    void ask(const RowStore &rows) const;

private:
    const OdbcHandle &m_statement;
    int m_timeout;
};

} // namespace ADODB
