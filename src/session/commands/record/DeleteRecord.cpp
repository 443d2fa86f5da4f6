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

// Only the current record is deleted, even if several rows are marked, so the question names it.
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

// The answer applies to the record that was current when the question was asked, and not to one that the host
// has made current since.
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
    if (!watch.isUntouched()) // the control was destroyed during the deletion
        return;
    session.window().cancelEdit(); // only now: if the record was not deleted, the text being typed is kept
    const qint64 next = std::min(position, recordset.RecordCount());
    if (next < 1)
        recordset.MoveFirst(); // leaves the deleted record: none is left
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
        // Not every error is a constraint: the file may be read-only, or the record changed by somebody else.
        if (!watch.isUntouched())
            return;
        // No refusal: it may have been deleted nevertheless, or the user no longer wants it.
        if (error.is(ADODB::dbErrInDoubt) || error.is(ADODB::dbErrCancelled))
            session.questions().show(error.Description());
        else if (!error.is(ADODB::dbErrConcurrency))
            session.questions().showWithCause(SessionMessages::DeleteRefused, error.Description());
        else if (session.questions().offerNewValues(SessionMessages::DeleteRefused, error.Description()) &&
                 watch.isUntouched())
            session.record().showNewValues();
    }
}

const Command::Registration deleteRecordCommand({
    .key = u"DeleteRecord"_s,
    .shortcut = u"Ctrl+-"_s,
    .menu = {9, Command::tr("删除记录(&D)")},
    .record = Record::Stays,
    .run = deleteRecord,
    .whyNot = [](Session &session) { return session.record().whyNotWritten(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
