#include "filter/ValueReading.h"

#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/connection/Waiting.h"
#include "filter/FilterTexts.h"

#include <QtCore/QDeadlineTimer>
#include <QtCore/QSet>

namespace KOVAVSFDataGridLib {

namespace {

constexpr int limitOfSample = 2000; // milliseconds
constexpr int millisecondsOfSecond = 1000;

bool isCancelled(const ADODB::Error &error)
{
    return error.is(ADODB::dbErrCancelled);
}

} // namespace

ValueReading::ValueReading(ValueRequest request) : m_request(std::move(request)), m_thread([this] { run(); })
{
}

ValueReading::~ValueReading()
{
    m_isStopped = true;
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
    const QDeadlineTimer due(m_request.limit);
    try {
        read([&] { return !m_isStopped && !due.hasExpired(); });
    } catch (const std::exception &error) {
        if (m_isStopped)
            return;
        {
            const QMutexLocker lock(&m_mutex);
            m_failure = QString::fromUtf8(error.what());
        }
        m_first.release();
        QMetaObject::invokeMethod(this, &ValueReading::arrived, Qt::QueuedConnection);
    }
}

void ValueReading::read(const std::function<bool()> &shouldContinue)
{
    OfferedValues read;
    try {
        read.values = textsOf(m_request.values, shouldContinue);
    } catch (const ADODB::Error &error) {
        if (m_isStopped || !isCancelled(error))
            throw;
        // The time is over: a sorted list gives nothing before it is whole.
        const QDeadlineTimer due(limitOfSample);
        try {
            read.values = textsOf(m_request.sample, [&] { return !m_isStopped && !due.hasExpired(); });
        } catch (const ADODB::Error &late) {
            if (m_isStopped || !isCancelled(late))
                throw;
        }
        const QString text = read.values.isEmpty() ? FilterTexts::ValuesTooSlow : FilterTexts::ValuesOfSample;
        read.note = text.arg(m_request.limit / millisecondsOfSecond);
        return put(std::move(read));
    }
    read.hasMore = read.values.size() > m_request.most;
    if (read.hasMore)
        read.values.resize(m_request.most);
    put(read);
    if (!read.hasMore)
        return;
    try {
        const QStringList count = textsOf(m_request.count, shouldContinue);
        read.left = count.isEmpty() ? -1 : count.front().toLongLong() - m_request.most;
        put(std::move(read));
    } catch (const ADODB::Error &) {
        // That there are more is known without their number.
    }
}

QStringList ValueReading::textsOf(const QString &statement, const std::function<bool()> &shouldContinue) const
{
    const ADODB::Waiting waiting(shouldContinue);
    ADODB::Recordset values;
    values.Open(statement, m_request.connection);
    QStringList texts;
    QSet<QString> known; // values that differ in the database can read the same
    for (qint64 record = 1; record <= values.RecordCount(); ++record) {
        const QString text = values.CellText(record, 0);
        if (text.isEmpty() || known.contains(text))
            continue;
        known.insert(text);
        texts.append(text);
    }
    return texts;
}

} // namespace KOVAVSFDataGridLib
