#include "ado/providers/odbc/OdbcSession.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/reading/OdbcStatement.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

OdbcSession::OdbcSession(std::shared_ptr<OdbcConnection> connection, OdbcEngine engine, int commandTimeout)
    : m_connection(std::move(connection)), m_engine(std::move(engine)), m_commandTimeout(commandTimeout)
{
}

OdbcSession::~OdbcSession() = default;

std::unique_ptr<Statement> OdbcSession::prepare(const QString &sql, Access access,
                                                const std::function<bool()> &goOn)
{
    return std::make_unique<OdbcStatement>(shared_from_this(), sql, access, goOn);
}

QString OdbcSession::tableStatement(const QString &table) const
{
    return "SELECT * FROM "_L1 + m_engine.quoted(table);
}

void OdbcSession::close()
{
    m_connection.reset();
}

bool OdbcSession::isOpen() const
{
    return m_connection && !m_connection->isLost();
}

const std::shared_ptr<OdbcConnection> &OdbcSession::connection() const
{
    if (!isOpen())
        throw Error(adErrInvalidConnection, Texts::connectionClosed());
    return m_connection;
}

} // namespace ADODB
