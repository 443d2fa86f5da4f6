#include "ado/Recordset.h"

#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/RecordEditor.h"
#include "ado/RecordPosition.h"
#include "ado/RecordsetObserver.h"
#include "ado/Snapshot.h"
#include "ado/Texts.h"
#include "ado/providers/Provider.h"

#include <QtCore/QObject>

#include <algorithm>
#include <new>
#include <optional>

namespace ADODB {

struct Recordset::Private
{
    CursorLocationEnum cursorLocation = adUseServer;
    CursorTypeEnum cursorType = adOpenForwardOnly;
    LockTypeEnum lockType = adLockReadOnly;
    qint32 pageSize = 10;
    QString source;
    std::function<bool(qint64)> progress;

    ADODB::Fields fields;
    RecordPosition position;
    std::optional<RecordEditor> editor;
    std::optional<Snapshot> snapshot; // set while open, as is the editor

    std::vector<RecordsetObserver *> observers;
    std::unique_ptr<QObject> companion;

    // Only while open; all members go through one of these two.
    Snapshot &rows()
    {
        if (!snapshot)
            throw Error(adErrObjectClosed, Texts::recordsetClosed());
        return *snapshot;
    }
    RecordEditor &edit()
    {
        rows();
        return *editor;
    }
    void needClosed() const
    {
        if (snapshot)
            throw Error(adErrObjectOpen, Texts::recordsetOpen());
    }
    qint64 currentRecord() const
    {
        if (position.isDeleted())
            throw Error(dbErrDeletedRow, Texts::deletedRecord());
        if (position.record() == 0)
            throw Error(adErrNoCurrentRecord, Texts::noCurrentRecord());
        return position.record();
    }
    bool isAdding() { return edit().mode() == adEditAdd; }

    Snapshot read(Session &session, const QString &statement);
    // The number must be one of 1…limit; `text` is the message for one that is not.
    void needInRange(qint64 number, qint64 limit, const QString &text) const;

