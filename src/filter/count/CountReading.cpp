#include "filter/count/CountReading.h"

#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/connection/Waiting.h"

namespace KOVAVSFDataGridLib {

CountReading::CountReading(CountRequest request) : m_request(std::move(request)), m_thread([this] { run(); })
{
}

CountReading::~CountReading()
{
    m_isStopped = true;
    m_thread.join();
}

bool CountReading::waitForEnd(int milliseconds)
{
    return m_end.tryAcquire(1, milliseconds);
}

std::optional<qint64> CountReading::count() const
{
    const QMutexLocker lock(&m_mutex);
    return m_count;
}

QString CountReading::failure() const
{
    const QMutexLocker lock(&m_mutex);
    return m_failure;
}

void CountReading::run()
{
    try {
        const qint64 count = read();
        const QMutexLocker lock(&m_mutex);
        m_count = count;
    } catch (const std::exception &error) {
        const QMutexLocker lock(&m_mutex);
        m_failure = QString::fromUtf8(error.what());
    }
    m_end.release();
    QMetaObject::invokeMethod(this, &CountReading::ended, Qt::QueuedConnection);
}

qint64 CountReading::read()
{
    const ADODB::Waiting waiting([this] { return !m_isStopped; });
    if (m_request.connection->State() == ADODB::adStateClosed)
        m_request.connection->Open(m_request.connectionString);
    ADODB::Recordset counted;
    counted.Open(m_request.statement, m_request.connection);
    return counted.CellText(1, 0).toLongLong();
}

} // namespace KOVAVSFDataGridLib
