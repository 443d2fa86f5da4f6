#pragma once

#include <windows.h>

namespace KOVAVSFDataGridLib::ActiveX {

// Registers this server with COM: for the whole machine if the user has the permission, else for the user
// only. Can be repeated to repair a registration.
HRESULT registerServer();
// The same, but always for the user only.
HRESULT registerServerForUser();
// Removes what is registered for the whole machine and for the user, if it names this server's file or a file
// that is gone. What another installation has registered stays. A missing registration is not an error. Fails
// if something remains that should be removed, for example if the user must not change the registration for
// the whole machine.
HRESULT unregisterServer();
// The same, but only for the user's own registration.
HRESULT unregisterServerForUser();

} // namespace KOVAVSFDataGridLib::ActiveX
