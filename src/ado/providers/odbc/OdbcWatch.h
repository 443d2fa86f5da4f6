#pragma once

#include "ado/providers/odbc/OdbcApi.h"

#include <functional>

namespace ADODB {

class OdbcHandle;

// Runs calls on one statement that can wait for the server, each in a thread of its own. Meanwhile it asks in
// the caller's thread whether to go on, and when not, has the server stop.
class OdbcWatch
{
public:
    // `statement` must live as long. `timeout` is how many seconds one call may take, 0 for ever.
    OdbcWatch(const OdbcHandle &statement, std::function<bool()> goOn, int timeout);

    // Answers what the call answered, once it is through. Throws dbErrCancelled when it was stopped, and
    // dbErrFailed when it took too long.
    SQLRETURN run(const std::function<SQLRETURN()> &call) const;
    // Asks once.
    void ask() const;

private:
    const OdbcHandle &m_statement;
    std::function<bool()> m_goOn;
    int m_timeout;
};

} // namespace ADODB
