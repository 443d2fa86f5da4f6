#include "ado/automation/RecordsetObject.h"

#include "ado/Recordset.h"
#include "ado/Texts.h"
#include "ado/automation/ConnectionObject.h"
#include "ado/automation/FieldsObject.h"
#include "ado/automation/Guarded.h"
#include "ado/automation/RecordWalk.h"

// The members that move and change. Those that read many records are in RecordsetObjectReading.cpp.

namespace ADODB {

RecordsetObject::RecordsetObject(Recordset &recordset)
    : m_recordset(recordset),
      m_fields(new FieldsObject(recordset, this)),
      m_walk(std::make_unique<RecordWalk>(recordset))
{
    connect(m_fields, &FieldsObject::HostError, this, &RecordsetObject::HostError);
    // Never removed: either the recordset owns this object, or this object owns the recordset.
    recordset.AddObserver(this);
}

RecordsetObject::RecordsetObject(const std::shared_ptr<Recordset> &clone, QObject *parent)
    : RecordsetObject(*clone)
{
    m_clone = clone;
    setParent(parent);
}

RecordsetObject::~RecordsetObject() = default;

void RecordsetObject::recordsetChangeComplete(EventReasonEnum)
{
    m_walk->reset();
}

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
    guarded(this, [&] {
        const EditModeEnum mode = m_recordset.EditMode();
        if (mode == adEditInProgress || mode == adEditAdd)
            throw Error(adErrIllegalOperation, Texts::closedWhileEdited());
        m_recordset.Close();
    });
}

void RecordsetObject::Move(qint32 records, qint32 start)
{
    guarded(this, [&] {
        if (m_walk->isRestricted())
            m_walk->move(records, start);
        else
            m_recordset.Move(records, static_cast<BookmarkEnum>(start));
    });
}

void RecordsetObject::Move(qint32 records, const QVariant &startOrBookmark)
{
    guarded(this, [&] { m_walk->move(records, startOrBookmark); });
}

void RecordsetObject::MoveFirst()
{
    guarded(this, [&] {
        if (m_walk->isRestricted())
            m_walk->move(0, adBookmarkFirst);
        else
            m_recordset.MoveFirst();
    });
}

void RecordsetObject::MoveNext()
{
    guarded(this, [&] {
        if (m_walk->isRestricted())
            m_walk->move(1);
        else
            m_recordset.MoveNext();
    });
}

void RecordsetObject::MovePrevious()
{
    guarded(this, [&] {
        if (m_walk->isRestricted())
            m_walk->move(-1);
        else
            m_recordset.MovePrevious();
    });
}

void RecordsetObject::MoveLast()
{
    guarded(this, [&] {
        if (m_walk->isRestricted())
            m_walk->move(0, adBookmarkLast);
        else
            m_recordset.MoveLast();
    });
}

void RecordsetObject::AddNew()
{
    guarded(this, [&] { m_recordset.AddNew(); });
}

void RecordsetObject::Update()
{
    guarded(this, [&] { m_recordset.Update(); });
}

void RecordsetObject::AddNew(const QVariant &fields, const QVariant &values)
{
    guarded(this, [&] {
        const std::vector<int> columns = m_fields->columns(fields);
        m_recordset.AddNew();
        putValues(columns, values);
    });
}

void RecordsetObject::Update(const QVariant &fields, const QVariant &values)
{
    guarded(this, [&] { putValues(m_fields->columns(fields), values); });
}

void RecordsetObject::putValues(const std::vector<int> &columns, const QVariant &values)
{
    const QVariantList list =
        values.typeId() == QMetaType::QVariantList ? values.toList() : QVariantList{values};
    try {
        if (static_cast<std::size_t>(list.size()) != columns.size())
            throw Error(adErrInvalidArgument, Texts::badFieldList());
        for (std::size_t i = 0; i < columns.size(); ++i)
            m_recordset.Fields().Item(columns[i]).PutValue(list[static_cast<qsizetype>(i)]);
        m_recordset.Update();
    } catch (const Error &) {
        m_recordset.CancelUpdate();
        throw;
    }
}

