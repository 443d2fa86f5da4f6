#include "activex/server/Registration.h"

#include "activex/container/OleObject.h"
#include "activex/server/Guids.h"
#include "activex/server/ModuleUse.h"
#include "activex/server/TypeLibrary.h"

#include <array>
#include <filesystem>
#include <olectl.h>
#include <string>
#include <vector>

// mingw-w64 has it in the import library, but not in its headers.
extern "C" {
HRESULT WINAPI RegisterTypeLibForUser(ITypeLib *library, OLECHAR *path, OLECHAR *helpFolder);
HRESULT WINAPI UnRegisterTypeLibForUser(REFGUID id, WORD major, WORD minor, LCID locale, SYSKIND kind);
}

namespace KOVAVSFDataGridLib::ActiveX {

namespace {

constexpr wchar_t progId[] = L"KOVAVSFDataGridLib.KOVAVSFDataGrid";
// The component category of all controls that can be placed on a form.
constexpr GUID controlCategory = {
    0x40fc6ed4, 0x2438, 0x11cf, {0xa3, 0xdb, 0x08, 0x00, 0x36, 0xf1, 0x25, 0x02}};
constexpr wchar_t controlName[] = L"KOVAVSFDataGrid";
#ifdef _WIN64
constexpr SYSKIND systemKind = SYS_WIN64;
constexpr wchar_t systemName[] = L"win64";
#else
constexpr SYSKIND systemKind = SYS_WIN32;
constexpr wchar_t systemName[] = L"win32";
#endif

struct Entry
{
    std::wstring key;
    std::wstring name; // empty: the key's own value
    std::wstring value;
};

std::wstring text(REFGUID id)
{
    std::array<wchar_t, 39> braces{};
    StringFromGUID2(id, braces.data(), static_cast<int>(braces.size()));
    return braces.data();
}

std::wstring classKey(REFGUID id)
{
    return L"CLSID\\" + text(id);
}

std::vector<Entry> serverEntries(REFGUID id, const std::wstring &name)
{
    const std::wstring key = classKey(id);
    return {{key, {}, name},
            {key + L"\\InprocServer32", {}, modulePath()},
            {key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"}};
}

std::vector<Entry> entries()
{
    const std::wstring key = classKey(controlId);
    std::vector<Entry> all = serverEntries(controlId, controlName);
    all.insert(all.end(), std::initializer_list<Entry>{
                              {key + L"\\ProgID", {}, progId},
                              {key + L"\\VersionIndependentProgID", {}, progId},
                              {key + L"\\TypeLib", {}, text(libraryId)},
                              {key + L"\\Version", {}, L"1.0"},
                              {key + L"\\Control", {}, {}},
                              {key + L"\\Programmable", {}, {}},
                              {key + L"\\Implemented Categories\\" + text(controlCategory), {}, {}},
                              {key + L"\\MiscStatus", {}, L"0"},
                              {key + L"\\MiscStatus\\1", {}, std::to_wstring(OleObject::miscStatus)},
                              {key + L"\\Verb\\0", {}, L"&Edit,0,2"}, // with MF_… and OLEVERBATTRIB_…
                              {key + L"\\Verb\\1", {}, L"&Properties,0,2"},
                              {key + L"\\ToolboxBitmap32", {}, modulePath() + L",1"},
                              {progId, {}, controlName},
                              {std::wstring(progId) + L"\\CLSID", {}, text(controlId)}});
    for (const PageClass &page : pageClasses) {
        for (Entry &entry : serverEntries(page.id, std::wstring(controlName) + L" " + page.name))
            all.push_back(std::move(entry));
    }
    return all;
}

HRESULT fromError(LSTATUS error)
{
    return error == ERROR_SUCCESS ? S_OK : HRESULT_FROM_WIN32(static_cast<DWORD>(error));
}

class Classes
{
public:
    explicit Classes(HKEY root)
    {
        m_outcome = RegCreateKeyExW(root, L"Software\\Classes", 0, nullptr, 0, KEY_READ | KEY_WRITE, nullptr,
                                    &m_key, nullptr);
    }
    ~Classes()
    {
        if (m_key)
            RegCloseKey(m_key);
    }
    Classes(const Classes &) = delete;
    Classes &operator=(const Classes &) = delete;

    LSTATUS outcome() const { return m_outcome; }

    LSTATUS write(const Entry &entry)
    {
        HKEY key = nullptr;
        const LSTATUS opened =
            RegCreateKeyExW(m_key, entry.key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr);
        if (opened != ERROR_SUCCESS)
            return opened;
        const LSTATUS written =
            RegSetValueExW(key, entry.name.empty() ? nullptr : entry.name.c_str(), 0, REG_SZ,
                           reinterpret_cast<const BYTE *>(entry.value.c_str()),
                           static_cast<DWORD>((entry.value.size() + 1) * sizeof(wchar_t)));
        RegCloseKey(key);
        return written;
    }

private:
    HKEY m_key = nullptr;
    LSTATUS m_outcome = ERROR_SUCCESS;
};

HRESULT writeEntries(HKEY root)
{
    Classes classes(root);
    LSTATUS outcome = classes.outcome();
    for (const Entry &entry : entries()) {
        if (outcome == ERROR_SUCCESS)
            outcome = classes.write(entry);
    }
    return fromError(outcome);
}

std::wstring classesKey(const std::wstring &key)
{
    return L"Software\\Classes\\" + key;
}

// A missing key is not an error, even if the user must not write there.
LSTATUS removeKey(HKEY root, const std::wstring &key)
{
    const std::wstring path = classesKey(key);
    HKEY found = nullptr;
    const LSTATUS opened = RegOpenKeyExW(root, path.c_str(), 0, KEY_READ, &found);
    if (opened == ERROR_FILE_NOT_FOUND)
        return ERROR_SUCCESS;
    if (opened != ERROR_SUCCESS)
        return opened;
    RegCloseKey(found);
    return RegDeleteTreeW(root, path.c_str());
}

// Whether the key's own value names the file of another installation. `view` is 0 or one of RRF_SUBKEY_….
bool isOthers(HKEY root, const std::wstring &key, DWORD view = 0)
{
    std::array<wchar_t, 32768> path{};
    DWORD size = sizeof path;
    if (RegGetValueW(root, key.c_str(), nullptr, RRF_RT_REG_SZ | view, nullptr, path.data(), &size) !=
        ERROR_SUCCESS)
        return false;
    // A file that can't be looked at is not gone.
    const std::filesystem::path named(path.data());
    std::error_code error;
    return std::filesystem::status(named, error).type() != std::filesystem::file_type::not_found &&
           !std::filesystem::equivalent(named, modulePath(), error);
}

bool isOthersClass(HKEY root, REFGUID id, DWORD view = 0)
{
    return isOthers(root, classesKey(classKey(id) + L"\\InprocServer32"), view);
}

// Removes as much as possible, and returns the first error.
HRESULT unregisterAt(HKEY root, bool forUser)
{
    std::vector<std::wstring> keys;
    // Servers for 32 and 64 bits have the name in common, but not the classes.
    if (!isOthersClass(root, controlId, RRF_SUBKEY_WOW6432KEY) &&
        !isOthersClass(root, controlId, RRF_SUBKEY_WOW6464KEY))
        keys.push_back(progId);
    std::vector<GUID> classes{controlId};
    for (const PageClass &page : pageClasses)
        classes.push_back(page.id);
    for (const GUID &id : classes) {
        if (!isOthersClass(root, id))
            keys.push_back(classKey(id));
    }

    const std::wstring library = L"TypeLib\\" + text(libraryId) + L"\\1.0\\0\\" + systemName;
    // For a user, where programs see his own library first: Wine has no place for a library of one user, and
    // registers it for everybody.
    const bool staysLibrary =
        forUser ? isOthers(HKEY_CLASSES_ROOT, library) : isOthers(root, classesKey(library));
    if (!staysLibrary) {
        // Also removes the interfaces that the library declares; what remains is removed with the keys.
        if (forUser)
            UnRegisterTypeLibForUser(libraryId, 1, 0, LOCALE_NEUTRAL, systemKind);
        else
            UnRegisterTypeLib(libraryId, 1, 0, LOCALE_NEUTRAL, systemKind);
        keys.push_back(library);
    }

    LSTATUS outcome = ERROR_SUCCESS;
    for (const std::wstring &key : keys) {
        const LSTATUS removed = removeKey(root, key);
        if (outcome == ERROR_SUCCESS)
            outcome = removed;
    }
    return fromError(outcome);
}

HRESULT registerAt(HKEY root, bool forUser)
{
    HRESULT outcome = writeEntries(root);
    if (FAILED(outcome))
        return outcome;
    Microsoft::WRL::ComPtr<ITypeLib> library;
    outcome = loadTypeLibrary(&library);
    if (FAILED(outcome))
        return outcome;
    std::wstring path = modulePath();
    return forUser ? RegisterTypeLibForUser(library.Get(), path.data(), nullptr)
                   : RegisterTypeLib(library.Get(), path.data(), nullptr);
}

} // namespace

HRESULT registerServer()
{
    const HRESULT everybody = registerAt(HKEY_LOCAL_MACHINE, false);
    return everybody == HRESULT_FROM_WIN32(ERROR_ACCESS_DENIED) ? registerServerForUser() : everybody;
}

HRESULT registerServerForUser()
{
    return registerAt(HKEY_CURRENT_USER, true);
}

HRESULT unregisterServer()
{
    const HRESULT user = unregisterServerForUser();
    const HRESULT everybody = unregisterAt(HKEY_LOCAL_MACHINE, false);
    return FAILED(user) ? user : everybody;
}

HRESULT unregisterServerForUser()
{
    return unregisterAt(HKEY_CURRENT_USER, true);
}

} // namespace KOVAVSFDataGridLib::ActiveX
