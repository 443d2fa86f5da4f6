#include "ado/Connection.h"
#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/connection/Waiting.h"
#include "ado/providers/Provider.h"
#include "ado/recordset/RecordsetPrivate.h"

#include <QtCore/QScopedValueRollback>

#include <new>

namespace ADODB {

namespace {

void needCursorType(CursorTypeEnum type)
{
    if (type < adOpenForwardOnly || type > adOpenStatic)
        throw Error(adErrInvalidArgument, Texts::badArgument().arg(qint32{type}));
}

void needLockType(LockTypeEnum type)
{
    if (type < adLockReadOnly || type > adLockBatchOptimistic)
        throw Error(adErrInvalidArgument, Texts::badArgument().arg(qint32{type}));
}

} // namespace

Snapshot Recordset::Private::read(Session &session, const QString &statement)
{
    const auto report = progress;
    Watched watched;
    const auto query =
        session.prepare(statement, openedLockType == adLockReadOnly ? Access::ReadOnly : Access::ReadWrite,
                        [&] { return report ? report(0) : watched.shouldContinue(); });
    RowStore store(query->columns(), memoryLimit);
    const QScopedValueRollback<const Statement *> reading(fetching, query.get());
    query->fetch(store,
                 [&](qint64 rowsRead) { return report ? report(rowsRead) : watched.shouldContinue(); });
    editor.emplace(query->releaseWriter(), query->whyReadOnly());
    return Snapshot(query->fields(), std::move(store));
}

Recordset::Recordset() : d(std::make_unique<Private>()) {}

Recordset::~Recordset() = default;

CursorLocationEnum Recordset::CursorLocation() const
{
    return d->shared ? adUseClient : d->cursorLocation;
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
    return d->shared ? adOpenStatic : d->cursorType;
}

void Recordset::PutCursorType(CursorTypeEnum type)
{
    d->needClosed();
    needCursorType(type);
    d->cursorType = type;
}

LockTypeEnum Recordset::LockType() const
{
    return d->shared ? d->openedLockType : d->lockType;
}

void Recordset::PutLockType(LockTypeEnum type)
{
    d->needClosed();
    needLockType(type);
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

void Recordset::PutMemoryLimit(qint64 bytes)
{
    d->needClosed();
    if (bytes < 0)
        throw Error(adErrInvalidArgument, Texts::badArgument().arg(bytes));
    d->memoryLimit = bytes;
}

void Recordset::Open(const QString &source, const std::shared_ptr<Connection> &connection,
                     CursorTypeEnum cursorType, LockTypeEnum lockType, qint32 options)
{
    d->needClosed();
    if (!connection || connection->State() == adStateClosed)
        throw Error(adErrInvalidConnection, Texts::connectionClosed());
    if (cursorType != adOpenUnspecified) // the result is still a snapshot
        needCursorType(cursorType);
    if (lockType != adLockUnspecified)
        needLockType(lockType);
    d->openedLockType = lockType == adLockUnspecified ? d->lockType : lockType;

    // A copy, because a progress report can let the host close the connection.
    const std::shared_ptr<Session> session = connection->session();
    const bool isTable = options == adCmdTable || options == adCmdTableDirect;
    try {
        Snapshot read = d->read(*session, isTable ? session->tableStatement(source) : source);
        d->fields.reset(*this, read.fields());
        d->shared = std::make_shared<SharedRows>(SharedRows{std::move(read), {}});
    } catch (const std::bad_alloc &) {
        d->fields.clear();
        throw Error(dbErrFailed, Texts::outOfMemory());
    }
    d->source = source;
    d->connection = connection;
    d->removalsSeen = 0;
    d->position.reset(d->shared->snapshot.records());
    d->notifyReplaced(adRsnRequery);
    d->notifyMoved(adRsnMove);
}

void Recordset::Close()
{
    d->rows();
    d->needIdle();
    d->fields.clear();
    d->editor.reset();
    d->underlying.reset();
    d->shared.reset();
    d->position.reset(0);
    d->notifyReplaced(adRsnClose);
}

ObjectStateEnum Recordset::State() const
{
    return d->shared ? adStateOpen : adStateClosed;
}

std::shared_ptr<Connection> Recordset::ActiveConnection() const
{
    return d->connection.lock();
}

std::shared_ptr<Recordset> Recordset::Clone() const
{
    d->rows();
    auto clone = std::make_shared<Recordset>();
    clone->d->source = d->source;
    clone->d->connection = d->connection;
    clone->d->shared = d->shared;
    clone->d->removalsSeen = d->shared->removals.size();
    clone->d->editor.emplace(nullptr, Texts::cloneIsReadOnly());
    clone->d->fields.reset(*clone, d->shared->snapshot.fields());
    clone->d->position.reset(d->shared->snapshot.records());
    return clone;
}

bool Recordset::IsWritable() const
{
    return d->edit().isWritable();
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

QString Recordset::CellText(qint64 record, int column) const
{
    if (!hasCell(record, column))
        return {};
    return withinMemory(Texts::outOfMemory, [&] { return d->shared->snapshot.text(record, column); });
}

QVariant Recordset::CellValue(qint64 record, int column) const
{
    if (!hasCell(record, column))
        return {};
    return withinMemory(Texts::outOfMemory, [&] { return d->shared->snapshot.value(record, column); });
}

bool Recordset::IsNull(qint64 record, int column) const
{
    return !hasCell(record, column) || d->shared->snapshot.isNull(record, column);
}

bool Recordset::hasCell(qint64 record, int column) const
{
    return d->shared && d->shared->snapshot.contains(record, column);
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

} // namespace ADODB
