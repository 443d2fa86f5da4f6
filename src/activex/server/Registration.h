#pragma once

#include <windows.h>

namespace KOVAVSFDataGridLib::ActiveX {

// Writes what COM must know to find this server: for the whole machine where the user may do that, else for
// the user alone. Registering again repairs.
HRESULT registerServer();
// The same for the user alone, whatever he may do.
HRESULT registerServerForUser();
// Takes both away again; what is not there is no error.
HRESULT unregisterServer();

} // namespace KOVAVSFDataGridLib::ActiveX
