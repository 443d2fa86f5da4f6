#include "session/records/LongWork.h"

#include "ado/Recordset.h"
#include "query/SharedValues.h"
#include "session/Session.h"
#include "session/SessionWindow.h"
#include "session/pages/Pages.h"

#include <QtCore/QScopedValueRollback>

#include <algorithm>

namespace KOVAVSFDataGridLib {

ExportColumns exportColumnsOf(Session &session, const std::vector<int> &columns)
{
    const ADODB::Fields &fields = session.result().recordset()->Fields();
    const SessionWindow &window = session.window();
    ExportColumns made;
    for (const int col : columns) {
        if (col < 1 || col > fields.Count())
            continue;
        const ADODB::Field &field = fields.Item(col - 1);
        const int width = window.ColWidth(col);
        const int twips = width == ColumnView::useDefaultWidth ? ColumnView::defaultColWidth : width;
        made.push_back({col - 1, field.Name(), field.Type(), field.NumericScale(), twips / twipsOfPixel});
    }
    return made;
}

RecordRange markedRecords(Session &session)
{
    const MarkedCells marked = session.window().markedCells();
    if (marked.lastRow < marked.firstRow || marked.firstRow < 1)
        return {};
    const qint64 last = session.pages().recordOfRow(marked.lastRow);
    return {session.pages().recordOfRow(marked.firstRow),
            std::min(last, session.result().recordset()->RecordCount())};
}

bool writeUnderProgress(Session &session, const CountedText &done, const RecordRange &range,
                        const std::function<bool(const std::function<bool(qint64)> &shouldContinue)> &write)
{
    if (session.shared.isOpening)
        return false;
    const ResultWatch watch(session);
    const QScopedValueRollback<bool> opening(session.shared.isOpening, true);
    const auto progress = session.window().beginWriting(done, range.count());
    const auto shouldContinue = [&](qint64 written) {
        return (!progress || progress->shouldContinue(written)) && watch.isUntouched();
    };
    return write(shouldContinue) && watch.isUntouched();
}

} // namespace KOVAVSFDataGridLib
