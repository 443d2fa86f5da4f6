#include "session/Session.h"
#include "session/WindowRules.h"
#include "session/commands/Command.h"
#include "session/commands/CommandKeys.h"
#include "session/commands/rows/ShowSorted.h"
#include "session/history/SharedHistory.h"
#include "session/statement/FilterManagerRollback.h"
#include "session/statement/ShowStatement.h"
#include "session/statement/ShownStatement.h"

// Lets the user choose a sort and applies it.

namespace KOVAVSFDataGridLib {

using namespace Qt::StringLiterals;

bool showSorted(Session &session, const QString &statement, const QString &sort)
{
    session.shown().remember();
    return showStatement(session, statement, [&] {
        session.shown().addToHistory(statement, colShowSQLSentences::NoPartField(), sort);
    });
}

namespace {

void sortByDialog(Session &session)
{
    FilterManagerRollback rollback(session);
    clsFilterManagement &manager = rollback.manager();
    colShowSQLSentences &history = manager.SQLManager();
    manager.SetDBConnString(session.texts.connectionString);
    const clsShowSQLSentence *latest = history.Item(history.Count());
    if (!latest)
        return;
    const QString allFields = latest->AllFields; // the history can change while the dialog is open
    QString currentSort;
    latest->GetCurrUseOrderFieldSQL(currentSort);
    if (currentSort.isEmpty() && session.rules().beginsWithHostSort)
        currentSort = session.texts.sqlSort;

    QString newSort;
    QString statement;
    if (!manager.GetPartSortSelFields(allFields, currentSort, newSort) || !rollback.isResultUntouched() ||
        !history.GetNextSQLBySort(newSort, statement))
        return;
    if (showSorted(session, statement, newSort))
        rollback.keepChanges();
}

const Command::Registration sortCommand({
    .key = CommandKeys::Sort,
    .shortcut = u"Ctrl+Shift+O"_s,
    .button = {{303, Command::tr("排序"), Command::tr("选择排序字段")}},
    .menu = {12, Command::tr("排序(&O)"), true},
    .isInViewer = true,
    .run = sortByDialog,
    .whyNot = [](Session &session) { return session.sharedHistory().whyNot(DerivationStep::Sort); },
});

} // namespace

} // namespace KOVAVSFDataGridLib
