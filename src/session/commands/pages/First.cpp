#include "session/Session.h"
#include "session/commands/Command.h"
#include "session/pages/Pages.h"

// Shows the first page of the result.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration firstCommand({
    .key = u"First"_s,
    .shortcut = u"Ctrl+Home"_s,
    .button = {{400, Command::tr("首页"), Command::tr("第一页")}},
    .isInViewer = true,
    .run = [](Session &session) { session.pages().stepPage(PageStep::First); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
