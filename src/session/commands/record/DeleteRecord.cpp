#include "ado/Error.h"
#include "ado/Notifications.h"
#include "ado/Recordset.h"
#include "language/GroupedNumber.h"
#include "session/Questions.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/editing/EditedRecord.h"
#include "session/pages/Pages.h"

#include <algorithm>

// Asks, and deletes the current record; the next one becomes current, or the last one.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// Only the current record is deleted, however many rows are marked: the question then says which one it is.
QString question(Session &session)
{
    const SessionWindow &window = session.window();
    const MarkedCells marked = window.markedCells();
    const std::vector<int> shown = window.shownColumns();
    if (marked.lastRow <= marked.firstRow || shown.empty())
        return SessionMessages::AskDelete;
    const ADODB::Recordset &recordset = *session.result().recordset();
    const int field = shown.front() - 1;
    return SessionMessages::AskDelete +
           SessionMessages::RecordMeant.arg(
               grouped(window.Row()), recordset.Fields().Item(field).Name(),
               recordset.CellText(session.pages().recordOfRow(window.Row()), field));
}

// The answer is meant for the record that was current when the question came up, and for no other that the
// host has made current meanwhile.
bool askToDelete(Session &session, const ResultWatch &watch)
{
    const qint64 position = watch.recordset()->AbsolutePosition();
    return session.questions().ask(question(session), SessionMessages::AskDeleteTitle) &&
           watch.isUntouched() && watch.recordset()->AbsolutePosition() == position;
}

void deleteCurrentRecord(Session &session, const ResultWatch &watch)
{
    const ADODB::Notifications::Hold hold(session.notifications());
    ADODB::Recordset &recordset = *watch.recordset();
    if (recordset.EditMode() == ADODB::adEditAdd) {
        session.record().cancel();
        return;
    }
    const qint64 position = recordset.AbsolutePosition();
    session.record().remove();
    if (!watch.isUntouched()) // the control went while it was deleted
        return;
    session.window().cancelEdit(); // only now: a record that stays keeps what is being typed into it
    const qint64 next = std::min(position, recordset.RecordCount());
    if (next < 1)
        recordset.MoveFirst(); // off the deleted record: nothing is left
    session.pages().refillAtRecord(next);
    if (next >= 1)
        recordset.PutAbsolutePosition(next);
    else if (session.window().isSingleRecordShown())
        session.window().showAllRecords();
    session.window().refreshRecords();
}

void deleteRecord(Session &session)
{
    if (!session.result().isOpen())
        return;
    const bool isNew = session.result().recordset()->EditMode() == ADODB::adEditAdd;
    const ResultWatch watch(session);
    if ((!session.result().hasRecords() && !isNew) || !askToDelete(session, watch))
        return;
    try {
        deleteCurrentRecord(session, watch);
    } catch (const ADODB::Error &error) {
        // Not every refusal is a constraint: the file may be read-only, the record changed by somebody else.
        if (!watch.isUntouched())
            return;
        if (error.is(ADODB::dbErrInDoubt)) // which is not to say that it is not deleted
            session.questions().show(error.Description());
        else if (!error.is(ADODB::dbErrConcurrency))
            session.questions().showWithCause(SessionMessages::DeleteRefused, error.Description());
        else if (session.questions().offerNewValues(SessionMessages::DeleteRefused, error.Description()) &&
                 watch.isUntouched())
            session.record().showNewValues();
    }
}

const Command::Registration registration({
    .key = u"DeleteRecord"_s,
    .shortcut = u"Ctrl+-"_s,
    .menu = {9, Command::tr("删除记录(&D)")},
    .record = Record::Stays,
    .run = deleteRecord,
    .whyNot = [](Session &session) { return session.record().whyNotWritten(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
