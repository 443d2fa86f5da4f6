#include "session/Session.h"
#include "session/commands/Command.h"
#include "session/pages/Pages.h"

// Shows the last page of the result.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration lastCommand({
    .key = u"Last"_s,
    .shortcut = u"Ctrl+End"_s,
    .button = {{403, Command::tr("末页"), Command::tr("最后一页")}},
    .isInViewer = true,
    .run = [](Session &session) { session.pages().stepPage(PageStep::Last); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
