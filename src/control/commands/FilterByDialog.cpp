#include "control/commands/FilterCommands.h"
#include "control/commands/FilterManagerRollback.h"
#include "control/face/KOVAVSFDataGridPrivate.h"
#include "control/parts/ToolbarIcons.h"
#include "filter/mod_Filter.h"
#include "query/SqlText.h"

namespace KOVAVSFDataGridLib {

QString AskForCondition(ControlHub &hub, QWidget *parent)
{
    FilterRequest request;
    request.connectionString = hub.connectionString;
    request.dbType = hub.filterManager().DBType();
    request.tableType = hub.tableType;
    request.sqlShow = JoinStatementLines(hub.sqlShow);
    request.connection = hub.result.connection();
    request.picture = toolbarIcon(QStringLiteral("Filter"));
    mod_Filter filter(parent);
    filter.PrepareFilterDialog(request);
    return filter.ShowFilterDialog();
}

void FilterByDialog(ControlHub &hub)
{
    if (!hub.hasRecords())
        return;
    hub.q.PutPassQurryFilter({});
    FilterManagerRollback rollback(hub);
    QString base;
    QString key;
    colShowSQLSentences &history = rollback.manager().SQLManager();
    if (!(hub.commands.isFromResult() ? history.GetLatestSQL(base, &key) : history.GetFirstSQL(base, key)))
        return;

    constexpr qint32 leftToTheDialog = 1;
    qint32 cancel = leftToTheDialog;
    Q_EMIT hub.q.QurryFilter(cancel, base);
    if (!rollback.isResultUntouched())
        return;
    const QString condition = cancel == leftToTheDialog ? AskForCondition(hub, &hub.q) : hub.passQurryFilter;
    if (!rollback.isResultUntouched())
        return;
    hub.shared.lastFilter = condition;
    if (hub.shared.lastFilter.trimmed().isEmpty()) {
        hub.q.PutSQLFilter({});
        return;
    }
    QString statement;
    if (history.GetNextSQLByFilter(hub.shared.lastFilter, statement) &&
        hub.commands.statement.reloadFiltered(statement, ShownStatement::Previous::Keep))
        rollback.keepChanges();
}

} // namespace KOVAVSFDataGridLib
