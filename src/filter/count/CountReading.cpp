#include "filter/count/CountReading.h"

#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/connection/Waiting.h"
#include "filter/FilterTexts.h"

#include <QtCore/QDeadlineTimer>

namespace KOVAVSFDataGridLib {

CountReading::CountReading(CountRequest request) : m_request(std::move(request))
{
    if (m_request.isHere)
        run();
    else
        m_thread = std::thread([this] { run(); });
}

CountReading::~CountReading()
{
    m_isStopped = true;
    if (m_thread.joinable())
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
    constexpr int patience = 500; // milliseconds
    const QDeadlineTimer due(m_request.isHere ? QDeadlineTimer(patience) : QDeadlineTimer::Forever);
    try {
        const qint64 count = read([&] { return !m_isStopped && !due.hasExpired(); });
        const QMutexLocker lock(&m_mutex);
        m_count = count;
    } catch (const ADODB::Error &error) {
        const QMutexLocker lock(&m_mutex);
        m_failure = due.hasExpired() ? FilterTexts::TooLongToCount() : error.Description();
    } catch (const std::exception &error) {
        qWarning("Records could not be counted: %s", error.what());
        const QMutexLocker lock(&m_mutex);
        m_failure = QString::fromUtf8(error.what());
    }
    m_end.release();
    QMetaObject::invokeMethod(this, &CountReading::ended, Qt::QueuedConnection);
}

qint64 CountReading::read(const std::function<bool()> &shouldContinue)
{
    const ADODB::Waiting waiting(shouldContinue);
    if (m_request.connection->State() == ADODB::adStateClosed)
        m_request.connection->Open(m_request.connectionString);
    ADODB::Recordset counted;
    counted.Open(m_request.statement, m_request.connection);
    return counted.CellText(1, 0).toLongLong();
}

} // namespace KOVAVSFDataGridLib
