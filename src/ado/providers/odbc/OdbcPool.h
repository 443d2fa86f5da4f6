#pragma once

#include "ado/providers/odbc/OdbcEngine.h"
#include "ado/providers/odbc/OdbcLogin.h"

#include <QtCore/QMutex>

#include <memory>
#include <vector>

namespace ADODB {

class OdbcConnection;

// The server sessions of one login. A user acquires one for a single command and returns it by releasing the
// pointer. So a control runs its commands one after another in one session, and a pooler in front of the
// server is free between commands. The sessions end with the pool, which all connections of the login share.
//
// A session is not reused if a command was cancelled in it, since the cancel may arrive late; if a change
// failed in it; if it was lost; or if it was idle for minutes, because something on the network may have
// dropped it.
//
// Thread-safe.
class OdbcPool : public std::enable_shared_from_this<OdbcPool>
{
public:
    // Returns the existing pool for this login, or a new one. On return it has an idle session. Throws the
    // errors of connecting. For an engine whose databases can exist only in a session, each call returns a
    // new pool with one session.
    static std::shared_ptr<OdbcPool> open(OdbcLogin login);
    ~OdbcPool();
    Q_DISABLE_COPY_MOVE(OdbcPool)

    const OdbcEngine &engine() const { return m_engine; }
    // `isLost` becomes true if the session turns out to be lost, except if that happened before its first
    // use; see OdbcConnection::isUntried().
    std::shared_ptr<OdbcConnection> acquire(const std::shared_ptr<std::atomic<bool>> &isLost);
    // A new session, which ends with its user and is never shared.
    std::shared_ptr<OdbcConnection> connectApart();
    // Ends the read transaction kept in an idle session, if any; see OdbcReading::keep.
    void endKeptReading();
    // Ends all idle sessions: one of them was dead, so the others are dead too.
    void dropIdle();

private:
    explicit OdbcPool(OdbcLogin login);
    void connectFirst();
    void learnModes();
    void setModes(const std::shared_ptr<OdbcConnection> &connection) const;
    void prepareIdle();
    std::unique_ptr<OdbcConnection> acquireIdle();
    std::shared_ptr<OdbcConnection> lend(std::unique_ptr<OdbcConnection> connection,
                                         const std::shared_ptr<std::atomic<bool>> &isLost);
    std::shared_ptr<OdbcConnection> lendNew(const std::shared_ptr<std::atomic<bool>> &isLost);
    void returnConnection(std::unique_ptr<OdbcConnection> connection);

    OdbcLogin m_login;
    OdbcEngine m_engine;
    QString m_newSession; // the statement that a new session runs first; may be empty
    bool m_isShared = false;
    QMutex m_mutex;                                      // guards m_idle
    std::vector<std::unique_ptr<OdbcConnection>> m_idle; // most recently used last
};

} // namespace ADODB
