#pragma once

#include "ado/automation/RecordView.h"

#include <QtCore/QVariant>

#include <functional>

namespace ADODB {

// The moves of a recordset object among the records selected by its Filter and Sort, in their order. All
// members throw Error. Those that move save a pending edit first.
class RecordWalk
{
public:
    explicit RecordWalk(Recordset &recordset) : m_recordset(recordset), m_view(recordset) {}

    const QVariant &filter() const { return m_filter; }
    void setFilter(const QVariant &filter);
    const QString &sort() const { return m_sort; }
    void setSort(const QString &sort);
    bool isRestricted() const { return !m_view.isWhole(); }
    void reset();

    qint64 count() { return m_view.count(); }
    // Both are true if no record is visited.
    bool isBOF();
    bool isEOF();
    // 1…count() or a PositionEnum; adPosUnknown also if the record is not visited.
    qint64 position();
    void moveToPosition(qint64 position);
    // `start` is a BookmarkEnum, a bookmark, or empty for the current record.
    void move(qint64 records, const QVariant &start = {});
    void moveFirst() { moveTo(1); }
    void moveLast() { moveTo(count()); }
    // Deletes the current record.
    void remove();

    // Moves to the next record from `start` on that meets the comparison, or to the end in this direction.
    void find(const QString &criteria, qint64 skip, bool isForward, const QVariant &start);
    // Calls `read` for the current record and those after it, at most `limit`, and moves past the last one.
    void readOn(qint64 limit, const QVariant &start, const std::function<void(qint64 record)> &read);
    // Calls `read` for all records, without moving.
    void readAll(const std::function<void(qint64 record)> &read);

    qint64 recordOf(const QVariant &bookmark) const;

private:
    void restrict(const QVariant &filter, const QString &sort);
    void leaveRecord();
    RecordView::Place current();
    RecordView::Place placeOf(const QVariant &start);
    qint64 needPlace(const QVariant &start);
    // Place 0 is before the first record, count() + 1 after the last.
    void moveTo(qint64 place);

    Recordset &m_recordset;
    RecordView m_view;
    QVariant m_filter;
    QString m_sort;
    qint64 m_latestPlace = 0;
};

// Throws that the value is not one that the argument can have.
[[noreturn]] void badArgument(const QVariant &value);

} // namespace ADODB
