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

// Runs `action`; what it has no memory for becomes an error of the data access with `text`.
template<typename Action>
auto withinMemory(KOVAVSFDataGridLib::Text text, Action &&action)
{
    try {
        return action();
    } catch (const std::bad_alloc &) {
        throw Error(dbErrFailed, text());
    }
}

// The rows of a result; a recordset and its clones have the same ones.
struct SharedRows
{
    Snapshot snapshot;
    // The records that were deleted, each with the number that it had then.
    std::vector<qint64> removals;
};

// What a recordset keeps and its groups of members share: opening is in Recordset.cpp, moving in
// RecordsetMoves.cpp, editing in RecordsetEditing.cpp.
struct Recordset::Private
{
    CursorLocationEnum cursorLocation = adUseServer;
    CursorTypeEnum cursorType = adOpenForwardOnly;
    LockTypeEnum lockType = adLockReadOnly;       // of openings that don't say
    LockTypeEnum openedLockType = adLockReadOnly; // of the latest opening
    qint32 pageSize = 10;
    QString source;
    std::function<bool(qint64)> progress;
    const Statement *fetching = nullptr; // while Open reads its rows
    qint64 memoryLimit = RowStore::defaultMemoryLimit;

    ADODB::Fields fields;
    RecordPosition position;
    std::optional<RecordEditor> editor;
    std::shared_ptr<SharedRows> shared; // set while open, as is the editor
    std::size_t removalsSeen = 0;       // of the shared rows; the position knows of these
    std::weak_ptr<Connection> connection;

    // The row that Resync found, and the record it belongs to.
    std::optional<RowStore> underlying;
    qint64 underlyingRecord = 0;

    std::vector<RecordsetObserver *> observers;
    std::unique_ptr<QObject> companion;

    // Only while open; all members go through one of these two.
    Snapshot &rows()
    {
        if (!shared)
            throw Error(adErrObjectClosed, Texts::recordsetClosed());
        followRemovals();
        return shared->snapshot;
    }
    // Another recordset with the same rows may have changed their number.
    void followRemovals()
    {
        for (; removalsSeen < shared->removals.size(); ++removalsSeen)
            position.removeElsewhere(shared->removals[removalsSeen]);
        position.appendElsewhere(shared->snapshot.records() - position.count());
    }
    RecordEditor &edit()
    {
        rows();
        return *editor; // NOLINT(bugprone-unchecked-optional-access): it is there while the rows are
    }
    // While a change waits for the database, whoever watches the wait can let the host call this recordset.
    // It can read then, but change nothing.
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
    // Follows `action`, which answers whether it has taken the current record out of the rows.
    template<typename Action>
    bool removeCurrent(Action &&action)
    {
        std::vector<qint64> &removals = shared->removals;
        removals.reserve(removals.size() + 1); // so that nothing can fail once the record is gone
        const qint64 record = currentRecord();
        if (!action(record))
            return false;
        removals.push_back(record);
        ++removalsSeen;
        position.removeCurrent();
        return true;
    }

    Snapshot read(Session &session, const QString &statement);
    // The number must be one of 1…limit; `text` is the message for one that is not.
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
