#include "ado/Error.h"
#include "ado/Notifications.h"
#include "ado/Recordset.h"
#include "session/Questions.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/editing/EditedRecord.h"

// Begins a new record and shows it as a list.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

void addRecord(Session &session)
{
    if (!session.result().isOpen() || !session.record().commitEdit())
        return;
    const ResultWatch watch(session);
    ADODB::Recordset &recordset = *watch.recordset();
    if (recordset.EditMode() == ADODB::adEditInProgress && !session.record().save())
        return;
    try {
        const ADODB::Notifications::Hold hold(session.notifications());
        if (recordset.EditMode() == ADODB::adEditAdd && !session.record().isEmpty())
            session.record().saveChanges();
        if (!watch.isUntouched())
            return;
        recordset.AddNew();
        session.window().showSingleRecord();
    } catch (const ADODB::Error &error) {
        if (!watch.isUntouched())
            return;
        // The record has no values, as the user can see, so it could not be saved.
        if (error.is(ADODB::dbErrCancelled))
            session.questions().show(SessionMessages::InsertCancelled);
        else if (recordset.EditMode() == ADODB::adEditAdd)
            session.questions().showWithCause(SessionMessages::InsertCancelled, error.Description());
    }
}

const Command::Registration addRecordCommand({
    .key = CommandKeys::AddRecord,
    .shortcut = u"Ctrl++"_s,
    .menu = {8, Command::tr("增加记录(&N)")},
    .record = Record::Stays,
    .run = addRecord,
    .whyNot = [](Session &session) { return session.record().whyNotAdded(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
