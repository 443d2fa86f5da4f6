#include "ado/Recordset.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/records/ExportResult.h"
#include "session/records/LongWork.h"

#include <algorithm>

// Asks what to export and where to, and exports it.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

void exportRecords(Session &session)
{
    const ADODB::Recordset &recordset = *session.result().recordset();
    ExportRequest request;
    request.name = fileNameOf(session);
    request.records = recordset.RecordCount();
    request.markedRecords = std::max<qint64>(0, markedRecords(session).count());
    request.shownColumns = static_cast<int>(session.window().shownColumns().size());
    request.allColumns = recordset.Fields().Count();
    const ResultWatch watch(session);
    const std::optional<ExportAnswer> answer = session.questions().askExport(request);
    if (answer && watch.isUntouched())
        exportResult(session, *answer);
}

const Command::Registration exportCommand({
    .key = u"Export"_s,
    .shortcut = u"Ctrl+S"_s,
    .menu = {21, Command::tr("导出(&E)…")},
    .isInViewer = true,
    .viewerMenu = {13, Command::tr("导出(&E)…")},
    .needs = Needs::Records,
    .record = Record::Stays,
    .run = exportRecords,
});

} // namespace

} // namespace KOVAVSFDataGridLib
