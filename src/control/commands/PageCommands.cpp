#include "control/commands/PageCommands.h"

#include "ado/Adodc.h"
#include "ado/Recordset.h"
#include "control/face/KOVAVSFDataGridPrivate.h"
#include "grid/FlexGrid.h"

#include <QtCore/QSignalBlocker>
#include <QtWidgets/QScrollBar>

#include <algorithm>

namespace KOVAVSFDataGridLib {

namespace {

// Where a direction leads; nothing when it leads nowhere.
std::optional<qint64> targetPage(qint32 direction, qint64 page, qint64 pageCount)
{
    const bool hasPagesBefore = page >= 2;
    const bool hasPagesBehind = pageCount >= 2 && page != pageCount;
    switch (direction) {
    case 1:
        return hasPagesBefore ? std::optional<qint64>(1) : std::nullopt;
    case 2:
        return hasPagesBefore ? std::optional(page - 1) : std::nullopt;
    case 3:
        return hasPagesBehind ? std::optional(page + 1) : std::nullopt;
    case 4:
        return hasPagesBehind ? std::optional(pageCount) : std::nullopt;
    default:
        return {};
    }
}

} // namespace

void GotoPage(ControlHub &hub, qint32 direction)
{
    if (!hub.result.isOpen() || hub.result.recordset()->isBOF())
        return;
    const auto page = targetPage(direction, hub.pages.currentPage(), hub.result.recordset()->PageCount());
    if (page)
        TurnToPage(hub, *page);
}

void TurnToPage(ControlHub &hub, qint64 page)
{
    hub.columns().SaveColumnWidths(0);
    if (!hub.showPage(page))
        return;
    if (hub.showModel == KOVAVSFDataGrid::ModelPart)
        hub.columns().ShowPartFieldColumns(0);
    hub.commands.singleRecord.refillIfShown();
}

void RefillAtRecord(ControlHub &hub, qint64 record)
{
    VSFlexGrid &grid = *hub.parts.vsfgDataGrid;
    const int col = grid.Col();
    const int x = grid.horizontalScrollBar()->value();
    const int y = grid.verticalScrollBar()->value();
    if (!hub.showPage((std::max<qint64>(record, 1) - 1) / SharedValues::RecordCap + 1))
        return;
    const qint64 row = record - hub.pages.recordOfRow(1) + 1;
    if (record > 0 && row >= 1 && row < grid.Rows()) {
        const QSignalBlocker noMove(hub.parts.Adodc1);
        grid.PutRow(static_cast<int>(row));
        grid.PutCol(col);
    }
    grid.horizontalScrollBar()->setValue(x);
    grid.verticalScrollBar()->setValue(y);
    hub.takeRecordCount();
}

} // namespace KOVAVSFDataGridLib
