#include "session/commands/record/StepRecord.h"

#include "ado/Recordset.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionWindow.h"

namespace KOVAVSFDataGridLib {

void stepRecord(Session &session, int by)
{
    const ResultWatch watch(session);
    const qint64 record = watch.recordset()->AbsolutePosition() + by;
    if (record < 1 || record > watch.recordset()->RecordCount())
        return;
    if (session.rowOfRecord(record) == 0)
        session.turnToPage(session.page() + by);
    if (!watch.isUntouched())
        return;
    if (const int row = session.rowOfRecord(record); row > 0)
        session.window().PutRow(row);
    if (watch.isUntouched())
        session.window().refreshSingleRecord();
}

} // namespace KOVAVSFDataGridLib
