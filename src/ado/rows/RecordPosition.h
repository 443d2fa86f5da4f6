#pragma once

#include "ado/Enums.h"

namespace ADODB {

// Where a recordset stands in its live sequence of records: before the first, on one, behind the last, or on
// one that was just deleted.
class RecordPosition
{
public:
    // On the first record, or nowhere in an empty set.
    void reset(qint64 count);

    qint64 count() const { return m_count; }
    bool isBOF() const { return m_at == 0 && !m_deleted; }
    bool isEOF() const { return (m_at > m_count || m_count == 0) && !m_deleted; }
    bool isDeleted() const { return m_deleted; }
    // The record stood on, from 1; 0 when there is none.
    qint64 record() const;
    // The same, or a PositionEnum value.
    qint64 absolute() const;

    // Throws 3021 as Recordset::Move says, 3001 for an unknown start.
    void move(qint64 records, BookmarkEnum start);
    // `record` must be one of 1…count.
    void moveTo(qint64 record);
    // The record stood on leaves the sequence.
    void removeCurrent();
    // A record joined the sequence at its end; stands on it.
    void append();
    // The same for changes that were made elsewhere: they never move, and the record stood on can be gone.
    void removeElsewhere(qint64 record);
    void appendElsewhere(qint64 records);

private:
    qint64 m_count = 0;
    // 0 before the first, m_count + 1 behind the last. On a deleted record: the one that followed it.
    qint64 m_at = 0;
    bool m_deleted = false;
};

} // namespace ADODB
