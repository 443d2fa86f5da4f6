#include "ado/automation/RecordsetObject.h"

#include "ado/Recordset.h"
#include "ado/Texts.h"
#include "ado/automation/ConnectionObject.h"
#include "ado/automation/FieldsObject.h"
#include "ado/automation/Guarded.h"

namespace ADODB {

RecordsetObject::RecordsetObject(Recordset &recordset)
    : m_recordset(recordset), m_fields(new FieldsObject(recordset, this))
{
    connect(m_fields, &FieldsObject::HostError, this, &RecordsetObject::HostError);
}

RecordsetObject::~RecordsetObject() = default;

QObject *RecordsetObject::Fields(const QString &name)
{
    return m_fields->Item(name);
}

QObject *RecordsetObject::Fields(qint32 index)
{
    return m_fields->Item(index);
}

QObject *RecordsetObject::Fields(const QVariant &nameOrIndex)
{
    return m_fields->Item(nameOrIndex);
}

void RecordsetObject::Open(const QString &source, QObject *connection, qint32 cursorType, qint32 lockType,
                           qint32 options)
{
    guarded(this, [&] {
        const auto *object = qobject_cast<ConnectionObject *>(connection);
        if (!object)
            throw Error(adErrInvalidConnection, Texts::notAConnection());
        m_recordset.Open(source, object->connection(), static_cast<CursorTypeEnum>(cursorType),
                         static_cast<LockTypeEnum>(lockType), options);
    });
}

void RecordsetObject::Close()
{
    guarded(this, [&] { m_recordset.Close(); });
}

void RecordsetObject::Move(qint32 records, qint32 start)
{
    guarded(this, [&] { m_recordset.Move(records, static_cast<BookmarkEnum>(start)); });
}

void RecordsetObject::MoveFirst()
{
    guarded(this, [&] { m_recordset.MoveFirst(); });
}

void RecordsetObject::MoveNext()
{
    guarded(this, [&] { m_recordset.MoveNext(); });
}

void RecordsetObject::MovePrevious()
{
    guarded(this, [&] { m_recordset.MovePrevious(); });
}

void RecordsetObject::MoveLast()
{
    guarded(this, [&] { m_recordset.MoveLast(); });
}

void RecordsetObject::AddNew()
{
    guarded(this, [&] { m_recordset.AddNew(); });
}

void RecordsetObject::Update()
{
    guarded(this, [&] { m_recordset.Update(); });
}

void RecordsetObject::CancelUpdate()
{
    guarded(this, [&] { m_recordset.CancelUpdate(); });
}

void RecordsetObject::Delete(qint32 affectRecords)
{
    guarded(this, [&] { m_recordset.Delete(static_cast<AffectEnum>(affectRecords)); });
}

void RecordsetObject::Resync(qint32 affectRecords, qint32 resyncValues)
{
    guarded(this, [&] {
        m_recordset.Resync(static_cast<AffectEnum>(affectRecords), static_cast<ResyncEnum>(resyncValues));
    });
}

bool RecordsetObject::isBOF()
{
    return guardedOr(this, true, [&] { return m_recordset.isBOF(); });
}

bool RecordsetObject::isEOF()
{
    return guardedOr(this, true, [&] { return m_recordset.isEOF(); });
}

qint32 RecordsetObject::recordCount()
{
    return guarded(this, [&] { return narrowed(m_recordset.RecordCount()); });
}

qint32 RecordsetObject::absolutePosition()
{
    return guarded(this, [&] { return narrowed(m_recordset.AbsolutePosition()); });
}

void RecordsetObject::setAbsolutePosition(qint32 position)
{
    guarded(this, [&] { m_recordset.PutAbsolutePosition(position); });
}

qint32 RecordsetObject::absolutePage()
{
    return guarded(this, [&] { return narrowed(m_recordset.AbsolutePage()); });
}

void RecordsetObject::setAbsolutePage(qint32 page)
{
    guarded(this, [&] { m_recordset.PutAbsolutePage(page); });
}

qint32 RecordsetObject::pageSize()
{
    return m_recordset.PageSize();
}

void RecordsetObject::setPageSize(qint32 records)
{
    guarded(this, [&] { m_recordset.PutPageSize(records); });
}

qint32 RecordsetObject::pageCount()
{
    return guarded(this, [&] { return narrowed(m_recordset.PageCount()); });
}

qint32 RecordsetObject::state()
{
    return m_recordset.State();
}

qint32 RecordsetObject::editMode()
{
    return guarded(this, [&] { return qint32{m_recordset.EditMode()}; });
}

qint32 RecordsetObject::cursorLocation()
{
    return m_recordset.CursorLocation();
}

void RecordsetObject::setCursorLocation(qint32 location)
{
    guarded(this, [&] { m_recordset.PutCursorLocation(static_cast<CursorLocationEnum>(location)); });
}

qint32 RecordsetObject::cursorType()
{
    return m_recordset.CursorType();
}

void RecordsetObject::setCursorType(qint32 type)
{
    guarded(this, [&] { m_recordset.PutCursorType(static_cast<CursorTypeEnum>(type)); });
}

qint32 RecordsetObject::lockType()
{
    return m_recordset.LockType();
}

void RecordsetObject::setLockType(qint32 type)
{
    guarded(this, [&] { m_recordset.PutLockType(static_cast<LockTypeEnum>(type)); });
}

QString RecordsetObject::source()
{
    return m_recordset.Source();
}

QObject *RecordsetObject::fields()
{
    return m_fields;
}

RecordsetObject *automation(const std::shared_ptr<Recordset> &recordset)
{
    auto *object = qobject_cast<RecordsetObject *>(recordset->Companion());
    if (!object) {
        auto made = std::make_unique<RecordsetObject>(*recordset);
        object = made.get();
        recordset->SetCompanion(std::move(made));
    }
    return object;
}

} // namespace ADODB
