#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/commands/Command.h"
#include "session/layout/ShownColumns.h"

// Fits the columns to the width of the grid.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

// The second time, it restores the previous widths.
void compressOrRestore(Session &session)
{
    const std::vector<int> before = widthsOf(session.window());
    session.fields().compress();
    if (widthsOf(session.window()) == before && !session.window().isSingleRecordShown())
        session.fields().keptWidths().restore(session.window());
}

const Command::Registration compressViewCommand({
    .key = u"CompressView"_s,
    .shortcut = u"Ctrl+M"_s,
    .button = {{600, Command::tr("压缩显示"),
                Command::tr("调整列宽，使所有列都能看到；再按一次恢复原来的列宽")}},
    .isInViewer = true,
    .record = Record::Stays,
    .run = compressOrRestore,
});

} // namespace

} // namespace KOVAVSFDataGridLib
