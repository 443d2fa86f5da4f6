#include "session/commands/Command.h"
#include "session/commands/output/CopyMarked.h"

// Copies the marked cells to the clipboard, with their headings.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration copyWithHeadingsCommand({
    .key = u"CopyWithHeadings"_s,
    .shortcut = u"Ctrl+Shift+C"_s,
    .menu = {18, Command::tr("复制（含标题）(&H)")},
    .isInViewer = true,
    .viewerMenu = {10, Command::tr("复制（含标题）(&H)")},
    .needs = Needs::Records,
    .record = Record::Stays,
    .run = [](Session &session) { copyMarked(session, true); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
