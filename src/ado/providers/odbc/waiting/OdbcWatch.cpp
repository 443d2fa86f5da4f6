#include "ado/providers/odbc/waiting/OdbcWatch.h"

#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/waiting/OdbcOperation.h"

namespace ADODB {

OdbcWatch::OdbcWatch(const OdbcHandle &statement, int timeout) : m_statement(statement), m_timeout(timeout) {}

SQLRETURN OdbcWatch::run(const std::function<SQLRETURN()> &call) const
{
    OdbcOperation *const operation = OdbcOperation::current();
    return operation ? operation->call(m_statement, m_timeout, call) : call();
}

void OdbcWatch::ask(const RowStore &rows) const
{
    if (OdbcOperation *const operation = OdbcOperation::current()) {
        operation->report(rows);
        operation->check();
    }
}

} // namespace ADODB
