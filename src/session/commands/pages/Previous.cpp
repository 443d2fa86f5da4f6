#include "session/Session.h"
#include "session/commands/Command.h"
#include "session/pages/Pages.h"

// Shows the page before the current one.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration previousCommand({
    .key = u"Previous"_s,
    .shortcut = u"Ctrl+PgUp"_s,
    .button = {{401, Command::tr("上页"), Command::tr("上一页")}},
    .isInViewer = true,
    .run = [](Session &session) { session.pages().stepPage(PageStep::Previous); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
