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

// How to count the records that meet a condition.
struct CountRequest
{
    std::shared_ptr<ADODB::Connection> connection; // not used by others meanwhile; opened if it is closed
    QString connectionString;
    QString statement;   // returns one number
    bool isHere = false; // the connection is shared: it is used only in the caller's thread
};

// Counts the records in a separate thread, which ends with this object, or immediately if the connection is
// shared. In that case the count is abandoned after a moment.
class CountReading final : public QObject
{
    Q_OBJECT

public:
    explicit CountReading(CountRequest request);
    // Stops the counting. If a server does not respond, this takes a moment.
    ~CountReading() override;

    // Waits for the end, at most that many milliseconds.
    bool waitForEnd(int milliseconds);
    // No value before the end, or if counting failed: failure() then returns the reason.
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
