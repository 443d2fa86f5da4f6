#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/columns/ColumnCommand.h"
#include "session/columns/ColumnKeys.h"
#include "session/layout/ShownColumns.h"

// Fits the widths of columns to their texts, and restores them.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

namespace {

const ColumnCommand::Registration fit({
    .key = ColumnKeys::FitColumn,
    .place = 300,
    .caption = ColumnCommand::tr("适合宽度(&W)"),
    .run =
        [](Session &session, int col) {
            SessionWindow &window = session.window();
            session.fields().keptWidths().fit(window,
                                              [&] { window.PutColWidth(col, window.fittingWidth(col)); });
        },
});

const ColumnCommand::Registration fitAll({
    .key = u"FitAllColumns"_s,
    .place = 301,
    .caption = ColumnCommand::tr("全部适合(&L)"),
    .run =
        [](Session &session, int) {
            SessionWindow &window = session.window();
            session.fields().keptWidths().fit(window, [&] {
                for (const int col : window.shownColumns())
                    window.PutColWidth(col, window.fittingWidth(col));
            });
        },
});

const ColumnCommand::Registration restore({
    .key = u"RestoreWidths"_s,
    .place = 302,
    .caption = ColumnCommand::tr("还原宽度(&R)"),
    .run = [](Session &session, int) { session.fields().keptWidths().restore(session.window()); },
    .canRun = [](Session &session,
                 int) { return session.fields().keptWidths().canRestore(session.window()); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
