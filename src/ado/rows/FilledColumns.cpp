#include "ado/rows/FilledColumns.h"

#include "ado/Connection.h"
#include "ado/connection/Waiting.h"
#include "ado/providers/Provider.h"

namespace ADODB {

QStringList filledColumns(const Connection &connection, const TableColumn &table)
{
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the host may close it during the wait.
    const std::shared_ptr<Session> session = connection.session();
    Watched watched;
    return session->filledColumns(table, [&] { return watched.shouldContinue(); });
}

} // namespace ADODB
