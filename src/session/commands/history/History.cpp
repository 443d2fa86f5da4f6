#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/history/SharedHistory.h"

// Lists all statements of the history.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration historyCommand({
    .key = u"History"_s,
    .shortcut = u"Ctrl+H"_s,
    .menu = {31, Command::tr("历史(&Z)…")},
    .isInViewer = true,
    .viewerMenu = {20, Command::tr("历史(&Z)…")},
    .record = Record::Stays,
    .run = [](Session &session) { session.window().showHistory(); },
    .whyNot = [](Session &session) { return session.sharedHistory().whyNone(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
