#include "ado/providers/odbc/writing/OdbcTransaction.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/odbc/OdbcError.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/OdbcSession.h"
#include "ado/providers/odbc/waiting/OdbcOperation.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

SQLRETURN setAutocommit(const OdbcConnection &connection, std::uintptr_t mode)
{
    return SQLSetConnectAttrW(connection.handle(), SQL_ATTR_AUTOCOMMIT, asPointer(mode), SQL_IS_UINTEGER);
}

// Does not affect what was committed. If the rollback fails, turning autocommit on would commit the changes,
// so the connection is not reused.
void undo(OdbcConnection &connection)
{
    if (!connection.isLost() && succeeded(SQLEndTran(SQL_HANDLE_DBC, connection.handle(), SQL_ROLLBACK)) &&
        succeeded(setAutocommit(connection, SQL_AUTOCOMMIT_ON)))
        return;
    connection.setLost();
}

// Whether an error of COMMIT means that the server has rolled back:
// a deferred constraint, a deadlock, a lack of space. After all
// other errors, the outcome is unknown; 40003 says exactly that.
bool isRefusal(const QString &state)
{
    static constexpr QLatin1StringView classes[] = {"22"_L1, "23"_L1, "25"_L1, "27"_L1, "40"_L1,
                                                    "44"_L1, "53"_L1, "54"_L1, "P0"_L1};
    return state != "40003"_L1 &&
           std::any_of(std::begin(classes), std::end(classes),
                       [&](QLatin1StringView start) { return state.startsWith(start); });
}

} // namespace

OdbcTransaction::OdbcTransaction(OdbcSession &session, const QString &first)
    : m_connection(session.begin([&](const std::shared_ptr<OdbcConnection> &connection) {
          if (!succeeded(setAutocommit(*connection, SQL_AUTOCOMMIT_OFF)))
              throwOdbcError(SQL_HANDLE_DBC, connection->handle(), *connection);
          try {
              if (!first.isEmpty())
                  OdbcHandle(connection).execute(first);
          } catch (const Error &) {
              undo(*connection);
              throw;
          }
      }))
{
}

OdbcTransaction::~OdbcTransaction()
{
    if (!m_isCommitted)
        m_connection->setUnfit();
    undo(*m_connection);
}

void OdbcTransaction::commit()
{
    if (OdbcOperation *const operation = OdbcOperation::current())
        operation->setSaving(true);
    m_isCommitted = succeeded(SQLEndTran(SQL_HANDLE_DBC, m_connection->handle(), SQL_COMMIT));
    if (m_isCommitted)
        return;
    try {
        throwOdbcError(SQL_HANDLE_DBC, m_connection->handle(), *m_connection);
    } catch (const Error &error) {
        if (!m_connection->isLost() && isRefusal(error.SQLState()))
            throw;
        m_connection->setLost();
        throw Error(dbErrInDoubt, Texts::inDoubt().arg(error.Description()), error.Source(), error.SQLState(),
                    error.NativeError());
    }
}

} // namespace ADODB
