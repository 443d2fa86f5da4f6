#pragma once

#include "ado/providers/odbc/OdbcApi.h"

#include <functional>

namespace ADODB {

class OdbcHandle;

// How long to wait for the server.
struct OdbcPatience
{
    int timeout = 0; // seconds that one call may take, 0 for ever
    std::function<bool()> shouldContinue = [] { return true; };
};

// Runs calls on one statement that can wait for the server, each in a thread of its own. Meanwhile it asks in
// the caller's thread whether to go on, and when not, has the server stop.
class OdbcWatch
{
public:
    // `statement` must live as long.
    OdbcWatch(const OdbcHandle &statement, OdbcPatience patience);

    // Answers what the call answered, once it is through. Throws dbErrCancelled when it was stopped, and
    // dbErrFailed when it took too long.
    SQLRETURN run(const std::function<SQLRETURN()> &call) const;
    // Asks once.
    void ask() const;

private:
    const OdbcHandle &m_statement;
    OdbcPatience m_patience;
};

} // namespace ADODB
