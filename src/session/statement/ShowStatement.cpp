#include "session/statement/ShowStatement.h"

#include "session/Session.h"

namespace KOVAVSFDataGridLib {

bool showStatement(Session &session, const QString &statement, const std::function<void()> &change)
{
    session.columns().SaveColumnWidths();
    const auto opened = session.read(statement);
    if (!opened)
        return false;
    const ADODB::Notifications::Hold hold(session.notifications());
    session.show(*opened);
    change();
    return true;
}

} // namespace KOVAVSFDataGridLib
