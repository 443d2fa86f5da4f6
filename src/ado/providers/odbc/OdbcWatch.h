#pragma once

#include "ado/providers/odbc/OdbcApi.h"

#include <functional>

namespace ADODB {

class OdbcHandle;
class RowStore;

// Calls of an operation that can wait for the server and can be stopped by one statement; see OdbcOperation.
class OdbcWatch
{
public:
    // `statement` must live as long. One call may take `timeout` seconds, 0 for ever.
    OdbcWatch(const OdbcHandle &statement, int timeout);

    // Answers what the call answered. Throws dbErrCancelled when the operation was stopped, and dbErrFailed
    // when it took too long.
    SQLRETURN run(const std::function<SQLRETURN()> &call) const;
    // Reports the rows that have been read, and throws as run() does.
    void ask(const RowStore &rows) const;

private:
    const OdbcHandle &m_statement;
    int m_timeout;
};

} // namespace ADODB
