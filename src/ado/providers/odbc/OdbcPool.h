#pragma once

#include "ado/providers/odbc/OdbcEngine.h"
#include "ado/providers/odbc/OdbcLogin.h"

#include <QtCore/QMutex>

#include <memory>
#include <vector>

namespace ADODB {

class OdbcConnection;

// The server sessions of one login. Whoever needs one takes it for a single command and gives it back by
// releasing the answer, so that a control does with one session what it does in sequence, and a pool before
// the server is free between commands. They end with the pool, which all connections of that login share.
//
// A session goes to nobody else when a command was cancelled in it, since the cancel may arrive late; when a
// change failed in it; when it was lost; or when it was idle for minutes, because something on the way may
// have forgotten it.
//
// May be used from any thread.
class OdbcPool : public std::enable_shared_from_this<OdbcPool>
{
public:
    // The pool that is in use for this login, else a new one. It has a session that nobody uses when this
    // returns. Throws what connecting throws. An engine whose databases can live in a session has a pool of
    // one session for each call.
    static std::shared_ptr<OdbcPool> open(OdbcLogin login);
    ~OdbcPool();
    Q_DISABLE_COPY_MOVE(OdbcPool)

    const OdbcEngine &engine() const { return m_engine; }
    // `isLost` becomes true when the session turns out to be lost, unless that happened before anything was
    // done with it; see OdbcConnection::isUntried().
    std::shared_ptr<OdbcConnection> acquire(const std::shared_ptr<std::atomic<bool>> &isLost);
    // Ends a reading that was kept in a session that nobody uses; see OdbcReading::keep.
    void endKeptReading();
    // Ends all sessions that nobody uses: one of them was dead, so the others are.
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
    void returnConnection(std::unique_ptr<OdbcConnection> connection);

    OdbcLogin m_login;
    OdbcEngine m_engine;
    QString m_newSession; // the statement that a new session begins with; empty for none
    bool m_isShared = false;
    QMutex m_mutex;                                      // guards m_idle
    std::vector<std::unique_ptr<OdbcConnection>> m_idle; // the latest used at the end
};

} // namespace ADODB
