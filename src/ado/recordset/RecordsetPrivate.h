#pragma once

#include "ado/Error.h"
#include "ado/Recordset.h"
#include "ado/RecordsetObserver.h"
#include "ado/Texts.h"
#include "ado/rows/RecordEditor.h"
#include "ado/rows/RecordPosition.h"
#include "ado/rows/Snapshot.h"
#include "language/Text.h"

#include <QtCore/QObject>

#include <algorithm>
#include <memory>
#include <new>
#include <optional>
#include <vector>

namespace ADODB {

class Session;
class Statement;

// Runs `action`. Turns a lack of memory into an Error with `text`.
template<typename Action>
auto withinMemory(KOVAVSFDataGridLib::Text text, Action &&action)
{
    try {
        return action();
    } catch (const std::bad_alloc &) {
        throw Error(dbErrFailed, text());
    }
}

// The rows of a result, shared by a recordset and its clones.
struct SharedRows
{
    Snapshot snapshot;
    // The deleted records, each with its number at the time.
    std::vector<qint64> removals;
};

// The data of a recordset, shared by the files that implement it: opening is in Recordset.cpp, moving in
// RecordsetMoves.cpp, editing in RecordsetEditing.cpp.
struct Recordset::Private
{
    CursorLocationEnum cursorLocation = adUseServer;
    CursorTypeEnum cursorType = adOpenForwardOnly;
    LockTypeEnum lockType = adLockReadOnly;       // default for Open
    LockTypeEnum openedLockType = adLockReadOnly; // of the last Open
    qint32 pageSize = 10;
    QString source;
    std::function<bool(qint64)> progress;
    const Statement *fetching = nullptr; // while Open reads its rows
    qint64 memoryLimit = RowStore::defaultMemoryLimit;

    ADODB::Fields fields;
    RecordPosition position;
    std::optional<RecordEditor> editor;
    std::shared_ptr<SharedRows> shared; // set while open, as is the editor
    std::size_t removalsSeen = 0;       // how many of the shared rows' removals the position includes
    std::weak_ptr<Connection> connection;

    // The row that Resync found, and the record it belongs to.
    std::optional<RowStore> underlying;
    qint64 underlyingRecord = 0;

    std::vector<RecordsetObserver *> observers;
    std::unique_ptr<QObject> companion;

    // Only while open. All members access the rows through these two.
    Snapshot &rows()
    {
        if (!shared)
            throw Error(adErrObjectClosed, Texts::recordsetClosed());
        followRemovals();
        return shared->snapshot;
    }
    // Applies deletions that another recordset with the same rows made.
    void followRemovals()
    {
        for (; removalsSeen < shared->removals.size(); ++removalsSeen)
            position.removeElsewhere(shared->removals[removalsSeen]);
        position.appendElsewhere(shared->snapshot.records() - position.count());
    }
    RecordEditor &edit()
    {
        rows();
        return *editor; // NOLINT(bugprone-unchecked-optional-access): set whenever the rows are
    }
    // While a change waits for the database, the host may call this recordset. It can read then, but can't
    // change anything.
    class Busy
    {
    public:
        explicit Busy(Private &d) : m_d(d) { m_d.isBusy = true; }
        ~Busy() { m_d.isBusy = false; }
        Q_DISABLE_COPY_MOVE(Busy)

    private:
        Private &m_d;
    };
    bool isBusy = false;
    void needIdle() const
    {
        if (isBusy)
            throw Error(adErrStillExecuting, Texts::stillExecuting());
    }
    void needClosed() const
    {
        needIdle();
        if (shared)
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
    // Calls `action`, which returns whether it removed the current record, and follows the removal.
    template<typename Action>
    bool removeCurrent(Action &&action)
    {
        std::vector<qint64> &removals = shared->removals;
        removals.reserve(removals.size() + 1); // so that nothing can fail after the record is removed
        const qint64 record = currentRecord();
        if (!action(record))
            return false;
        removals.push_back(record);
        ++removalsSeen;
        position.removeCurrent();
        return true;
    }

    Snapshot read(Session &session, const QString &statement);
    // Throws with `text` unless `number` is in 1…limit.
    void needInRange(qint64 number, qint64 limit, const QString &text) const;

    // An observer may remove itself or others when it is called.
    template<typename... Arguments>
    void notify(void (RecordsetObserver::*what)(Arguments...), Arguments... arguments)
    {
        const auto told = observers;
        for (RecordsetObserver *observer : told) {
            if (std::find(observers.begin(), observers.end(), observer) != observers.end())
                (observer->*what)(arguments...);
        }
    }
    void notifyLeaving() { notify(&RecordsetObserver::willLeaveRecord); }
    void notifyMoved(EventReasonEnum reason) { notify(&RecordsetObserver::moveComplete, reason); }
    void notifyChanged(EventReasonEnum reason) { notify(&RecordsetObserver::recordChangeComplete, reason); }
    void notifyReplaced(EventReasonEnum reason)
    {
        notify(&RecordsetObserver::recordsetChangeComplete, reason);
    }
};

} // namespace ADODB
