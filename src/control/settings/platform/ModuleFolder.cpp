#include "control/settings/platform/ModuleFolder.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#if defined(Q_OS_WIN)
#include <array>
#include <windows.h>
#else
#include <dlfcn.h>
#endif

namespace KOVAVSFDataGridLib {

namespace {

// Any object of this library can be used to find out which file it is in.
const char anchor = 0;

QString moduleFile()
{
#if defined(Q_OS_WIN)
    HMODULE module = nullptr;
    std::array<wchar_t, 32768> name{};
    if (GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                               GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                           reinterpret_cast<LPCWSTR>(&anchor), &module) &&
        GetModuleFileNameW(module, name.data(), static_cast<DWORD>(name.size())))
        return QString::fromWCharArray(name.data());
#else
    Dl_info info{};
    if (dladdr(&anchor, &info) && info.dli_fname)
        return QFile::decodeName(info.dli_fname);
#endif
    return QCoreApplication::applicationFilePath();
}

} // namespace

QString moduleFolder()
{
    return QFileInfo(moduleFile()).absolutePath();
}

} // namespace KOVAVSFDataGridLib
