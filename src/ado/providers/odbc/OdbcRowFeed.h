#pragma once

#include <QtCore/QMutex>

#include <chrono>
#include <memory>

namespace ADODB {

class RowStore;

// The rows that an operation has read so far, for the thread that waits for it. Both threads use it.
class OdbcRowFeed
{
public:
    // For the operation: more whole rows have come. Copies that nobody could have looked at yet are skipped,
    // because some drivers give one row at a time.
    void put(const RowStore &rows);
    // Null when none have come.
    std::shared_ptr<const RowStore> latest() const;

private:
    mutable QMutex m_mutex; // guards m_latest
    std::shared_ptr<const RowStore> m_latest;
    std::chrono::steady_clock::time_point m_lastPut; // used by the operation alone
};

} // namespace ADODB
