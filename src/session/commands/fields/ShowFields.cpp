#include "session/commands/fields/ShowFields.h"

#include "ado/Notifications.h"
#include "query/clsFilterManagement.h"
#include "session/SessionWindow.h"
#include "session/WindowRules.h"
#include "session/editing/EditedRecord.h"
#include "session/layout/ColumnLayout.h"
#include "session/layout/ShownColumns.h"
#include "session/statement/ShownStatement.h"
#include "session/statement/StatementReader.h"

namespace KOVAVSFDataGridLib {

void showFields(Session &session, const QString &statement, FieldView view, FilterManagerRollback &rollback)
{
    const QStringList fields = session.columns().fieldsShownBy(view);
    const bool isAlwaysOpened = view == FieldView::All && session.rules().alwaysOpensFields;
    const bool needsOpening =
        !statement.isEmpty() && (isAlwaysOpened || session.history().IsShownAlone(statement) ||
                                 !session.columns().hasColumnsFor(fields));
    std::optional<ResultSet::Opened> opened;
    if (needsOpening) {
        if (session.record().save())
            opened = session.statementReader().read(statement);
        if (!opened)
            return;
    }
    const ADODB::Notifications::Hold hold(session.notifications());
    if (opened)
        session.shown().show(*opened);
    rollback.keepChanges();
    session.shown().setText(statement);
    session.fields().setView(view);
    session.window().refreshSingleRecord();
    session.shown().addToHistory(statement);
}

} // namespace KOVAVSFDataGridLib
