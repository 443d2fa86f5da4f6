#pragma once

#include <windows.h>

namespace KOVAVSFDataGridLib::ActiveX {

// Registers this server with COM: for the whole machine if the user has the permission, else for the user
// only. Can be repeated to repair a registration.
HRESULT registerServer();
// The same, but always for the user only.
HRESULT registerServerForUser();
// Removes both registrations; a missing one is not an error. Fails if something remains, for example if the
// user must not change the registration for the whole machine.
HRESULT unregisterServer();
// Removes only the user's own registration.
HRESULT unregisterServerForUser();

} // namespace KOVAVSFDataGridLib::ActiveX
