#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"

// Leaves the single-record view.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration allRecordCommand({
    .key = CommandKeys::AllRecord,
    .shortcut = u"Ctrl+4"_s,
    .button = {{201, Command::tr("全部记录"), Command::tr("返回全部记录")}},
    .menu = {6, Command::tr("全部记录(&R)")},
    .needs = Needs::Records,
    .run = [](Session &session) { session.window().showAllRecords(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
