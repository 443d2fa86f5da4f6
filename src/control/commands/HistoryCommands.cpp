#include "control/commands/HistoryCommands.h"

#include "control/commands/FilterManagerRollback.h"
#include "control/face/KOVAVSFDataGridPrivate.h"

namespace KOVAVSFDataGridLib {

namespace {

using StepBack = bool (colShowSQLSentences::*)(QString &PassFilter, QString &PassKey);

void goBack(ControlHub &hub, StepBack stepBack)
{
    FilterManagerRollback rollback(hub);
    QString statement;
    QString key;
    if (!(hub.filterManager().SQLManager().*stepBack)(statement, key) || statement.isEmpty() ||
        !hub.commands.statement.reload(statement, ShownStatement::Previous::Keep))
        return;
    rollback.keepChanges();
    const clsShowSQLSentence *entry = hub.filterManager().SQLManager().Item(key);
    const bool showsAll = entry && entry->IsShowAllFields == 1;
    if (showsAll)
        hub.columns().ShowAllFieldColumns();
    else
        hub.columns().ShowPartFieldColumns(1);
    hub.showModel = showsAll ? KOVAVSFDataGrid::ModelAll : KOVAVSFDataGrid::ModelPart;
    hub.setPartAllButton(hub.showModel + 1);
    hub.commands.singleRecord.leave();
}

} // namespace

void GotoPreviewSQL(ControlHub &hub)
{
    goBack(hub, &colShowSQLSentences::GetPreviewSQL);
}

void GotoOriginSQL(ControlHub &hub)
{
    goBack(hub, &colShowSQLSentences::GetFirstSQL);
}

void ShowFullTable(ControlHub &hub)
{
    constexpr qint32 withoutCondition = 3;
    QString latest;
    QString key;
    QString statement;
    if (!hub.filterManager().SQLManager().GetLatestSQL(latest, &key) || latest.isEmpty())
        return;
    const qint32 isAllFields = hub.filterManager().SQLManager().Item(key)->IsShowAllFields;
    hub.columns().SaveColumnWidths(0);
    if (!hub.filterManager().GetRequirePartSQL(latest, withoutCondition, statement) ||
        !hub.commands.statement.OpenShowSQL(statement))
        return;
    hub.showModel = isAllFields == 1 ? KOVAVSFDataGrid::ModelAll : KOVAVSFDataGrid::ModelPart;
    hub.setPartAllButton(hub.showModel + 1);
    hub.commands.statement.record(statement, colShowSQLSentences::NoPartField(),
                                  colShowSQLSentences::NoSort());
}

} // namespace KOVAVSFDataGridLib
