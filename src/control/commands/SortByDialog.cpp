#include "control/commands/SortByDialog.h"

#include "control/commands/FilterManagerRollback.h"
#include "control/face/KOVAVSFDataGridPrivate.h"

namespace KOVAVSFDataGridLib {

void SortByDialog(ControlHub &hub, QString &strSort, bool &ok)
{
    FilterManagerRollback rollback(hub);
    clsFilterManagement &manager = rollback.manager();
    colShowSQLSentences &history = manager.SQLManager();
    manager.SetDBConnString(hub.connectionString);
    const clsShowSQLSentence *latest = history.Item(history.Count());
    if (!latest)
        return;
    const QString allFields = latest->AllFields; // the history can change while the dialog is open
    QString currentSort;
    latest->GetCurrUseOrderFieldSQL(currentSort);

    QString newSort;
    QString statement;
    if (!manager.GetPartSortSelFields(allFields, currentSort, newSort) || !rollback.isResultUntouched() ||
        !history.GetNextSQLBySort(newSort, statement) || statement.isEmpty())
        return;
    hub.columns().SaveColumnWidths(0);
    hub.commands.statement.rememberAsPrevious();
    if (!hub.commands.statement.OpenShowSQL(statement))
        return;
    rollback.keepChanges();
    hub.commands.statement.record(statement, colShowSQLSentences::NoPartField(), newSort);
    strSort = newSort;
    ok = true;
}

} // namespace KOVAVSFDataGridLib
