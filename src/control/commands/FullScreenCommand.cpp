#include "control/commands/FullScreenCommand.h"

#include "control/commands/FilterCommands.h"
#include "control/face/KOVAVSFDataGridPrivate.h"
#include "control/viewer/ShowFullScreen.h"

namespace KOVAVSFDataGridLib {

void ShowFullScreen(ControlHub &hub)
{
    if (!hub.hasRecords())
        return;
    hub.commands.singleRecord.leave();
    const auto outcome = ShowFullScreen({hub.q, hub.parts, hub.result, hub.pages, hub.filterManagerToShare(),
                                         hub.connectionString, hub.filterManager().DBType(),
                                         hub.commands.statement.current(), hub.sqlSort, hub.picField,
                                         [&hub](QWidget *parent) { return AskForCondition(hub, parent); }});
    if (!outcome)
        return;
    hub.showModel = outcome->isAll ? KOVAVSFDataGrid::ModelAll : KOVAVSFDataGrid::ModelPart;
    hub.commands.statement.setCurrent(outcome->statement);
    if (outcome->isRequeried)
        hub.q.PutSQLFilter(outcome->statement);
}

} // namespace KOVAVSFDataGridLib
