#pragma once

#include <windows.h>

namespace KOVAVSFDataGridLib::ActiveX {

// Writes what COM must know to find this server: for the whole machine where the user may do that, else for
// the user alone. Registering again repairs.
HRESULT registerServer();
// The same for the user alone, whatever he may do.
HRESULT registerServerForUser();
// Takes both away again; what is not there is no error. Fails when something is left, as it is for a user who
// must not change what was registered for everybody.
HRESULT unregisterServer();
// Takes only the user's own away.
HRESULT unregisterServerForUser();

} // namespace KOVAVSFDataGridLib::ActiveX
