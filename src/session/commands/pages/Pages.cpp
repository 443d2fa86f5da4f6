#include "session/Session.h"
#include "session/commands/Command.h"

// The pages of a result.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration first({
    .key = u"First"_s,
    .shortcut = u"Ctrl+Home"_s,
    .button = {{400, Command::tr("首页"), Command::tr("第一页")}},
    .isInViewer = true,
    .run = [](Session &session) { session.stepPage(PageStep::First); },
});

const Command::Registration previous({
    .key = u"Previous"_s,
    .shortcut = u"Ctrl+PgUp"_s,
    .button = {{401, Command::tr("上页"), Command::tr("上一页")}},
    .isInViewer = true,
    .run = [](Session &session) { session.stepPage(PageStep::Previous); },
});

const Command::Registration next({
    .key = u"Next"_s,
    .shortcut = u"Ctrl+PgDown"_s,
    .button = {{402, Command::tr("下页"), Command::tr("下一页")}},
    .isInViewer = true,
    .run = [](Session &session) { session.stepPage(PageStep::Next); },
});

const Command::Registration last({
    .key = u"Last"_s,
    .shortcut = u"Ctrl+End"_s,
    .button = {{403, Command::tr("末页"), Command::tr("最后一页")}},
    .isInViewer = true,
    .run = [](Session &session) { session.stepPage(PageStep::Last); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
