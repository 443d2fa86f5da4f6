#pragma once

#include "Fields.h"

#include <functional>
#include <memory>
#include <optional>

namespace ADODB {

class Connection;
class RecordsetObserver;

// The result of one statement, read whole when it is opened (a client-side cursor), with a current record.
// Hold it by std::shared_ptr. Use it from one thread at a time.
//
// Records are numbered from 1. Deleted records are not numbered, and a new record is the last. Members throw
// Error; they throw 3704 if the recordset must be open and is closed.
class KOVA_EXPORT Recordset
{
public:
    // A closed one.
    Recordset();
    ~Recordset();
    Q_DISABLE_COPY_MOVE(Recordset)

    // The defaults for Open. Every result is a client-side static snapshot, whatever is requested, and an
    // open recordset returns adUseClient and adOpenStatic. LockType then returns how it was opened. With
    // adLockReadOnly, the default, edits are refused. Writing one of these three while the recordset is open
    // throws 3705.
    CursorLocationEnum CursorLocation() const;
    void PutCursorLocation(CursorLocationEnum location);
    CursorTypeEnum CursorType() const;
    void PutCursorType(CursorTypeEnum type);
    LockTypeEnum LockType() const;
    void PutLockType(LockTypeEnum type);

    // The statement that was opened; empty before the first Open.
    QString Source() const;

    // `progress` is called while Open reads, at least every 20 ms, with the number of rows read so far. If it
    // returns false, Open throws dbErrCancelled and the recordset stays closed. It must not use this
    // recordset and must not throw.
    void SetProgress(std::function<bool(qint64 rowsRead)> progress);

    // The maximum size in bytes of the packed records that an open recordset keeps in memory: 512 MiB by
    // default, 0 or more. The rest is stored in temporary files, unlinked where the system allows it, until
    // the recordset is closed. Open throws dbErrFailed if they can't be written. Throws 3705 while the
    // recordset is open.
    void PutMemoryLimit(qint64 bytes);

    // Runs `source`, which must be a single statement that returns rows and changes nothing; anything else is
    // refused before it runs. With adCmdTable and adCmdTableDirect it is the name of a table. On success the
    // first record is current, or BOF and EOF are both true. On failure the recordset is closed. The cursor
    // and lock types apply to this call only; unspecified ones are taken from the properties.
    void Open(const QString &source, const std::shared_ptr<Connection> &connection,
              CursorTypeEnum cursorType = adOpenUnspecified, LockTypeEnum lockType = adLockUnspecified,
              qint32 options = adCmdUnspecified);
    // Discards a pending edit. Throws 3704 if already closed.
    void Close();
    // Whether it is open.
    ObjectStateEnum State() const;
    // The connection that it was opened with; null before the first Open, and after its owners released it.
    std::shared_ptr<Connection> ActiveConnection() const;

    // Another recordset with the same records, read-only, on the first record. It has a current record of its
    // own, and shows what is saved through this one. It stays open when this one is closed. Bookmarks are
    // valid in both.
    std::shared_ptr<Recordset> Clone() const;
    // Whether records can be changed, added and deleted. If not, such calls throw 3251.
    bool IsWritable() const;

    // The columns; empty while closed.
    ADODB::Fields &Fields();
    const ADODB::Fields &Fields() const;
    // The number of records, not including an unsaved new record.
    qint64 RecordCount() const;

    // Before the first record, and after the last. Both are true for an empty set. On a record that was just
    // deleted, both are false until the next move.
    bool isBOF() const;
    bool isEOF() const;

    // Every move first saves a pending edit (see Update), and moves only if that succeeds. A move beyond
    // either end stops at BOF or EOF. A move that starts there and continues in the same direction throws
    // 3021, and so does any move in an empty set.
    void Move(qint64 records, BookmarkEnum start = adBookmarkCurrent);
    void MoveFirst();
    void MoveNext();
    void MovePrevious();
    void MoveLast();
    // 1-based, or a value of PositionEnum; adPosUnknown on a deleted or unsaved record. Writing it moves, and
    // throws 3001 outside 1…RecordCount.
    qint64 AbsolutePosition() const;
    void PutAbsolutePosition(qint64 position);

