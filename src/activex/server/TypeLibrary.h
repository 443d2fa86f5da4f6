#pragma once

#include <oaidl.h>
#include <string>
#include <wrl/client.h>

namespace KOVAVSFDataGridLib::ActiveX {

// The full path of this server's module.
std::wstring modulePath();

// Loads the type library, which is a resource of the module.
HRESULT loadTypeLibrary(ITypeLib **library);

// One type of the library. Null if it can't be read.
Microsoft::WRL::ComPtr<ITypeInfo> typeInfo(REFGUID type);

} // namespace KOVAVSFDataGridLib::ActiveX
