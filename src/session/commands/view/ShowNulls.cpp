#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"

// Toggles whether Nulls are distinguished from empty texts.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration showNullsCommand({
    .key = u"ShowNulls"_s,
    .shortcut = u"Ctrl+Alt+N"_s,
    .menu = {33, Command::tr("标出空值(&B)")},
    .isInViewer = true,
    .viewerMenu = {22, Command::tr("标出空值(&B)")},
    .record = Record::Stays,
    .run = [](Session &session) { session.window().putShowsNulls(!session.window().showsNulls()); },
    .isOn = [](Session &session) { return session.window().showsNulls(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
