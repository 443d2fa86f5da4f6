#include "ado/Recordset.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"

// The record before the current one and the one after it, on the page beside where it ends.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

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

const Command::Registration previous({
    .key = CommandKeys::PreviousRecord,
    .shortcut = u"Alt+PgUp"_s,
    .menu = {24, Command::tr("上一条记录(&K)")},
    .needs = Needs::Records,
    .run = [](Session &session) { stepRecord(session, -1); },
});

const Command::Registration next({
    .key = CommandKeys::NextRecord,
    .shortcut = u"Alt+PgDown"_s,
    .menu = {25, Command::tr("下一条记录(&J)")},
    .needs = Needs::Records,
    .run = [](Session &session) { stepRecord(session, 1); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