    // Identifies the current record until the recordset is closed, also when other records were deleted.
    // Always greater than the values of BookmarkEnum. Throws 3021 if there is no current record.
    qint64 Bookmark() const;
    // The number of the record with this bookmark. Throws dbErrDeletedRow if it was deleted, and
    // dbErrBadBookmark if `bookmark` is not one of this recordset.
    qint64 RecordOf(qint64 bookmark) const;

    // Pages of PageSize records (10 by default, at least 1; can be set at any time). Writing AbsolutePage
    // moves to the first record of that page, and throws 3001 outside 1…PageCount.
    qint32 PageSize() const;
    void PutPageSize(qint32 records);
    qint64 PageCount() const;
    qint64 AbsolutePage() const;
    void PutAbsolutePage(qint64 page);

    // Whether the current record is being edited. Writing a field's Value or calling AddNew begins an edit.
    EditModeEnum EditMode() const;
    // Why no record of the result can be added, changed or deleted, as a sentence for the user. Empty if the
    // result can be written, or if it is closed. Known since Open; the database is not asked.
    QString WhyReadOnly() const;
    // Begins a new record, which is counted after it is saved. A move drops it if it has no value. AddNew on
    // an unsaved new record saves it first; it throws dbErrCancelled if that is refused or has no value.
    void AddNew();
    // Writes the edit in a transaction and shows what the database stored; CancelUpdate discards it. Throws
    // dbErrConcurrency if any of the record is no longer as shown. After a failure nothing is saved and the
    // edit stays pending; after dbErrInDoubt the next call finds out whether it was saved, and saves it only
    // if not. If that can't be found out for a new record: dbErrPerhapsSaved until ForgetAttempt or
    // CancelUpdate. AddNew, Update and Delete throw 3251 if the result can't be written (read-only, join,
    // view, aggregate, distinct, union). If the connection was lost, the next of them opens a new one.
    void Update();
    void CancelUpdate();
    // After dbErrInDoubt from Update or Delete: reads the record again. If the database has the change, it is
    // shown, the edit has ended or the record is deleted, and this returns true. If not, everything stays as
    // it is. Also throws dbErrPerhapsSaved like Update. False if there is nothing to find out.
    bool FindAttempt();
    // After dbErrPerhapsSaved: the next Update adds the new record once more, although it may be saved
    // already.
    void ForgetAttempt();
    // Reads the current record from the database again. After dbErrConcurrency this returns what another user
    // wrote. Only adAffectCurrent is supported. Throws 3251 for a result that can't be written, and
    // dbErrDeletedRow if the record was deleted.
    void Resync(AffectEnum affect = adAffectCurrent, ResyncEnum what = adResyncAllValues);
    // Only adAffectCurrent is supported. Throws dbErrConcurrency if any of the record is no longer as shown.
    // The deleted record stays current until a move; reading it throws dbErrDeletedRow. After dbErrInDoubt
    // the next call finds out whether the record was deleted, and deletes it only if not.
    void Delete(AffectEnum affect = adAffectCurrent);

    // Random access for views: `record` is 1…RecordCount, `column` is 0-based. They neither move nor notify.
    // They return saved values, not those of a pending edit. Texts are those of ValueText(). Outside the
    // range, or if closed, they return an empty text, Null and true. The first two throw dbErrFailed if there
    // is no memory for a long value.
    QString CellText(qint64 record, int column) const;
    QVariant CellValue(qint64 record, int column) const;
    bool IsNull(qint64 record, int column) const;

    // Observers are not owned, and must be removed before they are destroyed. They are called in the order in
    // which they were added.
    void AddObserver(RecordsetObserver *observer);
    void RemoveObserver(RecordsetObserver *observer);

    // An object that lives exactly as long as this recordset: the one that hosts use by name; see
    // automation().
    QObject *Companion() const;
    void SetCompanion(std::unique_ptr<QObject> companion);

private:
    friend class Field;
    friend class RowReader;
    friend class RecordView;
    friend std::shared_ptr<const Recordset> recordsSoFar(const Recordset &opening);
    friend std::optional<qint64> estimatedRecords(const Recordset &opening);
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
    const std::vector<qint64> &removals() const;
    std::shared_ptr<const Recordset> soFar() const;

    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace ADODB
