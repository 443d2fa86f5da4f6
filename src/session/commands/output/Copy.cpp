#include "session/commands/Command.h"
#include "session/commands/output/CopyMarked.h"

// Copies the marked cells to the clipboard.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const Command::Registration copyCommand({
    .key = u"Copy"_s,
    .shortcut = u"Ctrl+C"_s,
    .menu = {17, Command::tr("复制(&Y)")},
    .isInViewer = true,
    .viewerMenu = {9, Command::tr("复制(&C)")},
    .needs = Needs::Records,
    .record = Record::Stays,
    .run = [](Session &session) { copyMarked(session, false); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
