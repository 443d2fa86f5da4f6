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

// The rules for threads of this provider.
//
// - What can wait for a server is an operation. It runs in a thread of its own and owns all that the driver
//   reads or writes meanwhile: handles, bound memory, copies of what the caller gave. It refers to nothing of
//   the caller's.
// - The caller's thread waits in run(), asks whether to go on, and touches nothing of the operation.
// - To stop, the server is asked to, again and again with growing pauses, from a third thread: asking waits
//   for the server as well. An operation that was stopped changes nothing any more: it notices after the
//   driver's call that is under way.
// - A caller who does not get an answer in time is released: at once, unless the server may be saving, for
//   then the answer is worth some seconds. The operation ends by itself when the driver returns, and destroys
//   what it owns in its own thread.
class OdbcOperation : public std::enable_shared_from_this<OdbcOperation>
{
public:
    struct Wait
    {
        // Asked at least every 20 ms, with the number of rows read so far; after a stop as well, so that it
        // can go on painting.
        std::function<bool(qint64 rows)> shouldContinue;
        // Seconds that the whole may take, 0 for ever.
        int limit = 0;
        // Gets the rows that are read, for the caller to look at meanwhile; may be null.
        std::shared_ptr<OdbcRowFeed> feed = {};
    };

    // Runs `work` as an operation; within one, in its thread. Throws what it throws, dbErrCancelled when
    // `shouldContinue` answered false, dbErrFailed with HYT00 at a limit, and dbErrInDoubt instead when the
    // caller was released while the server may have been saving.
    static void run(std::function<void()> work, const Wait &wait);

    // What run() throws where the caller cancelled.
    static Error cancelled();

    // The rest is for the work itself.

    // Of this thread; null outside of any operation.
    static OdbcOperation *current();
    // A call that can be stopped by `statement`, and may take so many seconds, 0 for ever.
    SQLRETURN call(const OdbcHandle &statement, int timeout, const std::function<SQLRETURN()> &call);
    // Throws when it is to stop.
    void check() const;
    // From here on, until it is set to false, the server may be saving. Throws when it is to stop.
    void setSaving(bool isSaving);
    void report(const RowStore &rows);

    // The server's session that `owner` uses in this operation.
    std::shared_ptr<OdbcConnection> lease(const void *owner) const;
    void setLease(const void *owner, const std::shared_ptr<OdbcConnection> &connection);

private:
    enum class Stop { None, Cancelled, TimedOut };

    void stop(Stop why);
    void cancelUntilDone();
    bool isOverdue() const;
    // Whether a caller who stopped it that long ago, in milliseconds, is released.
    bool isReleased(qint64 sinceStop) const;
    [[noreturn]] void throwStopped() const;

    std::atomic<Stop> m_stop = Stop::None;
    std::atomic<bool> m_saving = false;
    std::atomic<qint64> m_rows = 0;
    std::shared_ptr<OdbcRowFeed> m_feed;
    std::atomic<qint64> m_due = 0; // milliseconds of the steady clock; 0 for never
    std::atomic<int> m_timeout = 0;
    QSemaphore m_done;                  // wakes the caller, who then looks at m_isDone
    std::atomic<bool> m_isDone = false; // from then on all that the work has written is the caller's
    QSemaphore m_ended;                 // for the thread that cancels
    std::exception_ptr m_error;
    QMutex m_mutex; // guards m_running; held while the driver cancels
    SQLHSTMT m_running = SQL_NULL_HSTMT;
    const void *m_owner = nullptr;
    std::weak_ptr<OdbcConnection> m_lease;
};

} // namespace ADODB