    // An observer may remove itself or others when it is told.
    void tell(void (RecordsetObserver::*what)(EventReasonEnum), EventReasonEnum reason)
    {
        const auto told = observers;
        for (RecordsetObserver *observer : told) {
            if (std::find(observers.begin(), observers.end(), observer) != observers.end())
                (observer->*what)(reason);
        }
    }
    void tellMoved(EventReasonEnum reason) { tell(&RecordsetObserver::moveComplete, reason); }
    void tellChanged(EventReasonEnum reason) { tell(&RecordsetObserver::recordChangeComplete, reason); }
    void tellReplaced(EventReasonEnum reason) { tell(&RecordsetObserver::recordsetChangeComplete, reason); }
};

Snapshot Recordset::Private::read(Session &session, const QString &statement)
{
    const auto query =
        session.prepare(statement, lockType == adLockReadOnly ? Access::ReadOnly : Access::ReadWrite);
    RowStore store(query->columns());
    const auto report = progress;
    query->fetch(store, [&] { return !report || report(store.rows()); });
    editor.emplace(query->takeWriter(), query->whyReadOnly());
    return Snapshot(query->fields(), std::move(store));
}

void Recordset::Private::needInRange(qint64 number, qint64 limit, const QString &text) const
{
    if (position.count() == 0)
        throw Error(adErrNoCurrentRecord, Texts::noCurrentRecord());
    if (number < 1 || number > limit)
        throw Error(adErrInvalidArgument, text.arg(number).arg(limit));
}

Recordset::Recordset() : d(std::make_unique<Private>()) {}

Recordset::~Recordset() = default;

CursorLocationEnum Recordset::CursorLocation() const
{
    return d->snapshot ? adUseClient : d->cursorLocation;
}

void Recordset::PutCursorLocation(CursorLocationEnum location)
{
    d->needClosed();
    if (location != adUseServer && location != adUseClient)
        throw Error(adErrInvalidArgument, Texts::badArgument().arg(qint32{location}));
    d->cursorLocation = location;
}

CursorTypeEnum Recordset::CursorType() const
{
    return d->snapshot ? adOpenStatic : d->cursorType;
}

void Recordset::PutCursorType(CursorTypeEnum type)
{
    d->needClosed();
    if (type < adOpenForwardOnly || type > adOpenStatic)
        throw Error(adErrInvalidArgument, Texts::badArgument().arg(qint32{type}));
    d->cursorType = type;
}

LockTypeEnum Recordset::LockType() const
{
    return d->lockType;
}

void Recordset::PutLockType(LockTypeEnum type)
{
    d->needClosed();
    if (type < adLockReadOnly || type > adLockBatchOptimistic)
        throw Error(adErrInvalidArgument, Texts::badArgument().arg(qint32{type}));
    d->lockType = type;
}

QString Recordset::Source() const
{
    return d->source;
}

void Recordset::SetProgress(std::function<bool(qint64)> progress)
{
    d->progress = std::move(progress);
}

void Recordset::Open(const QString &source, const std::shared_ptr<Connection> &connection,
                     CursorTypeEnum cursorType, LockTypeEnum lockType, qint32 options)
{
    d->needClosed();
    if (!connection || connection->State() == adStateClosed)
        throw Error(adErrInvalidConnection, Texts::connectionClosed());
    if (cursorType != adOpenUnspecified)
        PutCursorType(cursorType);
    if (lockType != adLockUnspecified)
        PutLockType(lockType);

    // A copy, because a progress report can let the host close the connection.
    const std::shared_ptr<Session> session = connection->session();
    const bool isTable = options == adCmdTable || options == adCmdTableDirect;
    try {
        d->snapshot.emplace(d->read(*session, isTable ? session->tableStatement(source) : source));
    } catch (const std::bad_alloc &) {
        throw Error(dbErrFailed, Texts::outOfMemory());
    }
    d->source = source;
    d->fields.reset(*this, d->snapshot->fields());
    d->position.reset(d->snapshot->records());
    d->tellReplaced(adRsnRequery);
    d->tellMoved(adRsnMove);
}

void Recordset::Close()
{
    d->rows();
    d->fields.clear();
    d->editor.reset();
    d->snapshot.reset();
    d->position.reset(0);
    d->tellReplaced(adRsnClose);
}

ObjectStateEnum Recordset::State() const
{
    return d->snapshot ? adStateOpen : adStateClosed;
}

ADODB::Fields &Recordset::Fields()
{
    return d->fields;
}

const ADODB::Fields &Recordset::Fields() const
{
    return d->fields;
}

qint64 Recordset::RecordCount() const
{
    return d->rows().records();
}

bool Recordset::isBOF() const
{
    return !d->isAdding() && d->position.isBOF();
}

bool Recordset::isEOF() const
{
    return !d->isAdding() && d->position.isEOF();
}

// Moving away saves. A new record that nobody wrote anything into is nothing to save.
void Recordset::leaveRecord()
{
    if (d->isAdding() && d->edit().isEmpty())
        CancelUpdate();
    else
        Update();
}

void Recordset::moveTo(qint64 record, EventReasonEnum reason)
{
    d->position.moveTo(record);
    d->tellMoved(reason);
}

void Recordset::moveBy(qint64 records, BookmarkEnum start, EventReasonEnum reason)
{
    leaveRecord();
    d->position.move(records, start);
    d->tellMoved(reason);
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

EditModeEnum Recordset::EditMode() const
{
    if (d->position.isDeleted() && !d->isAdding())
        return adEditDelete;
    return d->edit().mode();
}

// A new record that can't be saved keeps the place that another one would take.
void Recordset::saveBeforeAddNew()
{
    if (d->edit().isEmpty())
        throw Error(dbErrCancelled, Texts::emptyRecordAgain());
    try {
        Update();
    } catch (const Error &error) {
        throw Error(dbErrCancelled, error.Description(), error.Source(), error.SQLState(),
                    error.NativeError());
    }
}

void Recordset::AddNew()
{
    if (d->isAdding())
        saveBeforeAddNew();
    Update();
    d->edit().beginNew();
    d->tellChanged(adRsnAddNew);
    d->tellMoved(adRsnMove);
}

void Recordset::Update()
{
    switch (d->edit().mode()) {
    case adEditAdd:
        d->edit().saveNew(d->rows());
        d->position.append();
        break;
    case adEditInProgress:
        d->edit().saveChanges(d->rows(), d->currentRecord());
        break;
    default:
        return;
    }
    d->tellChanged(adRsnUpdate);
}

void Recordset::CancelUpdate()
{
    switch (d->edit().mode()) {
    case adEditAdd:
        d->edit().cancel();
        d->tellChanged(adRsnUndoAddNew);
        d->tellMoved(adRsnMove);
        break;
    case adEditInProgress:
        d->edit().cancel();
        d->tellChanged(adRsnUndoUpdate);
        break;
    default:
        break;
    }
}

void Recordset::Delete(AffectEnum affect)
{
    if (affect != adAffectCurrent)
        throw Error(adErrInvalidArgument, Texts::onlyCurrentRecord());
    if (d->isAdding()) // nothing of it is in the database yet
        return CancelUpdate();
    d->edit().remove(d->rows(), d->currentRecord());
    d->position.removeCurrent();
    d->tellChanged(adRsnDelete);
}

QString Recordset::CellText(qint64 record, int column) const
{
    return hasCell(record, column) ? d->snapshot->text(record, column) : QString();
}

QVariant Recordset::CellValue(qint64 record, int column) const
{
    return hasCell(record, column) ? d->snapshot->value(record, column) : QVariant();
}

bool Recordset::IsNull(qint64 record, int column) const
{
    return !hasCell(record, column) || d->snapshot->isNull(record, column);
}

bool Recordset::hasCell(qint64 record, int column) const
{
    return d->snapshot && d->snapshot->contains(record, column);
}

void Recordset::AddObserver(RecordsetObserver *observer)
{
    d->observers.push_back(observer);
}

void Recordset::RemoveObserver(RecordsetObserver *observer)
{
    std::erase(d->observers, observer);
}

QObject *Recordset::Companion() const
{
    return d->companion.get();
}

void Recordset::SetCompanion(std::unique_ptr<QObject> companion)
{
    d->companion = std::move(companion);
}

const FieldInfo &Recordset::fieldInfo(int column) const
{
    return d->rows().fields()[static_cast<std::size_t>(column)];
}

QVariant Recordset::currentValue(int column) const
{
    const QVariant *pending = d->edit().pending(column);
    if (pending)
        return *pending;
    return d->isAdding() ? QVariant() : d->rows().value(d->currentRecord(), column);
}

void Recordset::putCurrentValue(int column, const QVariant &value)
{
    if (!d->isAdding())
        d->currentRecord();
    const bool first = d->edit().isEmpty();
    d->edit().set(column, value, d->rows());
    if (first)
        d->tellChanged(adRsnFirstChange);
}

} // namespace ADODB
