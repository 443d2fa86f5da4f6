#include "filter/ValueReading.h"

#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/connection/Waiting.h"
#include "ado/rows/RowReader.h"
#include "filter/FilterTexts.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QHash>

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

constexpr int limitHere = 1000;  // milliseconds, for queries in the caller's thread
constexpr int partForSample = 5; // this part of the limit is kept for the sample
constexpr int millisecondsOfSecond = 1000;

bool isCancelled(const ADODB::Error &error)
{
    return error.is(ADODB::dbErrCancelled);
}

} // namespace

ValueReading::ValueReading(ValueRequest request)
    : m_request(std::move(request)),
      m_limit(m_request.isHere ? std::min(m_request.limit, limitHere) : m_request.limit)
{
    if (m_request.isHere)
        run();
    else
        m_thread = std::thread([this] { run(); });
}

ValueReading::~ValueReading()
{
    m_isStopped = true;
    if (m_thread.joinable())
        m_thread.join();
}

bool ValueReading::waitForValues(int milliseconds)
{
    return m_first.tryAcquire(1, milliseconds);
}

OfferedValues ValueReading::values() const
{
    const QMutexLocker lock(&m_mutex);
    return m_values;
}

QString ValueReading::failure() const
{
    const QMutexLocker lock(&m_mutex);
    return m_failure;
}

void ValueReading::put(OfferedValues values)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_values = std::move(values);
    }
    m_first.release();
    QMetaObject::invokeMethod(this, &ValueReading::arrived, Qt::QueuedConnection);
}

void ValueReading::run()
{
    const QDeadlineTimer beforeSample(m_limit - m_limit / partForSample);
    const QDeadlineTimer end(m_limit);
    const auto before = [this](const QDeadlineTimer &due) {
        return [this, &due] { return !m_isStopped && !due.hasExpired(); };
    };
    QString failure;
    try {
        read(before(beforeSample), before(end));
        return;
    } catch (const ADODB::Error &error) {
        failure = error.Description();
    } catch (const std::exception &error) {
        qWarning("Values could not be read: %s", error.what());
        failure = QString::fromUtf8(error.what());
    }
    if (m_isStopped)
        return;
    {
        const QMutexLocker lock(&m_mutex);
        m_failure = failure;
    }
    m_first.release();
    QMetaObject::invokeMethod(this, &ValueReading::arrived, Qt::QueuedConnection);
}

void ValueReading::read(const std::function<bool()> &shouldReadAll,
                        const std::function<bool()> &shouldContinue)
{
    OfferedValues read;
    try {
        read = valuesOf(m_request.values, shouldReadAll);
    } catch (const ADODB::Error &error) {
        if (m_isStopped || !isCancelled(error))
            throw;
        // It takes too long: a sorted list has no values before it is complete.
        try {
            read = valuesOf(m_request.sample, shouldContinue);
        } catch (const ADODB::Error &late) {
            if (m_isStopped || !isCancelled(late))
                throw;
        }
        const QString text = read.values.isEmpty() ? FilterTexts::ValuesTooSlow : FilterTexts::ValuesOfSample;
        read.note = text.arg(m_limit / millisecondsOfSecond);
        read.hasMore = false;
        return put(std::move(read));
    }
    put(read);
    addFurtherCounts(read, shouldContinue);
}

void ValueReading::addFurtherCounts(OfferedValues &read, const std::function<bool()> &shouldContinue)
{
    try {
        if (!m_request.withoutValue.isEmpty()) {
            read.withoutValue = numberOf(m_request.withoutValue, shouldContinue);
            put(read);
        }
        if (read.hasMore) {
            const qint64 all = numberOf(m_request.count, shouldContinue);
            read.left = all < 0 ? -1 : all - m_request.most;
            put(read);
        }
    } catch (const ADODB::Error &) {
        // It is known that there are more, even without their number.
    }
}

QString ValueReading::textOf(const ADODB::Recordset &values, qint64 record) const
{
    constexpr qsizetype lengthOfDay = 10; // yyyy-MM-dd
    const QString text = values.CellText(record, 0);
    return m_request.areDays ? text.left(lengthOfDay) : text;
}

OfferedValues ValueReading::valuesOf(const QString &statement,
                                     const std::function<bool()> &shouldContinue) const
{
    const ADODB::Waiting waiting(shouldContinue);
    ADODB::Recordset values;
    values.Open(statement, m_request.connection);
    const bool hasCounts = values.Fields().Count() > 1;
    OfferedValues offered;
    QHash<QString, qsizetype> known; // different values in the database can have the same text
    for (qint64 record = 1; record <= values.RecordCount(); ++record) {
        // No condition can be written for bytes, which SQLite can store in a column of any type.
        if (values.CellValue(record, 0).typeId() == QMetaType::QByteArray)
            continue;
        const QString text = textOf(values, record);
        const auto place = known.constFind(text);
        const qint64 count = hasCounts ? values.CellText(record, 1).toLongLong() : 0;
        if (text.isEmpty())
            continue;
        if (place != known.constEnd()) {
            if (hasCounts)
                offered.counts[*place] += count;
            continue;
        }
        offered.decimals = std::max(offered.decimals, ADODB::RowReader::lostDecimals(values, record, 0));
        known.insert(text, offered.values.size());
        offered.values.append(text);
        if (hasCounts)
            offered.counts.append(count);
    }
    // Empty texts and different values with the same text make the list shorter than the result.
    offered.hasMore = values.RecordCount() > m_request.most;
    if (offered.values.size() > m_request.most) {
        offered.values.resize(m_request.most);
        offered.counts.resize(std::min<qsizetype>(offered.counts.size(), m_request.most));
    }
    return offered;
}

qint64 ValueReading::numberOf(const QString &statement, const std::function<bool()> &shouldContinue) const
{
    const ADODB::Waiting waiting(shouldContinue);
    ADODB::Recordset number;
    number.Open(statement, m_request.connection);
    return number.RecordCount() == 1 ? number.CellText(1, 0).toLongLong() : -1;
}

} // namespace KOVAVSFDataGridLib
