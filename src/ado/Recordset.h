#pragma once

#include "Fields.h"

#include <functional>
#include <memory>

namespace ADODB {

class Connection;
class RecordsetObserver;

// The result of one statement, read whole when it is opened (a client-side cursor), with a current record.
// Hold it by std::shared_ptr. Use it from one thread at a time.
//
// Records are counted from 1, in the live sequence: a deleted record is not counted, a new one is the last.
// Members throw Error; 3704 when they need an open recordset and it is closed.
class KOVA_EXPORT Recordset
{
public:
    // A closed one.
    Recordset();
    ~Recordset();
    Q_DISABLE_COPY_MOVE(Recordset)

    // How to open where Open itself doesn't say. Every result is a client-side static snapshot, whatever is
    // asked for; an open recordset says so (adUseClient, adOpenStatic), and LockType then says how it was
    // opened. LockType adLockReadOnly, the default, refuses edits. Writing one of the three throws 3705 while
    // open.
    CursorLocationEnum CursorLocation() const;
    void PutCursorLocation(CursorLocationEnum location);
    CursorTypeEnum CursorType() const;
    void PutCursorType(CursorTypeEnum type);
    LockTypeEnum LockType() const;
    void PutLockType(LockTypeEnum type);

    // The statement it was opened with; empty before.
    QString Source() const;

    // Called while Open reads, at least every 20 ms, with the number of rows read so far; answering false
    // ends Open with dbErrCancelled and the recordset stays closed. It must not touch this recordset and must
    // not throw.
    void SetProgress(std::function<bool(qint64 rowsRead)> progress);

    // How many bytes of records, packed, an open recordset keeps in memory: 512 MiB unless set, 0 or more.
    // What is more stands in temporary files of the system, unlinked where it can be, until the recordset is
    // closed; Open throws dbErrFailed when they can't be written. Throws 3705 while open.
    void PutMemoryLimit(qint64 bytes);

    // Runs `source`, which must be one statement that returns rows and changes nothing; anything else is
    // refused before it runs. adCmdTable and adCmdTableDirect take a table's name instead. On success the
    // first record is current, or BOF and EOF are both true. On failure the recordset is closed. A cursor or
    // lock type counts for this opening alone; one that is unspecified is the property's.
    void Open(const QString &source, const std::shared_ptr<Connection> &connection,
              CursorTypeEnum cursorType = adOpenUnspecified, LockTypeEnum lockType = adLockUnspecified,
              qint32 options = adCmdUnspecified);
    // Forgets a pending edit. Throws 3704 when already closed.
    void Close();
    // Whether it is open.
    ObjectStateEnum State() const;

    // The columns; empty while closed.
    ADODB::Fields &Fields();
    const ADODB::Fields &Fields() const;
    // How many records there are, without a new one that is not saved yet.
    qint64 RecordCount() const;

    // Before the first and behind the last record; both true for an empty set. On a record that was just
    // deleted both are false until the next move.
    bool isBOF() const;
    bool isEOF() const;

    // Every move first saves a pending edit (see Update) and moves only when that succeeds. A move beyond an
    // end stands at BOF or EOF; one that starts there and goes on in that direction throws 3021, as does any
    // move in an empty set.
    void Move(qint64 records, BookmarkEnum start = adBookmarkCurrent);
    void MoveFirst();
    void MoveNext();
    void MovePrevious();
    void MoveLast();
    // 1-based, or a PositionEnum value; adPosUnknown on a deleted or a not yet saved record. Writing it
    // moves; throws 3001 outside 1…RecordCount.
    qint64 AbsolutePosition() const;
    void PutAbsolutePosition(qint64 position);

    // Pages of PageSize records (10 unless set; can be set at any time, at least 1). Writing AbsolutePage
    // moves to the first record of that page; throws 3001 outside 1…PageCount.
    qint32 PageSize() const;
    void PutPageSize(qint32 records);
    qint64 PageCount() const;
    qint64 AbsolutePage() const;
    void PutAbsolutePage(qint64 page);

    // Writing a field's Value or calling AddNew begins an edit; Update writes it to the database, in
    // a transaction, and shows what the database stored; CancelUpdate forgets it. Update and Delete touch the
    // record only while all of it is still what is shown, and throw dbErrConcurrency otherwise. A failed
    // Update leaves the edit pending; it has saved nothing, except that after dbErrInDoubt nobody knows. A
    // result that can't be written (read-only, join, view, aggregate, distinct, union) throws 3251. A new
    // record is counted once it is saved; one without any value is dropped by a move. Another AddNew on a new
    // record saves it first, and throws dbErrCancelled when it is refused or has no value.
    EditModeEnum EditMode() const;
    void AddNew();
    void Update();
    void CancelUpdate();
    // Reads the current record from the database again, which tells what somebody else wrote after an Update
    // or a Delete has thrown dbErrConcurrency. Only adAffectCurrent. Throws 3251 for a result that can't be
    // written, dbErrDeletedRow when the record is gone.
    void Resync(AffectEnum affect = adAffectCurrent, ResyncEnum what = adResyncAllValues);
    // Only adAffectCurrent. The deleted record stays current, unreadable (dbErrDeletedRow), until a move.
    void Delete(AffectEnum affect = adAffectCurrent);

    // Random access for views: `record` is 1…RecordCount, `column` is 0-based; neither moves nor notifies.
    // They show saved values, not a pending edit. Text is as ValueText() gives it. Outside the range (or
    // closed) the answers are empty, Null and true. The first two throw dbErrFailed when there is no memory
    // for a long value.
    QString CellText(qint64 record, int column) const;
    QVariant CellValue(qint64 record, int column) const;
    bool IsNull(qint64 record, int column) const;

    // Observers are not owned and must be removed before they die. The order of telling is the order of
    // adding.
    void AddObserver(RecordsetObserver *observer);
    void RemoveObserver(RecordsetObserver *observer);

    // An object that lives exactly as long as this recordset: its face for late-bound hosts; see
    // automation().
    QObject *Companion() const;
    void SetCompanion(std::unique_ptr<QObject> companion);

private:
    friend class Field;
    friend class RowReader;
    const FieldInfo &fieldInfo(int column) const;
    QVariant currentValue(int column) const;
    void putCurrentValue(int column, const QVariant &value);
    QVariant originalValue(int column) const;
    QVariant underlyingValue(int column) const;

    void leaveRecord();
    void saveBeforeAddNew();
    void moveTo(qint64 record, EventReasonEnum reason);
    void moveBy(qint64 records, BookmarkEnum start, EventReasonEnum reason);
    bool hasCell(qint64 record, int column) const;

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ADODB
