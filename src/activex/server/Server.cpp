#include "activex/server/ClassFactory.h"
#include "activex/server/ModuleUse.h"
#include "activex/server/QtRuntime.h"
#include "activex/server/Registration.h"

#include <cwchar>
#include <new>
#include <olectl.h>

// The functions that COM calls; exported in KOVAVSFDataGridLib.def.

using namespace KOVAVSFDataGridLib::ActiveX;

extern "C" {

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID)
{
    if (reason == DLL_PROCESS_ATTACH) {
        moduleInstance = instance;
        DisableThreadLibraryCalls(instance);
    }
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID id, REFIID iid, void **object)
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    const ClassFactory::Create create = ClassFactory::creatorOf(id);
    if (!create)
        return CLASS_E_CLASSNOTAVAILABLE;
    auto *factory = new (std::nothrow) ClassFactory(create);
    if (!factory)
        return E_OUTOFMEMORY;
    const HRESULT offered = factory->QueryInterface(iid, object);
    factory->Release();
    return offered;
}

STDAPI DllCanUnloadNow()
{
    // Qt can't be unloaded from a running process. Once it was started, the server stays, even without any
    // object.
    return ModuleUse::count() == 0 && !wasQtStarted() ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer()
{
    return registerServer();
}

STDAPI DllUnregisterServer()
{
    return unregisterServer();
}

// `regsvr32 /n /i:user` registers for the user only, and with /u removes that.
STDAPI DllInstall(BOOL install, PCWSTR command)
{
    const bool forUser = command && std::wcscmp(command, L"user") == 0;
    if (install)
        return forUser ? registerServerForUser() : registerServer();
    return forUser ? unregisterServerForUser() : unregisterServer();
}

} // extern "C"
