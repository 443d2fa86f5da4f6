#include "ado/connection/EngineOf.h"

#include "ado/Connection.h"
#include "ado/providers/Provider.h"

namespace KOVAVSFDataGridLib {

EngineMode engineOf(const std::shared_ptr<ADODB::Connection> &connection)
{
    const bool isOpen = connection && connection->State() == ADODB::adStateOpen;
    return isOpen ? EngineMode(engineNamed(connection->EngineName()), connection->session()->quoting())
                  : EngineMode();
}

} // namespace KOVAVSFDataGridLib
