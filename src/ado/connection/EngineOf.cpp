#include "ado/connection/EngineOf.h"

#include "ado/Connection.h"

namespace KOVAVSFDataGridLib {

Engine engineOf(const std::shared_ptr<ADODB::Connection> &connection)
{
    const bool isOpen = connection && connection->State() == ADODB::adStateOpen;
    return isOpen ? engineNamed(connection->EngineName()) : Engine::Other;
}

} // namespace KOVAVSFDataGridLib
