#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/commands/record/StepRecord.h"

// Moves to the previous record.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration previousRecordCommand({
    .key = CommandKeys::PreviousRecord,
    .shortcut = u"Alt+PgUp"_s,
    .menu = {24, Command::tr("上一条记录(&K)")},
    .needs = Needs::Records,
    .run = [](Session &session) { stepRecord(session, -1); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
