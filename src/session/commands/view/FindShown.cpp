#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"

// Opens the find bar.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

void findShown(Session &session)
{
    if (session.window().isSingleRecordShown())
        session.window().showAllRecords();
    session.window().showFind();
}

const Command::Registration findShownCommand({
    .key = u"FindShown"_s,
    .shortcut = u"Ctrl+G"_s,
    .otherShortcut = u"F7"_s,
    .menu = {27, Command::tr("在表格中查找(&G)…")},
    .isInViewer = true,
    .viewerMenu = {16, Command::tr("在表格中查找(&G)…")},
    .needs = Needs::Records,
    .run = findShown,
});

} // namespace

} // namespace KOVAVSFDataGridLib
