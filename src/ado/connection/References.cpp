#include "ado/connection/References.h"

#include "ado/Connection.h"
#include "ado/connection/Waiting.h"
#include "ado/providers/Provider.h"

namespace ADODB {

std::optional<TableColumn> referenceOf(const Connection &connection, const TableColumn &column)
{
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): the host may close it during the wait.
    const std::shared_ptr<Session> session = connection.session();
    Watched watched;
    return session->reference(column, [&] { return watched.shouldContinue(); });
}

} // namespace ADODB
