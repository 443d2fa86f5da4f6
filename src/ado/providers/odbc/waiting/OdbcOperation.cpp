#include "ado/providers/odbc/waiting/OdbcOperation.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/OdbcRowFeed.h"
#include "ado/rows/RowStore.h"

#include <QtCore/QDeadlineTimer>

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

constexpr int millisecondsBetweenQuestions = 10;
// The time from a stop until the caller is released.
constexpr qint64 releaseFromReading = 150;
constexpr qint64 releaseFromSaving = 3000;

thread_local OdbcOperation *theCurrent = nullptr;

qint64 now()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

qint64 after(int seconds)
{
    return seconds > 0 ? now() + qint64{seconds} * 1000 : 0;
}

} // namespace

OdbcOperation *OdbcOperation::current()
{
    return theCurrent;
}

void OdbcOperation::run(std::function<void()> work, const Wait &wait)
{
    if (theCurrent) {
        work();
        return;
    }
    const auto operation = std::make_shared<OdbcOperation>();
    operation->m_timeout = wait.limit;
    operation->m_due = after(wait.limit);
    operation->m_feed = wait.feed;
    std::thread([operation, work = std::move(work)]() mutable {
        theCurrent = operation.get();
        try {
            work();
        } catch (...) {
            operation->m_error = std::current_exception();
        }
        work = nullptr;             // what nobody else owns is destroyed here
        operation->m_lease.reset(); // its deleter owns the pool, whose sessions must not end later
        theCurrent = nullptr;
        operation->m_ended.release();
        operation->m_isDone = true;
        operation->m_done.release();
    }).detach();

    std::exception_ptr fromCaller;
    qint64 stopped = 0;
    while (!operation->m_isDone) {
        if (operation->m_done.tryAcquire(1, millisecondsBetweenQuestions))
            continue;
        bool isWanted = false;
        try {
            isWanted = !fromCaller && wait.shouldContinue(operation->m_rows);
        } catch (...) {
            fromCaller = std::current_exception();
        }
        if (stopped == 0 && (!isWanted || operation->isOverdue())) {
            operation->stop(isWanted ? Stop::TimedOut : Stop::Cancelled);
            stopped = now();
        }
        if (stopped == 0 || !operation->isReleased(now() - stopped))
            continue;
        if (fromCaller)
            std::rethrow_exception(fromCaller);
        operation->throwStopped();
    }
    if (fromCaller)
        std::rethrow_exception(fromCaller);
    // Taken out, so that the error is the caller's alone: the work's thread may still hold the operation.
    if (operation->m_error)
        std::rethrow_exception(std::exchange(operation->m_error, nullptr));
}

bool OdbcOperation::isOverdue() const
{
    const qint64 due = m_due;
    return due > 0 && now() >= due;
}

bool OdbcOperation::isReleased(qint64 sinceStop) const
{
    return sinceStop >= (m_saving ? releaseFromSaving : releaseFromReading);
}

void OdbcOperation::throwStopped() const
{
    const bool isCancelled = m_stop == Stop::Cancelled;
    const QString why =
        isCancelled ? Texts::cancelled() : Texts::timedOut().arg(Texts::secondsLimit().arg(m_timeout.load()));
    const QString state = isCancelled ? u"HY008"_s : u"HYT00"_s;
    if (m_saving)
        throw Error(dbErrInDoubt, Texts::inDoubt().arg(why), u"ODBC"_s, state);
    throw Error(isCancelled ? dbErrCancelled : dbErrFailed, why, u"ODBC"_s, state);
}

Error OdbcOperation::cancelled()
{
    return Error(dbErrCancelled, Texts::cancelled(), u"ODBC"_s, u"HY008"_s);
}

void OdbcOperation::check() const
{
    if (m_stop != Stop::None)
        throwStopped();
}

void OdbcOperation::report(const RowStore &rows)
{
    m_rows = rows.rows();
    if (m_feed)
        m_feed->put(rows);
}

// The stopping thread sets its flag first and then reads this one, so at least one side sees the other's.
void OdbcOperation::setSaving(bool isSaving)
{
    m_saving = isSaving;
    if (isSaving && m_stop != Stop::None) {
        m_saving = false;
        throwStopped();
    }
}

SQLRETURN OdbcOperation::call(const OdbcHandle &statement, int timeout,
                              const std::function<SQLRETURN()> &call)
{
    check();
    const qint64 dueBefore = m_due;
    const int timeoutBefore = m_timeout;
    if (const qint64 due = after(timeout); due > 0 && (dueBefore == 0 || due < dueBefore)) {
        m_timeout = timeout;
        m_due = due;
    }
    {
        const QMutexLocker lock(&m_mutex);
        m_running = statement.connection()->canceller(statement.get());
    }
    const SQLRETURN code = call();
    {
        const QMutexLocker lock(&m_mutex);
        m_running = SQL_NULL_HSTMT;
    }
    if (m_stop != Stop::None) {
        statement.connection()->setUnfit(); // for the next command, which a late cancel could hit
        throwStopped();
    }
    m_due = dueBefore;
    m_timeout = timeoutBefore;
    return code;
}

void OdbcOperation::stop(Stop why)
{
    m_stop = why;
    std::thread([operation = shared_from_this()] { operation->cancelUntilDone(); }).detach();
}

// A cancel that arrives before the driver has started is lost, so it is repeated.
void OdbcOperation::cancelUntilDone()
{
    int pause = millisecondsBetweenQuestions;
    constexpr int longestPause = 1000;
    do {
        const QMutexLocker lock(&m_mutex);
        if (m_running != SQL_NULL_HSTMT)
            SQLCancel(m_running);
    } while (!m_ended.tryAcquire(1, std::exchange(pause, std::min(pause * 10, longestPause))));
}

std::shared_ptr<OdbcConnection> OdbcOperation::lease(const void *owner) const
{
    return owner == m_owner ? m_lease.lock() : nullptr;
}

void OdbcOperation::setLease(const void *owner, const std::shared_ptr<OdbcConnection> &connection)
{
    m_owner = owner;
    m_lease = connection;
}

} // namespace ADODB