void RecordsetObject::CancelUpdate()
{
    guarded(this, [&] { m_recordset.CancelUpdate(); });
}

void RecordsetObject::Delete(qint32 affectRecords)
{
    guarded(this, [&] {
        if (m_walk->isRestricted() && affectRecords == adAffectCurrent)
            m_walk->remove();
        else
            m_recordset.Delete(static_cast<AffectEnum>(affectRecords));
    });
}

void RecordsetObject::Resync(qint32 affectRecords, qint32 resyncValues)
{
    guarded(this, [&] {
        m_recordset.Resync(static_cast<AffectEnum>(affectRecords), static_cast<ResyncEnum>(resyncValues));
    });
}

bool RecordsetObject::isBOF()
{
    return guardedOr(this, true,
                     [&] { return m_walk->isRestricted() ? m_walk->isBOF() : m_recordset.isBOF(); });
}

bool RecordsetObject::isEOF()
{
    return guardedOr(this, true,
                     [&] { return m_walk->isRestricted() ? m_walk->isEOF() : m_recordset.isEOF(); });
}

qint32 RecordsetObject::recordCount()
{
    return guarded(this, [&] { return narrowed(m_walk->count()); });
}

qint32 RecordsetObject::absolutePosition()
{
    return guarded(this, [&] { return narrowed(m_walk->position()); });
}

void RecordsetObject::setAbsolutePosition(qint32 position)
{
    guarded(this, [&] { m_walk->moveToPosition(position); });
}

qint32 RecordsetObject::absolutePage()
{
    return guarded(this, [&] {
        const qint64 position = m_walk->position();
        return narrowed(position < 1 ? position : (position - 1) / m_recordset.PageSize() + 1);
    });
}

void RecordsetObject::setAbsolutePage(qint32 page)
{
    guarded(this, [&] {
        if (m_walk->isRestricted())
            m_walk->moveToPosition((qint64{page} - 1) * m_recordset.PageSize() + 1);
        else
            m_recordset.PutAbsolutePage(page);
    });
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
    return guarded(this, [&] {
        return narrowed((m_walk->count() + m_recordset.PageSize() - 1) / m_recordset.PageSize());
    });
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

QObject *RecordsetObject::activeConnection()
{
    const std::shared_ptr<Connection> connection = m_recordset.ActiveConnection();
    if (!m_connection || m_connection->connection() != connection) {
        delete m_connection;
        m_connection = connection ? new ConnectionObject(connection, this) : nullptr;
        if (m_connection)
            connect(m_connection, &ConnectionObject::HostError, this, &RecordsetObject::HostError);
    }
    return m_connection;
}

qint32 RecordsetObject::status()
{
    return guarded(this, [&]() -> qint32 {
        switch (m_recordset.EditMode()) {
        case adEditAdd:
            return adRecNew;
        case adEditInProgress:
            return adRecModified;
        case adEditDelete:
            return adRecDeleted;
        case adEditNone:
            break;
        }
        m_recordset.Bookmark(); // throws if there is no record
        return adRecUnmodified;
    });
}

QVariant RecordsetObject::filter()
{
    return m_walk->filter().isValid() ? m_walk->filter() : QVariant(qint32{adFilterNone});
}

void RecordsetObject::setFilter(const QVariant &filter)
{
    guarded(this, [&] { m_walk->setFilter(filter); });
}

QString RecordsetObject::sort()
{
    return m_walk->sort();
}

void RecordsetObject::setSort(const QString &sort)
{
    guarded(this, [&] { m_walk->setSort(sort); });
}

// A double, as in automation's own recordsets. It is exact up to two million deletions.
QVariant RecordsetObject::bookmark()
{
    return guarded(this, [&] { return QVariant(static_cast<double>(m_recordset.Bookmark())); });
}

void RecordsetObject::setBookmark(const QVariant &bookmark)
{
    guarded(this, [&] { m_recordset.PutAbsolutePosition(m_walk->recordOf(bookmark)); });
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
