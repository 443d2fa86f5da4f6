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

// Values that a field has, for a list from which one is picked.
struct OfferedValues
{
    QStringList values;
    bool hasMore = false;
    qint64 left = -1;  // how many more there are; -1 while nobody knows
    QString note = {}; // for the user; empty when there is nothing to say
    // In how many records each value occurs; empty while nobody knows. And how many have no value, or -1.
    QList<qint64> counts = {};
    qint64 withoutValue = -1;

    bool operator==(const OfferedValues &) const = default;
};

// How the values of one field are read.
struct ValueRequest
{
    std::shared_ptr<ADODB::Connection> connection; // used by nobody else while they are read
    QString values;                                // a statement for one value more than are offered
    QString count;                                 // one for the number of all values
    QString sample;                                // one that is quick, for when `values` takes too long
    int most = 0;                                  // values to offer
    int limit = 5000;                              // milliseconds
    QString withoutValue = {}; // one for the number of records without a value; may be empty
    bool areDays = false;      // of moments, the day is the value
    bool isHere = false;       // the connection is shared: it is used in the caller's thread only
};

// Reads them in a thread of its own, which ends with this object, or at once where the connection is shared.
// What takes longer than the limit is stopped; then those of the first records are offered, with a note. At
// once the limit is a second.
class ValueReading final : public QObject
{
    Q_OBJECT

public:
    explicit ValueReading(ValueRequest request);
    // Stops the reading. A server that does not answer takes a moment.
    ~ValueReading() override;

    // Waits that many milliseconds for the first values.
    bool waitForValues(int milliseconds);
    // What has come; empty while nothing has.
    OfferedValues values() const;
    // Why nothing can be read; empty unless that is so.
    QString failure() const;

Q_SIGNALS:
    // The values have come, or their number, or the reason why they can't be read.
    void arrived();

private:
    void run();
    void read(const std::function<bool()> &shouldContinue);
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
