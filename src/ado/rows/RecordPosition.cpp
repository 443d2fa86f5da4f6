#include "ado/rows/RecordPosition.h"

#include "ado/Error.h"
#include "ado/Texts.h"

#include <algorithm>

namespace ADODB {

void RecordPosition::reset(qint64 count)
{
    m_count = count;
    m_at = count > 0 ? 1 : 0;
    m_deleted = false;
}

qint64 RecordPosition::record() const
{
    return !m_deleted && m_at >= 1 && m_at <= m_count ? m_at : 0;
}

qint64 RecordPosition::absolute() const
{
    if (m_deleted || m_count == 0)
        return adPosUnknown;
    if (isBOF())
        return adPosBOF;
    if (isEOF())
        return adPosEOF;
    return m_at;
}

void RecordPosition::move(qint64 records, BookmarkEnum start)
{
    if (m_count == 0) {
        // Leaving the last record, just deleted, is still a valid move. After that there is none.
        if (!m_deleted)
            throw Error(adErrNoCurrentRecord, Texts::noCurrentRecord());
        reset(0);
        return;
    }
    qint64 from = 0;
    switch (start) {
    case adBookmarkFirst:
        from = 1;
        break;
    case adBookmarkLast:
        from = m_count;
        break;
    case adBookmarkCurrent:
        if (m_deleted && records == 0)
            return;
        if ((records > 0 && isEOF()) || (records < 0 && isBOF()))
            throw Error(adErrNoCurrentRecord, Texts::noCurrentRecord());
        // The position of a deleted record is between its neighbours.
        from = m_deleted && records > 0 ? m_at - 1 : m_at;
        break;
    default:
        throw Error(adErrInvalidArgument, Texts::badArgument().arg(qint32{start}));
    }
    const qint64 limit = m_count + 1;
    m_at = std::clamp(from + std::clamp(records, -limit, limit), qint64{0}, limit);
    m_deleted = false;
}

void RecordPosition::moveTo(qint64 record)
{
    m_at = record;
    m_deleted = false;
}

void RecordPosition::removeCurrent()
{
    --m_count;
    m_deleted = true;
}

void RecordPosition::append()
{
    ++m_count;
    moveTo(m_count);
}

void RecordPosition::removeElsewhere(qint64 record)
{
    if (record < m_at)
        --m_at;
    else if (record == m_at && !m_deleted)
        m_deleted = true;
    --m_count;
}

void RecordPosition::appendElsewhere(qint64 records)
{
    if (isEOF() && !isBOF())
        m_at += records;
    m_count += records;
}

} // namespace ADODB
