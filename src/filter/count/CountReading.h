#pragma once

#include <QtCore/QMutex>
#include <QtCore/QObject>
#include <QtCore/QSemaphore>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

namespace ADODB {
class Connection;
}

namespace KOVAVSFDataGridLib {

// How the records that meet a condition are counted.
struct CountRequest
{
    std::shared_ptr<ADODB::Connection> connection; // used by nobody else meanwhile; opened if it is closed
    QString connectionString;
    QString statement;   // for one number
    bool isHere = false; // the connection is shared: it is used in the caller's thread only
};

// Counts them in a thread of its own, which ends with this object, or at once where the connection is shared.
// Who waits for that has to wait no longer than a moment: then it is given up.
class CountReading final : public QObject
{
    Q_OBJECT

public:
    explicit CountReading(CountRequest request);
    // Stops the counting. A server that does not answer takes a moment.
    ~CountReading() override;

    // Waits that many milliseconds for the end.
    bool waitForEnd(int milliseconds);
    // Nothing before the end, and where they can't be counted: then failure() says why.
    std::optional<qint64> count() const;
    QString failure() const;

Q_SIGNALS:
    void ended();

private:
    void run();
    qint64 read(const std::function<bool()> &shouldContinue);

    const CountRequest m_request;
    std::atomic<bool> m_isStopped = false;
    QSemaphore m_end;
    mutable QMutex m_mutex; // guards the two below
    std::optional<qint64> m_count;
    QString m_failure;
    std::thread m_thread;
};

} // namespace KOVAVSFDataGridLib
