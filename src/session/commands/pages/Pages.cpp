#include "session/Session.h"
#include "session/commands/Command.h"

// The pages of a result.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration first({
    .key = u"First"_s,
    .shortcut = u"Ctrl+Home"_s,
    .button = {{400, u"首页"_s, u"第一页"_s}},
    .isInViewer = true,
    .run = [](Session &session) { session.stepPage(PageStep::First); },
});

const Command::Registration previous({
    .key = u"Previous"_s,
    .shortcut = u"Ctrl+PgUp"_s,
    .button = {{401, u"上页"_s, u"上一页"_s}},
    .isInViewer = true,
    .run = [](Session &session) { session.stepPage(PageStep::Previous); },
});

const Command::Registration next({
    .key = u"Next"_s,
    .shortcut = u"Ctrl+PgDown"_s,
    .button = {{402, u"下页"_s, u"下一页"_s}},
    .isInViewer = true,
    .run = [](Session &session) { session.stepPage(PageStep::Next); },
});

const Command::Registration last({
    .key = u"Last"_s,
    .shortcut = u"Ctrl+End"_s,
    .button = {{403, u"末页"_s, u"最后一页"_s}},
    .isInViewer = true,
    .run = [](Session &session) { session.stepPage(PageStep::Last); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
