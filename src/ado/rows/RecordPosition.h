#pragma once

#include "ado/Enums.h"

namespace ADODB {

// The position of a recordset in its live sequence of records: before the first, on one, after the last, or
// on one that was just deleted.
class RecordPosition
{
public:
    // Moves to the first record, or nowhere if the set is empty.
    void reset(qint64 count);

    qint64 count() const { return m_count; }
    bool isBOF() const { return m_at == 0 && !m_deleted; }
    bool isEOF() const { return (m_at > m_count || m_count == 0) && !m_deleted; }
    bool isDeleted() const { return m_deleted; }
    // The current record, from 1; 0 if there is none.
    qint64 record() const;
    // The same, or a value of PositionEnum.
    qint64 absolute() const;

    // Throws 3021 as documented for Recordset::Move, and 3001 for an unknown start.
    void move(qint64 records, BookmarkEnum start);
    // `record` must be in 1…count.
    void moveTo(qint64 record);
    // Removes the current record from the sequence.
    void removeCurrent();
    // Appends a record to the sequence and moves to it.
    void append();
    // For changes made elsewhere. They don't move the position, but can delete the current record.
    void removeElsewhere(qint64 record);
    void appendElsewhere(qint64 records);

private:
    qint64 m_count = 0;
    // 0 before the first, m_count + 1 after the last. On a deleted record: the one that followed it.
    qint64 m_at = 0;
    bool m_deleted = false;
};

} // namespace ADODB
