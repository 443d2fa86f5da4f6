#pragma once

#include "../../KovaExport.h"
#include "../RecordsetObserver.h"

#include <QtCore/QObject>
#include <QtCore/QVariant>

#include <memory>
#include <vector>

#ifdef Q_MOC_RUN
#undef EOF // a macro of <cstdio>; here it is the name of a property
#endif

namespace ADODB {

class ConnectionObject;
class FieldsObject;
class Recordset;

// A recordset with ADO's member names, for hosts that have a QObject and call members by name. It never
// throws. A call that fails emits HostError and returns the default value of its type. BOF and EOF then
// return true, so that every loop over the records ends. Errors of its fields are also emitted here.
class KOVA_EXPORT RecordsetObject : public QObject, private RecordsetObserver
{
    Q_OBJECT
    // Like the members of Recordset with these names; BOF and EOF are isBOF and isEOF there.
    Q_PROPERTY(bool BOF READ isBOF)
    Q_PROPERTY(bool EOF READ isEOF)
    Q_PROPERTY(qint32 RecordCount READ recordCount)
    Q_PROPERTY(qint32 AbsolutePosition READ absolutePosition WRITE setAbsolutePosition)
    Q_PROPERTY(qint32 AbsolutePage READ absolutePage WRITE setAbsolutePage)
    Q_PROPERTY(qint32 PageSize READ pageSize WRITE setPageSize)
    Q_PROPERTY(qint32 PageCount READ pageCount)
    Q_PROPERTY(qint32 State READ state)
    Q_PROPERTY(qint32 EditMode READ editMode)
    Q_PROPERTY(qint32 CursorLocation READ cursorLocation WRITE setCursorLocation)
    Q_PROPERTY(qint32 CursorType READ cursorType WRITE setCursorType)
    Q_PROPERTY(qint32 LockType READ lockType WRITE setLockType)
    Q_PROPERTY(QString Source READ source)
    Q_PROPERTY(QObject *Fields READ fields)
    // Its ConnectionObject; null if the connection was released.
    Q_PROPERTY(QObject *ActiveConnection READ activeConnection)
    // RecordStatusEnum of the current record.
    Q_PROPERTY(qint32 Status READ status)

    // Which records this object visits, and in which order. The grid still shows all of them. Writing
    // one of them moves to the first record. Both are determined when they are set: a record that is changed
    // later stays where it is, and a new one is the last. Opening and closing reset them.
    //
    // Filter is a condition (``name LIKE 'L%' AND (age >= 18 OR age = NULL)``), a list of bookmarks, or an
    // empty text or adFilterNone for all records. Sort is a list of fields (`name DESC, id`).
    Q_PROPERTY(QVariant Filter READ filter WRITE setFilter)
    Q_PROPERTY(QString Sort READ sort WRITE setSort)

    // Identifies the current record until the recordset is closed. Writing it moves to that record.
    Q_PROPERTY(QVariant Bookmark READ bookmark WRITE setBookmark)

public:
    // For automation() only.
    explicit RecordsetObject(Recordset &recordset);
    ~RecordsetObject() override;

    // One field, by name or by 0-based index.
    Q_INVOKABLE QObject *Fields(const QString &name);
    Q_INVOKABLE QObject *Fields(qint32 index);
    Q_INVOKABLE QObject *Fields(const QVariant &nameOrIndex);

    // Like Recordset::Open; `connection` is a ConnectionObject.
    Q_INVOKABLE void Open(const QString &source, QObject *connection, qint32 cursorType = -1,
                          qint32 lockType = -1, qint32 options = -1);
    // Like Recordset::Close, but throws 3219 while an edit is pending, so that a host can't discard the
    // user's input by accident.
    Q_INVOKABLE void Close();
    // Like the members of Recordset with these names.
    Q_INVOKABLE void Move(qint32 records, qint32 start = 0);
    Q_INVOKABLE void Move(qint32 records, const QVariant &startOrBookmark);
    Q_INVOKABLE void MoveFirst();
    Q_INVOKABLE void MoveNext();
    Q_INVOKABLE void MovePrevious();
    Q_INVOKABLE void MoveLast();
    Q_INVOKABLE void AddNew();
    Q_INVOKABLE void Update();
    // `fields` is a name, an index or a list of them, `values` a value or a list. The record is saved at
    // once. If that fails, no change is left pending.
    Q_INVOKABLE void AddNew(const QVariant &fields, const QVariant &values);
    Q_INVOKABLE void Update(const QVariant &fields, const QVariant &values);
    // Like the members of Recordset with these names.
    Q_INVOKABLE void CancelUpdate();
    Q_INVOKABLE void Delete(qint32 affectRecords = 1);
    Q_INVOKABLE void Resync(qint32 affectRecords = 1, qint32 resyncValues = 2);

