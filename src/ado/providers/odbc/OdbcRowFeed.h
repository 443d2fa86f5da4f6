#pragma once

#include <QtCore/QMutex>

#include <chrono>
#include <memory>

namespace ADODB {

class RowStore;

// The rows that an operation has read so far, for the thread that waits for it. Used by both threads.
class OdbcRowFeed
{
public:
    // Called by the operation when more complete rows were read. Skips copies that nobody could have looked
    // at yet, because some drivers return one row at a time.
    void put(const RowStore &rows);
    // Null if there are none yet.
    std::shared_ptr<const RowStore> latest() const;

private:
    mutable QMutex m_mutex; // guards m_latest
    std::shared_ptr<const RowStore> m_latest;
    std::chrono::steady_clock::time_point m_lastPut; // used only by the operation
};

} // namespace ADODB
