#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/history/HistorySteps.h"

// One statement back or forward, back to the first, and the list of all of them.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QString whyNotForward(Session &session)
{
    const QString noHistory = session.whyNoHistory();
    if (!noHistory.isEmpty())
        return noHistory;
    const bool isAtEnd = session.isFilterManager(nullptr) || session.trail().ahead(session.history()).empty();
    return isAtEnd ? SessionMessages::NothingAhead : QString();
}

const Command::Registration toPreview({
    .key = CommandKeys::ToPreview,
    .shortcut = u"Alt+Left"_s,
    .button = {{500, Command::tr("后退"), Command::tr("返回上一步的结果")}},
    .isInViewer = true,
    .run = [](Session &session) { goBack(session, 1); },
    .whyNot = [](Session &session) { return session.whyNoHistory(); },
});

const Command::Registration toOrigin({
    .key = u"ToOrigin"_s,
    .shortcut = u"Alt+Home"_s,
    .button = {{501, Command::tr("最初"), Command::tr("返回最初的结果")}},
    .isInViewer = true,
    .run = goToOrigin,
    .whyNot = [](Session &session) { return session.whyNoHistory(); },
});

const Command::Registration forward({
    .key = u"Forward"_s,
    .shortcut = u"Alt+Right"_s,
    .menu = {30, Command::tr("前进(&W)")},
    .isInViewer = true,
    .viewerMenu = {19, Command::tr("前进(&W)")},
    .run = [](Session &session) { goForward(session, 1); },
    .whyNot = whyNotForward,
});

const Command::Registration list({
    .key = u"History"_s,
    .shortcut = u"Ctrl+H"_s,
    .menu = {31, Command::tr("历史(&Z)…")},
    .isInViewer = true,
    .viewerMenu = {20, Command::tr("历史(&Z)…")},
    .record = Record::Stays,
    .run = [](Session &session) { session.window().showHistory(); },
    .whyNot = [](Session &session) { return session.whyNoHistory(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
