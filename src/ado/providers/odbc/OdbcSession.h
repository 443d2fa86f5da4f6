#pragma once

#include "ado/providers/Provider.h"
#include "ado/providers/odbc/OdbcEngine.h"

#include <QtCore/QMutex>

#include <atomic>

namespace ADODB {

class OdbcConnection;
class OdbcPool;

// An open connection for its users. For each command it takes a session of the server from the pool. When a
// session was lost, this one is closed for those who want to open another one instead; a writer that holds it
// still gets a new session of the server, and with it this one is open again.
class OdbcSession : public Session, public std::enable_shared_from_this<OdbcSession>
{
public:
    // `commandTimeout` is how many seconds a statement may take until it gives its first rows, 0 for ever.
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

    // What becomes of a reading that was kept in the server's session; see OdbcReading::keep.
    enum class KeptReading { End, Use };

    // The server's session of the operation that is under way, for as long as somebody holds it, else another
    // one. In autocommit mode. Throws 3709 once this is closed.
    std::shared_ptr<OdbcConnection> connection(KeptReading kept = KeptReading::End);
    // Begins a command with `first`. Where the server had ended the session while nobody used it, `first` is
    // run once more in a new one.
    std::shared_ptr<OdbcConnection>
    begin(const std::function<void(const std::shared_ptr<OdbcConnection> &)> &first,
          KeptReading kept = KeptReading::End);
    const OdbcEngine &engine() const { return m_engine; }
    int commandTimeout() const { return m_commandTimeout; }
    // Null once it is closed.
    std::shared_ptr<OdbcPool> pool() const;

private:
    mutable QMutex m_mutex;                 // guards m_pool and m_kept
    std::shared_ptr<OdbcPool> m_pool;       // null once it is closed
    std::shared_ptr<OdbcConnection> m_kept; // of a database that lives in its connection
    std::shared_ptr<std::atomic<bool>> m_isLost = std::make_shared<std::atomic<bool>>(false);
    OdbcEngine m_engine;
    int m_commandTimeout;
};

} // namespace ADODB
