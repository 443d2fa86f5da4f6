#include "session/Session.h"
#include "session/commands/Command.h"
#include "session/history/HistorySteps.h"
#include "session/history/SharedHistory.h"

// Goes back to the first statement.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration toOriginCommand({
    .key = u"ToOrigin"_s,
    .shortcut = u"Alt+Home"_s,
    .button = {{.place = 501,
                .caption = Command::tr("最初"),
                .toolTip = Command::tr("返回最初的结果"),
                .isCaptioned = true}},
    .isInViewer = true,
    .run = goToOrigin,
    .whyNot = [](Session &session) { return session.sharedHistory().whyNone(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
