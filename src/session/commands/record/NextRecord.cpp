#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/commands/record/StepRecord.h"

// Moves to the next record.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration nextRecordCommand({
    .key = CommandKeys::NextRecord,
    .shortcut = u"Alt+PgDown"_s,
    .menu = {25, Command::tr("下一条记录(&J)")},
    .needs = Needs::Records,
    .run = [](Session &session) { stepRecord(session, 1); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
