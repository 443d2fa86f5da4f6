#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/columns/ColumnCommand.h"

// Keeps the columns up to this one in view when the others scroll.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

bool isLastFrozen(Session &session, int col)
{
    return session.window().frozenColumns() == session.window().placeOf(col) + 1;
}

const ColumnCommand::Registration freezeColumnCommand({
    .key = u"FreezeColumns"_s,
    .place = 401,
    .caption = ColumnCommand::tr("冻结到此列(&Z)"),
    .run =
        [](Session &session, int col) {
            SessionWindow &window = session.window();
            const int frozen = isLastFrozen(session, col) ? 0 : window.placeOf(col) + 1;
            window.arrangeColumns(window.columnOrder(), frozen);
        },
    .isOn = isLastFrozen,
});

} // namespace

} // namespace KOVAVSFDataGridLib