    // Moves to the next record that meets a condition on one field (``name = 'Li'``), or to the end. Starts
    // at the current record or at a bookmark, after `skipRecords`.
    Q_INVOKABLE void Find(const QString &criteria, const QVariant &skipRecords = {},
                          const QVariant &searchDirection = {}, const QVariant &start = {});
    // Returns one list of values per field, for the records from the current one or a bookmark on: all, or at
    // most `rows`. `fields` is a name, an index or a list of them; all by default. The record after them
    // becomes current.
    Q_INVOKABLE QVariant GetRows(const QVariant &rows = {}, const QVariant &start = {},
                                 const QVariant &fields = {});
    // The same as text. By default, columns are separated by tabs, records end with a carriage return, and
    // Null is an empty text.
    Q_INVOKABLE QString GetString(const QVariant &format = {}, const QVariant &rows = {},
                                  const QVariant &columnDelimiter = {}, const QVariant &rowDelimiter = {},
                                  const QVariant &nullText = {});
    // A read-only recordset with the same records and a current record, filter and order of its own. This
    // object owns it.
    Q_INVOKABLE QObject *Clone(qint32 lockType = -1);
    // 0, 1 or 2: the first bookmark's record is before, the same as, or after the second's.
    Q_INVOKABLE qint32 CompareBookmarks(const QVariant &first, const QVariant &second);
    // Whether all of these CursorOptionEnum bits are possible.
    Q_INVOKABLE bool Supports(qint32 cursorOptions);
    // Writes the visited records to a new file, as XML or, with adPersistProviderSpecific, as CSV: in UTF-8,
    // with the names of the fields, and binary values in hexadecimal.
    Q_INVOKABLE void Save(const QString &fileName, qint32 persistFormat = adPersistXML);
    // Not possible, because the grid shows the records: 3251.
    Q_INVOKABLE void Requery(qint32 options = -1);
    // Not possible, because each record is saved for itself: 3251.
    Q_INVOKABLE void UpdateBatch(qint32 affectRecords = 3);
    Q_INVOKABLE void CancelBatch(qint32 affectRecords = 3);
    // Not possible, because a statement has one result: 3251.
    Q_INVOKABLE QObject *NextRecordset();

    // Accessors of the properties.
    bool isBOF();
    bool isEOF();
    qint32 recordCount();
    qint32 absolutePosition();
    void setAbsolutePosition(qint32 position);
    qint32 absolutePage();
    void setAbsolutePage(qint32 page);
    qint32 pageSize();
    void setPageSize(qint32 records);
    qint32 pageCount();
    qint32 state();
    qint32 editMode();
    qint32 cursorLocation();
    void setCursorLocation(qint32 location);
    qint32 cursorType();
    void setCursorType(qint32 type);
    qint32 lockType();
    void setLockType(qint32 type);
    QString source();
    QObject *fields();
    QObject *activeConnection();
    qint32 status();
    QVariant filter();
    void setFilter(const QVariant &filter);
    QString sort();
    void setSort(const QString &sort);
    QVariant bookmark();
    void setBookmark(const QVariant &bookmark);

Q_SIGNALS:
    // A call by name on this object or one of its fields failed. The arguments are those of ADODB::Error.
    void HostError(qint32 Number, const QString &Description);

private:
    RecordsetObject(const std::shared_ptr<Recordset> &clone, QObject *parent);
    // Writes and saves the values of the current record.
    void putValues(const std::vector<int> &columns, const QVariant &values);

    void moveComplete(EventReasonEnum) override {}
    void recordChangeComplete(EventReasonEnum) override {}
    void recordsetChangeComplete(EventReasonEnum reason) override;

    std::shared_ptr<Recordset> m_clone; // null if the recordset owns this object
    Recordset &m_recordset;
    FieldsObject *m_fields;                   // a child
    ConnectionObject *m_connection = nullptr; // a child
    std::unique_ptr<class RecordWalk> m_walk;
};

// The object of a recordset. It is always the same one, and the recordset owns it.
KOVA_EXPORT RecordsetObject *automation(const std::shared_ptr<Recordset> &recordset);

} // namespace ADODB
