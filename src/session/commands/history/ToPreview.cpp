#include "session/Session.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/history/HistorySteps.h"
#include "session/history/SharedHistory.h"

// Goes back one statement.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration toPreviewCommand({
    .key = CommandKeys::ToPreview,
    .shortcut = u"Alt+Left"_s,
    .button = {{.place = 500,
                .caption = Command::tr("后退"),
                .toolTip = Command::tr("返回上一步的结果"),
                .isCaptioned = true}},
    .isInViewer = true,
    .run = [](Session &session) { goBack(session, 1); },
    .whyNot = [](Session &session) { return session.sharedHistory().whyNone(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
