#include "query/clsFilterManagement.h"
#include "session/Session.h"
#include "session/SessionMessages.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/history/HistorySteps.h"
#include "session/history/SharedHistory.h"

// Goes forward one statement, after going back.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

QString whyNotForward(Session &session)
{
    QString noHistory = session.sharedHistory().whyNone();
    if (!noHistory.isEmpty())
        return noHistory;
    const bool isAtEnd = session.sharedHistory().isManager(nullptr) ||
                         session.sharedHistory().trail().ahead(session.history()).empty();
    return isAtEnd ? SessionMessages::NothingAhead : QString();
}

const Command::Registration forwardCommand({
    .key = CommandKeys::Forward,
    .shortcut = u"Alt+Right"_s,
    .menu = {30, Command::tr("前进(&W)")},
    .isInViewer = true,
    .viewerMenu = {19, Command::tr("前进(&W)")},
    .run = [](Session &session) { goForward(session, 1); },
    .whyNot = whyNotForward,
});

} // namespace

} // namespace KOVAVSFDataGridLib
