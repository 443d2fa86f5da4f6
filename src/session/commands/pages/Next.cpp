#include "session/Session.h"
#include "session/commands/Command.h"
#include "session/pages/Pages.h"

// Shows the page after the current one.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration nextCommand({
    .key = u"Next"_s,
    .shortcut = u"Ctrl+PgDown"_s,
    .button = {{402, Command::tr("下页"), Command::tr("下一页")}},
    .isInViewer = true,
    .run = [](Session &session) { session.pages().stepPage(PageStep::Next); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
