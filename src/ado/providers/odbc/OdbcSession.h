#pragma once

#include "ado/providers/Provider.h"
#include "ado/providers/odbc/OdbcEngine.h"

namespace ADODB {

class OdbcConnection;

// An open ODBC connection in autocommit mode.
class OdbcSession : public Session, public std::enable_shared_from_this<OdbcSession>
{
public:
    // `commandTimeout` is how many seconds a statement may take until it gives its first rows, 0 for ever.
    OdbcSession(std::shared_ptr<OdbcConnection> connection, OdbcEngine engine, int commandTimeout);
    ~OdbcSession() override;
    Q_DISABLE_COPY_MOVE(OdbcSession)

    std::unique_ptr<Statement> prepare(const QString &sql, Access access,
                                       const std::function<bool()> &shouldContinue) override;
    QString tableStatement(const QString &table) const override;
    QString engineName() const override { return m_engine.dbmsName; }
    void close() override;
    bool isOpen() const override;

    // Throws 3709 once it is closed.
    const std::shared_ptr<OdbcConnection> &connection() const;
    const OdbcEngine &engine() const { return m_engine; }
    // Learns what the server's mode makes of the quotes in a statement, where that matters.
    void learnQuoting(const QString &sql);
    int commandTimeout() const { return m_commandTimeout; }

private:
    std::shared_ptr<OdbcConnection> m_connection;
    OdbcEngine m_engine;
    bool m_knowsQuoting = false;
    int m_commandTimeout;
};

} // namespace ADODB
