#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"

// How much of the result is seen at once.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// A second time it brings back the widths that the columns had before.
void compressOrRestore(Session &session)
{
    const std::vector<int> before = widthsOf(session.window());
    session.compressColumns();
    if (widthsOf(session.window()) == before && !session.window().isSingleRecordShown())
        session.keptWidths().restore(session.window());
}

const Command::Registration compressView({
    .key = u"CompressView"_s,
    .shortcut = u"Ctrl+M"_s,
    .button = {{600, Command::tr("压缩显示"),
                Command::tr("调整列宽，使所有列都能看到；再按一次恢复原来的列宽")}},
    .isInViewer = true,
    .record = Record::Stays,
    .run = compressOrRestore,
});

const Command::Registration fullScreen({
    .key = u"FullScreen"_s,
    .shortcut = u"F11"_s,
    .button = {{601, Command::tr("全屏"), Command::tr("全屏显示")}},
    .menu = {4, Command::tr("全屏显示(&S)")},
    .needs = Needs::Records,
    .run = [](Session &session) { session.window().showFullScreen(); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
