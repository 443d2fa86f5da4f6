#include "session/statement/LoadedTable.h"

#include "query/clsFilterManagement.h"
#include "query/derivation/SqlText.h"
#include "session/Session.h"
#include "session/statement/ShownStatement.h"

namespace KOVAVSFDataGridLib {

QString loadedTable(Session &session)
{
    const clsShowSQLSentence *const first = session.history().Item(1);
    return GetSQLTableName(first ? session.history().LineOf(first->ShowSQL) : session.shown().text());
}

} // namespace KOVAVSFDataGridLib
