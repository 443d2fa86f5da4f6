#include "session/commands/fields/ShowFields.h"

#include "session/SessionWindow.h"

namespace KOVAVSFDataGridLib {

void showFields(Session &session, const QString &statement, FieldView view, FilterManagerRollback &rollback)
{
    const QStringList fields = session.columns().fieldsShownBy(view);
    const bool isAlwaysOpened = view == FieldView::All && session.rules().alwaysOpensFields;
    const bool needsOpening =
        !statement.isEmpty() && (isAlwaysOpened || session.history().IsDistinct(statement) ||
                                 !session.columns().hasColumnsFor(fields));
    std::optional<ResultSet::Opened> opened;
    if (needsOpening) {
        if (!session.saveRecord() || !(opened = session.read(statement)))
            return;
    }
    const ADODB::Notifications::Hold hold(session.notifications());
    if (opened)
        session.show(*opened);
    rollback.keepChanges();
    session.setStatement(statement);
    session.setFieldView(view);
    session.window().refreshSingleRecord();
    session.record(statement);
}

} // namespace KOVAVSFDataGridLib
