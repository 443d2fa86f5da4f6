#include "ado/recordset/RecordsetPrivate.h"

// The members of Recordset that move the current record or return its position.

namespace ADODB {

namespace {

constexpr int bitsOfRecord = 32;

} // namespace

void Recordset::Private::needInRange(qint64 number, qint64 limit, const QString &text) const
{
    if (position.count() == 0)
        throw Error(adErrNoCurrentRecord, Texts::noCurrentRecord());
    if (number < 1 || number > limit)
        throw Error(adErrInvalidArgument, text.arg(number).arg(limit));
}

bool Recordset::isBOF() const
{
    return !d->isAdding() && d->position.isBOF();
}

bool Recordset::isEOF() const
{
    return !d->isAdding() && d->position.isEOF();
}

// Moving saves the record. A new record without any value is not saved.
void Recordset::leaveRecord()
{
    d->needIdle();
    d->notifyLeaving();
    if (d->isAdding() && d->edit().isEmpty())
        CancelUpdate();
    else
        Update();
}

void Recordset::moveTo(qint64 record, EventReasonEnum reason)
{
    d->position.moveTo(record);
    d->notifyMoved(reason);
}

void Recordset::moveBy(qint64 records, BookmarkEnum start, EventReasonEnum reason)
{
    leaveRecord();
    d->position.move(records, start);
    d->notifyMoved(reason);
}

void Recordset::Move(qint64 records, BookmarkEnum start)
{
    moveBy(records, start, adRsnMove);
}

void Recordset::MoveFirst()
{
    moveBy(0, adBookmarkFirst, adRsnMoveFirst);
}

void Recordset::MoveNext()
{
    moveBy(1, adBookmarkCurrent, adRsnMoveNext);
}

void Recordset::MovePrevious()
{
    moveBy(-1, adBookmarkCurrent, adRsnMovePrevious);
}

void Recordset::MoveLast()
{
    moveBy(0, adBookmarkLast, adRsnMoveLast);
}

qint64 Recordset::AbsolutePosition() const
{
    return d->isAdding() ? qint64{adPosUnknown} : d->position.absolute();
}

void Recordset::PutAbsolutePosition(qint64 position)
{
    leaveRecord();
    d->needInRange(position, RecordCount(), Texts::badPosition());
    moveTo(position, adRsnMove);
}

// The lower half is the record's number; the upper half is the number of deletions at that time, plus 1.
qint64 Recordset::Bookmark() const
{
    if (d->isAdding())
        throw Error(adErrNoCurrentRecord, Texts::noCurrentRecord());
    const auto generation = static_cast<qint64>(d->shared->removals.size()) + 1;
    return (generation << bitsOfRecord) | d->currentRecord();
}

qint64 Recordset::RecordOf(qint64 bookmark) const
{
    const qint64 count = d->rows().records();
    const std::vector<qint64> &removals = d->shared->removals;
    const qint64 generation = (bookmark >> bitsOfRecord) - 1;
    qint64 record = bookmark & ((qint64{1} << bitsOfRecord) - 1);
    if (generation < 0 || generation > static_cast<qint64>(removals.size()) || record < 1)
        throw Error(dbErrBadBookmark, Texts::badBookmark());
    for (auto i = static_cast<std::size_t>(generation); i < removals.size(); ++i) {
        if (removals[i] == record)
            throw Error(dbErrDeletedRow, Texts::deletedRecord());
        if (removals[i] < record)
            --record;
    }
    if (record > count)
        throw Error(dbErrBadBookmark, Texts::badBookmark());
    return record;
}

const std::vector<qint64> &Recordset::removals() const
{
    d->rows();
    return d->shared->removals;
}

qint32 Recordset::PageSize() const
{
    return d->pageSize;
}

void Recordset::PutPageSize(qint32 records)
{
    if (records < 1)
        throw Error(adErrInvalidArgument, Texts::badPageSize());
    d->pageSize = records;
}

qint64 Recordset::PageCount() const
{
    return (RecordCount() + d->pageSize - 1) / d->pageSize;
}

qint64 Recordset::AbsolutePage() const
{
    const qint64 position = AbsolutePosition();
    return position < 1 ? position : (position - 1) / d->pageSize + 1;
}

void Recordset::PutAbsolutePage(qint64 page)
{
    leaveRecord();
    d->needInRange(page, PageCount(), Texts::badPage());
    moveTo((page - 1) * d->pageSize + 1, adRsnMove);
}

} // namespace ADODB
