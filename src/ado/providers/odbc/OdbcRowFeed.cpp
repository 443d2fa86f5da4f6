#include "ado/providers/odbc/OdbcRowFeed.h"

#include "ado/rows/RowStore.h"

#include <utility>

namespace ADODB {

void OdbcRowFeed::put(const RowStore &rows)
{
    constexpr std::chrono::milliseconds pause(5); // the caller checks every ten
    const auto now = std::chrono::steady_clock::now();
    if (rows.rows() == 0 || (m_latest && now - m_lastPut < pause)) // only this thread writes m_latest
        return;
    m_lastPut = now;
    auto copy = std::make_shared<const RowStore>(rows);
    const QMutexLocker lock(&m_mutex);
    m_latest.swap(copy);
}

std::shared_ptr<const RowStore> OdbcRowFeed::latest() const
{
    const QMutexLocker lock(&m_mutex);
    return m_latest;
}

} // namespace ADODB
