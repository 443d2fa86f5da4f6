#include "session/statement/ShowStatement.h"

#include "ado/Notifications.h"
#include "session/Session.h"
#include "session/layout/ColumnLayout.h"
#include "session/statement/ShownStatement.h"
#include "session/statement/StatementReader.h"

namespace KOVAVSFDataGridLib {

bool showStatement(Session &session, const QString &statement, const std::function<void()> &change)
{
    session.columns().SaveColumnWidths();
    const auto opened = session.statementReader().read(statement);
    if (!opened)
        return false;
    const ADODB::Notifications::Hold hold(session.notifications());
    session.shown().show(*opened);
    change();
    return true;
}

} // namespace KOVAVSFDataGridLib
