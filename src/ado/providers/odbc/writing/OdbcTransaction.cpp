#include "ado/providers/odbc/writing/OdbcTransaction.h"

#include "ado/providers/odbc/OdbcError.h"
#include "ado/providers/odbc/OdbcHandle.h"

namespace ADODB {

namespace {

SQLRETURN setAutocommit(const OdbcConnection &connection, std::uintptr_t mode)
{
    return SQLSetConnectAttrW(connection.handle(), SQL_ATTR_AUTOCOMMIT, asPointer(mode), SQL_IS_UINTEGER);
}

} // namespace

OdbcTransaction::OdbcTransaction(std::shared_ptr<OdbcConnection> connection)
    : m_connection(std::move(connection))
{
    if (!succeeded(setAutocommit(*m_connection, SQL_AUTOCOMMIT_OFF)))
        throwOdbcError(SQL_HANDLE_DBC, m_connection->handle(), *m_connection);
}

OdbcTransaction::OdbcTransaction(std::shared_ptr<OdbcConnection> connection, const QString &first)
    : OdbcTransaction(std::move(connection))
{
    if (!first.isEmpty())
        OdbcHandle(m_connection).execute(first);
}

// What is committed is not touched by this any more.
OdbcTransaction::~OdbcTransaction()
{
    SQLEndTran(SQL_HANDLE_DBC, m_connection->handle(), SQL_ROLLBACK);
    setAutocommit(*m_connection, SQL_AUTOCOMMIT_ON);
}

void OdbcTransaction::commit()
{
    if (!succeeded(SQLEndTran(SQL_HANDLE_DBC, m_connection->handle(), SQL_COMMIT)))
        throwOdbcError(SQL_HANDLE_DBC, m_connection->handle(), *m_connection);
}

} // namespace ADODB
