#pragma once

#include "ado/providers/odbc/OdbcApi.h"

#include <QtCore/QMutex>
#include <QtCore/QSemaphore>

#include <atomic>
#include <exception>
#include <functional>
#include <memory>

namespace ADODB {

class Error;
class OdbcConnection;
class OdbcHandle;
class OdbcRowFeed;
class RowStore;

// The threading rules of this provider.
//
// - Anything that can wait for a server is an operation. It runs in its own thread and owns all data that the
//   driver reads or writes meanwhile: handles, bound memory, copies of the caller's data. It refers to none
//   of the caller's.
// - The caller's thread waits in run(), calls `shouldContinue`, and does not touch the operation's data.
// - A stop sends cancel requests from a third thread, repeatedly and with growing pauses, because a cancel
//   waits for the server as well. A stopped operation makes no further changes: it checks for a stop after
//   each call of the driver.
// - A caller that gets no answer in time is released: immediately, unless the server may be saving, because
//   then the answer is worth some seconds. The operation ends on its own when the driver returns, and frees
//   what it owns in its own thread.
class OdbcOperation : public std::enable_shared_from_this<OdbcOperation>
{
public:
    struct Wait
    {
        // Called at least every 20 ms with the number of rows read so far. Also called after a stop, so that
        // the caller can continue to paint.
        std::function<bool(qint64 rows)> shouldContinue;
        // The maximum duration of the whole operation in seconds, 0 for no limit.
        int limit = 0;
        // Receives the rows as they are read, so that the caller can look at them meanwhile; may be null.
        std::shared_ptr<OdbcRowFeed> feed = {};
    };

    // Runs `work` as an operation, or directly if called from within one. Throws what `work` throws;
    // dbErrCancelled if `shouldContinue` returned false; dbErrFailed with HYT00 at the limit; dbErrInDoubt
    // instead of these if the caller was released while the server may have been saving.
    static void run(std::function<void()> work, const Wait &wait);

    // The error that run() throws if the caller cancelled.
    static Error cancelled();

    // The rest is for `work` itself.

    // The operation that runs in this thread, or null.
    static OdbcOperation *current();
    // Makes a call that cancelling `statement` can stop. `timeout` is in seconds, 0 for no limit.
    SQLRETURN call(const OdbcHandle &statement, int timeout, const std::function<SQLRETURN()> &call);
    // Throws if the operation was stopped.
    void check() const;
    // From here until it is set to false, the server may be saving. Throws if the operation was stopped.
    void setSaving(bool isSaving);
    void report(const RowStore &rows);

    // The server session that `owner` uses during this operation.
    std::shared_ptr<OdbcConnection> lease(const void *owner) const;
    void setLease(const void *owner, const std::shared_ptr<OdbcConnection> &connection);

private:
    enum class Stop { None, Cancelled, TimedOut };

    void stop(Stop why);
    void cancelUntilDone();
    bool isOverdue() const;
    // Whether a caller that stopped the operation `sinceStop` milliseconds ago is released.
    bool isReleased(qint64 sinceStop) const;
    [[noreturn]] void throwStopped() const;

    std::atomic<Stop> m_stop = Stop::None;
    std::atomic<bool> m_saving = false;
    std::atomic<qint64> m_rows = 0;
    std::shared_ptr<OdbcRowFeed> m_feed;
    std::atomic<qint64> m_due = 0; // milliseconds of the steady clock; 0 for none
    std::atomic<int> m_timeout = 0;
    QSemaphore m_done;                  // wakes the caller, which then checks m_isDone
    std::atomic<bool> m_isDone = false; // from then on, everything that the work wrote belongs to the caller
    QSemaphore m_ended;                 // for the thread that cancels
    std::exception_ptr m_error;
    QMutex m_mutex; // guards m_running; locked while the driver cancels
    SQLHSTMT m_running = SQL_NULL_HSTMT;
    const void *m_owner = nullptr;
    std::weak_ptr<OdbcConnection> m_lease;
};

} // namespace ADODB
