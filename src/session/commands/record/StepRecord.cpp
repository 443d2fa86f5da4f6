#include "session/commands/record/StepRecord.h"

#include "ado/Notifications.h"
#include "ado/Recordset.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/pages/Pages.h"

namespace KOVAVSFDataGridLib {

void stepRecord(Session &session, int by)
{
    const ADODB::Notifications::Hold hold(session.notifications());
    const ADODB::Recordset &recordset = *session.result().recordset();
    const qint64 record = recordset.AbsolutePosition() + by;
    if (record < 1 || record > recordset.RecordCount())
        return;
    if (session.pages().rowOfRecord(record) == 0 &&
        !session.pages().turnToPage(session.pages().current() + by))
        return;
    if (const int row = session.pages().rowOfRecord(record); row > 0)
        session.window().PutRow(row);
    session.window().refreshSingleRecord();
}

} // namespace KOVAVSFDataGridLib
