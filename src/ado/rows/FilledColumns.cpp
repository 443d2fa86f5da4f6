#include "ado/rows/FilledColumns.h"

#include "ado/Connection.h"
#include "ado/connection/Waiting.h"
#include "ado/providers/Provider.h"

namespace ADODB {

QStringList filledColumns(const Connection &connection, const TableColumn &table)
{
    // A copy, because whoever watches the wait can let the host close the connection.
    const std::shared_ptr<Session> session = connection.session();
    Watched watched;
    return session->filledColumns(table, [&] { return watched.shouldContinue(); });
}

} // namespace ADODB
