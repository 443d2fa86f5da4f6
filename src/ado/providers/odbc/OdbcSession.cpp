#include "ado/providers/odbc/OdbcSession.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/reading/OdbcLongValue.h"
#include "ado/providers/odbc/reading/OdbcStatement.h"

#include <QtCore/QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

OdbcSession::OdbcSession(std::shared_ptr<OdbcConnection> connection, OdbcEngine engine, int commandTimeout)
    : m_connection(std::move(connection)), m_engine(std::move(engine)), m_commandTimeout(commandTimeout)
{
}

OdbcSession::~OdbcSession() = default;

std::unique_ptr<Statement> OdbcSession::prepare(const QString &sql, Access access,
                                                const std::function<bool()> &shouldContinue)
{
    return std::make_unique<OdbcStatement>(shared_from_this(), sql, access, shouldContinue);
}

QString OdbcSession::tableStatement(const QString &table) const
{
    return "SELECT * FROM "_L1 + m_engine.quoted(table);
}

void OdbcSession::learnQuoting(const QString &sql)
{
    const bool matters = m_engine.dialect == SqlDialect::MySql && (sql.contains(u'\\') || sql.contains(u'['));
    if (!matters || m_knowsQuoting)
        return;
    const OdbcHandle statement(connection());
    statement.execute(u"SELECT @@sql_mode"_s);
    statement.fetch();
    OdbcLongValue value;
    SQLLEN length = 0;
    statement.check(value.read(statement, 0, OdbcTypes::Form::Text, length));
    const QStringList modes = QString::fromUtf16(reinterpret_cast<const char16_t *>(value.data()),
                                                 std::max<SQLLEN>(length, 0) / qsizetype{sizeof(char16_t)})
                                  .split(u',');
    m_engine.quoting = {!modes.contains(u"NO_BACKSLASH_ESCAPES"_s), modes.contains(u"ANSI_QUOTES"_s),
                        modes.contains(u"MSSQL"_s)};
    m_knowsQuoting = true;
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
