#include "ado/providers/odbc/OdbcWatch.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/odbc/OdbcHandle.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QSemaphore>
#include <QtCore/QThread>

#include <chrono>
#include <memory>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace ADODB {

namespace {

constexpr int millisecondsBetweenQuestions = 10;

// One call under way. It is always waited for, since the driver writes into memory of the caller's until
// then.
class Running
{
public:
    Running(const OdbcHandle &statement, const std::function<SQLRETURN()> &call)
        : m_statement(statement), m_thread(QThread::create([this, call] {
              m_code = call();
              m_done.release();
          }))
    {
        m_thread->start();
    }
    ~Running()
    {
        while (!isDone())
            stop();
        m_thread->wait();
    }
    Q_DISABLE_COPY_MOVE(Running)

    // Waits for a moment.
    bool isDone() { return m_isDone = m_isDone || m_done.tryAcquire(1, millisecondsBetweenQuestions); }
    // Can come before the driver has begun and be lost then, so it is said until it is heard.
    void stop() const { SQLCancel(m_statement.get()); }
    SQLRETURN code() const { return m_code; }

private:
    const OdbcHandle &m_statement;
    SQLRETURN m_code = SQL_ERROR;
    bool m_isDone = false;
    QSemaphore m_done;
    std::unique_ptr<QThread> m_thread;
};

} // namespace

OdbcWatch::OdbcWatch(const OdbcHandle &statement, OdbcPatience patience)
    : m_statement(statement), m_patience(std::move(patience))
{
}

SQLRETURN OdbcWatch::run(const std::function<SQLRETURN()> &call) const
{
    // Kept here and not left to the drivers, of which some ignore the limit they are given.
    const int timeout = m_patience.timeout;
    const QDeadlineTimer deadline =
        timeout > 0 ? QDeadlineTimer(std::chrono::seconds(timeout)) : QDeadlineTimer(QDeadlineTimer::Forever);
    Running running(m_statement, call);
    while (!running.isDone()) {
        ask();
        if (deadline.hasExpired())
            throw Error(dbErrFailed, Texts::timedOut().arg(Texts::secondsLimit().arg(timeout)), u"ODBC"_s,
                        u"HYT00"_s);
    }
    return running.code();
}

void OdbcWatch::ask() const
{
    if (!m_patience.shouldContinue())
        throw Error(dbErrCancelled, Texts::cancelled(), u"ODBC"_s, u"HY008"_s);
}

} // namespace ADODB
