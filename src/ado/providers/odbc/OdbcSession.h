#pragma once

#include "ado/providers/Provider.h"
#include "ado/providers/odbc/OdbcEngine.h"

#include <QtCore/QMutex>

#include <atomic>

namespace ADODB {

class OdbcConnection;
class OdbcPool;

// An open connection. It takes a server session from the pool for each command. When a session was lost,
// isOpen() is false, so that callers can open a new connection. A writer that still holds this object gets a
// new server session, and then this object is open again.
class OdbcSession : public Session, public std::enable_shared_from_this<OdbcSession>
{
public:
    // `commandTimeout`: the seconds in which a statement must return its first rows, 0 for no limit.
    OdbcSession(std::shared_ptr<OdbcPool> pool, int commandTimeout);
    ~OdbcSession() override;
    Q_DISABLE_COPY_MOVE(OdbcSession)

    std::unique_ptr<Statement> prepare(const QString &sql, Access access,
                                       const std::function<bool()> &shouldContinue) override;
    std::optional<TableColumn> reference(const TableColumn &column,
                                         const std::function<bool()> &shouldContinue) override;
    QStringList filledColumns(const TableColumn &table, const std::function<bool()> &shouldContinue) override;
    QString tableStatement(const QString &table) const override;
    QString engineName() const override { return m_engine.dbmsName; }
    SqlQuoting quoting() const override { return m_engine.quoting; }
    bool isRepeatable() const override { return m_engine.isServer(); }
    void close() override;
    bool isOpen() const override;

    // What happens to a read transaction kept in the server session; see OdbcReading::keep.
    enum class KeptReading { End, Use };

    // The server session of the current operation while somebody holds it, else another one. In autocommit
    // mode. Throws 3709 after close().
    std::shared_ptr<OdbcConnection> connection(KeptReading kept = KeptReading::End);
    // Starts a command with `first`. If the server ended the session while it was idle, runs `first` again in
    // a new session.
    std::shared_ptr<OdbcConnection>
    begin(const std::function<void(const std::shared_ptr<OdbcConnection> &)> &first,
          KeptReading kept = KeptReading::End);
    const OdbcEngine &engine() const { return m_engine; }
    int commandTimeout() const { return m_commandTimeout; }
    // Null after close().
    std::shared_ptr<OdbcPool> pool() const;

private:
    mutable QMutex m_mutex;                 // guards m_pool and m_kept
    std::shared_ptr<OdbcPool> m_pool;       // null after close()
    std::shared_ptr<OdbcConnection> m_kept; // of a database that exists only in its connection
    std::shared_ptr<std::atomic<bool>> m_isLost = std::make_shared<std::atomic<bool>>(false);
    OdbcEngine m_engine;
    int m_commandTimeout;
};

} // namespace ADODB
