#include "ado/Recordset.h"
#include "session/ResultWatch.h"
#include "session/Session.h"
#include "session/commands/Command.h"
#include "session/records/PrintResult.h"

// Asks how to print the shown columns, and prints them or writes a PDF file.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

void print(Session &session)
{
    const ResultWatch watch(session);
    PrintRequest request = printRequestOf(session);
    request.write = [&](RecordWriter &writer, bool isMarkedOnly,
                        const std::function<bool()> &shouldContinue) {
        if (watch.isUntouched())
            writeRecords(*watch.recordset(), isMarkedOnly ? request.marked : request.all, request.columns,
                         writer, [&](qint64) { return shouldContinue(); });
    };
    const std::optional<PrintAnswer> answer = session.questions().askPrint(request);
    if (answer && watch.isUntouched())
        printResult(session, request, *answer);
}

const Command::Registration printCommand({
    .key = u"Print"_s,
    .shortcut = u"Ctrl+P"_s,
    .menu = {22, Command::tr("打印(&I)…")},
    .isInViewer = true,
    .viewerMenu = {14, Command::tr("打印(&I)…")},
    .needs = Needs::Records,
    .record = Record::Stays,
    .run = print,
});

} // namespace

} // namespace KOVAVSFDataGridLib
