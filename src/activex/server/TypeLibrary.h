#pragma once

#include <oaidl.h>
#include <string>
#include <wrl/client.h>

namespace KOVAVSFDataGridLib::ActiveX {

// The full path of this server's own file.
std::wstring modulePath();

// The type library, which is a resource of that file.
HRESULT loadTypeLibrary(ITypeLib **library);

// One type in it. Null when it cannot be read.
Microsoft::WRL::ComPtr<ITypeInfo> typeInfo(REFGUID type);

} // namespace KOVAVSFDataGridLib::ActiveX
