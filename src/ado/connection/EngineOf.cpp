#include "ado/connection/EngineOf.h"

#include "ado/Connection.h"
#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/providers/Provider.h"

namespace KOVAVSFDataGridLib {

EngineMode engineOf(const std::shared_ptr<ADODB::Connection> &connection)
{
    const bool isOpen = connection && connection->State() == ADODB::adStateOpen;
    return isOpen ? EngineMode(engineNamed(connection->EngineName()), connection->session()->quoting())
                  : EngineMode();
}

bool isRepeatable(const std::shared_ptr<ADODB::Connection> &connection, const QString &connectionString)
{
    if (!connection || connection->State() != ADODB::adStateOpen || !connection->session()->isRepeatable())
        return false;
    try {
        return ADODB::ConnectionString(connectionString).textWithoutPassword() ==
               connection->ConnectionString();
    } catch (const ADODB::Error &) {
        return false; // it opened nothing
    }
}

} // namespace KOVAVSFDataGridLib
