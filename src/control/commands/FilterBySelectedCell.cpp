#include "ado/Recordset.h"
#include "control/commands/FilterCommands.h"
#include "control/face/KOVAVSFDataGridPrivate.h"
#include "forms/Messages.h"
#include "grid/FlexGrid.h"
#include "query/Conditions.h"

namespace KOVAVSFDataGridLib {

namespace {

CellFilter conditionOfCell(ControlHub &hub, int row, int col)
{
    const ADODB::Recordset &recordset = *hub.result.recordset();
    const qint64 record = hub.pages.recordOfRow(row);
    std::optional<QString> text;
    if (!recordset.IsNull(record, col - 1))
        text = recordset.CellText(record, col - 1);
    const QString caption = hub.parts.vsfgDataGrid->TextMatrix(0, col);
    return BuildCellFilter(hub.filterManager().SQLManager().GetSelFieldRealName(caption),
                           recordset.Fields().Item(col - 1).Type(), text, hub.result.engine());
}

} // namespace

void FilterBySelectedCell(ControlHub &hub)
{
    const VSFlexGrid &grid = *hub.parts.vsfgDataGrid;
    const int col = hub.isSingleRecordShown() ? hub.commands.singleRecord.currentGridCol() : grid.ShownCol();
    if (!hub.hasRecords() || grid.Row() == 0 || col == 0)
        return;
    const CellFilter filter = conditionOfCell(hub, grid.Row(), col);
    if (!filter.message.isEmpty())
        return Messages::tell(&hub.q, filter.message);
    QString statement;
    if (!filter.condition.isEmpty() &&
        hub.filterManager().SQLManager().GetNextSQLByFilter(filter.condition, statement))
        hub.commands.statement.reloadFiltered(statement, ShownStatement::Previous::Forget);
}

} // namespace KOVAVSFDataGridLib
