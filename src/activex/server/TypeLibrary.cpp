#include "activex/server/TypeLibrary.h"

#include "activex/server/ModuleUse.h"

#include <array>

namespace KOVAVSFDataGridLib::ActiveX {

std::wstring modulePath()
{
    std::array<wchar_t, 32768> path{};
    const DWORD length = GetModuleFileNameW(moduleInstance, path.data(), static_cast<DWORD>(path.size()));
    return std::wstring(path.data(), length);
}

HRESULT loadTypeLibrary(ITypeLib **library)
{
    return LoadTypeLibEx(modulePath().c_str(), REGKIND_NONE, library);
}

Microsoft::WRL::ComPtr<ITypeInfo> typeInfo(REFGUID type)
{
    Microsoft::WRL::ComPtr<ITypeLib> library;
    Microsoft::WRL::ComPtr<ITypeInfo> info;
    if (SUCCEEDED(loadTypeLibrary(&library)))
        library->GetTypeInfoOfGuid(type, &info);
    return info;
}

} // namespace KOVAVSFDataGridLib::ActiveX
