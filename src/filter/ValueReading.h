#pragma once

#include <QtCore/QMutex>
#include <QtCore/QObject>
#include <QtCore/QSemaphore>
#include <QtCore/QStringList>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

namespace ADODB {
class Connection;
class Recordset;
} // namespace ADODB

namespace KOVAVSFDataGridLib {

// Values of a field, for a list to choose from.
struct OfferedValues
{
    QStringList values;
    bool hasMore = false;
    qint64 left = -1;  // how many more there are; -1 if unknown
    QString note = {}; // for the user; empty if there is none
    // How many records have each value; empty if unknown. And how many have no value; -1 if unknown.
    QList<qint64> counts = {};
    qint64 withoutValue = -1;
    int decimals = 0; // with which numbers are shown at least

    bool operator==(const OfferedValues &) const = default;
};

// How to read the values of one field.
struct ValueRequest
{
    std::shared_ptr<ADODB::Connection> connection; // not used by anybody else while they are read
    QString values;                                // a statement for one value more than is offered
    QString count;                                 // a statement for the number of all values
    QString sample;                                // a fast statement, in case `values` takes too long
    int most = 0;                                  // values to offer
    int limit = 5000;                              // milliseconds for everything together
    QString withoutValue = {}; // a statement for the number of records without a value; may be empty
    bool areDays = false;      // only the dates of timestamps are offered
    bool isHere = false;       // the connection is shared: it is used only in the caller's thread
};

// Reads the values in a separate thread, which ends with this object, or immediately if the connection is
// shared. A query that takes too long is stopped; within the rest of the time limit, the values of the first
// records are read and offered, with a note. If read immediately, the limit is a second.
class ValueReading final : public QObject
{
    Q_OBJECT

public:
    explicit ValueReading(ValueRequest request);
    // Stops the reading. If a server does not respond, this takes a moment.
    ~ValueReading() override;

    // Waits for the first values, at most that many milliseconds.
    bool waitForValues(int milliseconds);
    // The values read so far; empty if there are none.
    OfferedValues values() const;
    // Why the values can't be read; empty if they can.
    QString failure() const;

Q_SIGNALS:
    // The values were read, or their number, or reading has failed.
    void arrived();

private:
    void run();
    void read(const std::function<bool()> &shouldReadAll, const std::function<bool()> &shouldContinue);
    void addFurtherCounts(OfferedValues &read, const std::function<bool()> &shouldContinue);
    OfferedValues valuesOf(const QString &statement, const std::function<bool()> &shouldContinue) const;
    qint64 numberOf(const QString &statement, const std::function<bool()> &shouldContinue) const;
    QString textOf(const ADODB::Recordset &values, qint64 record) const;
    void put(OfferedValues values);

    const ValueRequest m_request;
    const int m_limit; // milliseconds
    std::atomic<bool> m_isStopped = false;
    QSemaphore m_first;
    mutable QMutex m_mutex; // guards the two below
    OfferedValues m_values;
    QString m_failure;
    std::thread m_thread;
};

} // namespace KOVAVSFDataGridLib
