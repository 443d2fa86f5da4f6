#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"

// Shows the result in the full-screen viewer.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration fullScreenCommand({
    .key = u"FullScreen"_s,
    .shortcut = u"F11"_s,
    .button = {{601, Command::tr("全屏"), Command::tr("全屏显示")}},
    .menu = {4, Command::tr("全屏显示(&S)")},
    .needs = Needs::Records,
    .run = [](Session &session) { session.window().showFullScreen(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
