#include <array>
#include <gtest/gtest.h>
#include <objbase.h>
#include <sddl.h>
#include <string>
#include <vector>

// The exported functions of the server file. These tests need a process without any control so far
// (packaging/windows/test starts them so), because Qt is never unloaded.

namespace {

constexpr wchar_t progId[] = L"KOVAVSFDataGridLib.KOVAVSFDataGrid";

// The own value of a key below Software\Classes. No key has an empty one here.
std::wstring registered(HKEY root, const std::wstring &key)
{
    std::array<wchar_t, MAX_PATH> value{};
    DWORD size = sizeof value;
    RegGetValueW(root, (L"Software\\Classes\\" + key).c_str(), nullptr, RRF_RT_REG_SZ, nullptr, value.data(),
                 &size);
    return value.data();
}

void put(HKEY root, const std::wstring &key, const std::wstring &value, REGSAM view = 0)
{
    HKEY opened = nullptr;
    ASSERT_EQ(RegCreateKeyExW(root, (L"Software\\Classes\\" + key).c_str(), 0, nullptr, 0, KEY_WRITE | view,
                              nullptr, &opened, nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(RegSetValueExW(opened, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE *>(value.c_str()),
                             static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t))),
              ERROR_SUCCESS);
    RegCloseKey(opened);
}

bool hasProgId(HKEY root)
{
    return !registered(root, std::wstring(progId) + L"\\CLSID").empty();
}

std::wstring pathOf(HMODULE module)
{
    std::array<wchar_t, MAX_PATH> path{};
    GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()));
    return path.data();
}

class Server : public testing::Test
{
protected:
    Server() : m_module(LoadLibraryExW(L"KOVAVSFDataGridLib.ocx", nullptr, LOAD_WITH_ALTERED_SEARCH_PATH)) {}
    // However a test ends, the control is registered for the others.
    ~Server() override { call("DllRegisterServer"); }

    template<typename... Arguments>
    HRESULT call(const char *name, Arguments... arguments) const
    {
        using Function = HRESULT(STDAPICALLTYPE *)(Arguments...);
        return reinterpret_cast<Function>(reinterpret_cast<void *>(GetProcAddress(m_module, name)))(
            arguments...);
    }
    HMODULE module() const { return m_module; }
    HRESULT canUnload() const { return call("DllCanUnloadNow"); }
    // Registers for everybody and for the user. The keys are those that name the server's file.
    void registerTwice()
    {
        ASSERT_EQ(call("DllRegisterServer"), S_OK);
        ASSERT_EQ(call("DllInstall", BOOL{TRUE}, L"user"), S_OK);
        const std::wstring control =
            L"CLSID\\" + registered(HKEY_LOCAL_MACHINE, std::wstring(progId) + L"\\CLSID");
        serverKey = control + L"\\InprocServer32";
        libraryKey = L"TypeLib\\" + registered(HKEY_LOCAL_MACHINE, control + L"\\TypeLib") +
                     (sizeof(void *) == 8 ? L"\\1.0\\0\\win64" : L"\\1.0\\0\\win32");
    }
    std::wstring serverKey;
    std::wstring libraryKey;

private:
    HMODULE m_module;
};

// While this exists, only administrators can write machine-wide registrations, as on Windows; Wine allows it
// to everybody.
class ProtectedClasses
{
public:
    ProtectedClasses()
    {
        RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"Software\\Classes", 0, KEY_ALL_ACCESS, &m_key);
        DWORD size = 0;
        RegGetKeySecurity(m_key, DACL_SECURITY_INFORMATION, nullptr, &size);
        m_before.resize(size);
        EXPECT_EQ(RegGetKeySecurity(m_key, DACL_SECURITY_INFORMATION, m_before.data(), &size), ERROR_SUCCESS);
        PSECURITY_DESCRIPTOR rights = nullptr;
        EXPECT_TRUE(ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:(A;;KR;;;WD)(A;;KA;;;BA)",
                                                                         SDDL_REVISION_1, &rights, nullptr));
        EXPECT_EQ(RegSetKeySecurity(m_key, DACL_SECURITY_INFORMATION, rights), ERROR_SUCCESS);
        LocalFree(rights);
    }
    ~ProtectedClasses()
    {
        RegSetKeySecurity(m_key, DACL_SECURITY_INFORMATION, m_before.data());
        RegCloseKey(m_key);
    }
    ProtectedClasses(const ProtectedClasses &) = delete;
    ProtectedClasses &operator=(const ProtectedClasses &) = delete;

private:
    HKEY m_key = nullptr;
    std::vector<char> m_before;
};

// While this exists, the thread runs as a user who is not an administrator.
class WithoutRights
{
public:
    WithoutRights()
    {
        HANDLE own = nullptr;
        HANDLE limited = nullptr;
        std::array<char, SECURITY_MAX_SID_SIZE> administrators{};
        DWORD size = static_cast<DWORD>(administrators.size());
        CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, administrators.data(), &size);
        SID_AND_ATTRIBUTES disabled{administrators.data(), 0};
        EXPECT_TRUE(OpenProcessToken(GetCurrentProcess(), TOKEN_ALL_ACCESS, &own));
        EXPECT_TRUE(CreateRestrictedToken(own, DISABLE_MAX_PRIVILEGE, 1, &disabled, 0, nullptr, 0, nullptr,
                                          &limited));
        EXPECT_TRUE(ImpersonateLoggedOnUser(limited));
        CloseHandle(limited);
        CloseHandle(own);
    }
    ~WithoutRights() { RevertToSelf(); }
    WithoutRights(const WithoutRights &) = delete;
    WithoutRights &operator=(const WithoutRights &) = delete;
};

TEST_F(Server, CanBeUnloadedOnlyWhileNothingIsInUse)
{
    WNDCLASSW known{};
    if (GetClassInfoW(module(), L"KovaQtHome", &known))
        GTEST_SKIP() << "Qt runs in this process already";
    CLSID id{};
    ASSERT_EQ(CLSIDFromProgID(progId, &id), S_OK);
    EXPECT_EQ(canUnload(), S_OK);
    IClassFactory *factory = nullptr;
    ASSERT_EQ(call("DllGetClassObject", &id, &IID_IClassFactory, &factory), S_OK);
    EXPECT_EQ(canUnload(), S_FALSE);
    factory->LockServer(TRUE);
    EXPECT_EQ(factory->Release(), 0u);
    EXPECT_EQ(canUnload(), S_FALSE);
}

TEST_F(Server, HasAPictureForToolBoxes)
{
    const HBITMAP picture = LoadBitmapW(module(), MAKEINTRESOURCEW(1));
    BITMAP description{};
    ASSERT_NE(GetObjectW(picture, sizeof description, &description), 0);
    EXPECT_EQ(description.bmWidth, 16);
    EXPECT_EQ(description.bmHeight, 16);
    DeleteObject(picture);
}

TEST_F(Server, IsRegisteredForTheUserAloneOnRequest)
{
    ASSERT_EQ(call("DllUnregisterServer"), S_OK);
    EXPECT_FALSE(hasProgId(HKEY_LOCAL_MACHINE));
    ASSERT_EQ(call("DllInstall", BOOL{TRUE}, L"user"), S_OK);
    EXPECT_TRUE(hasProgId(HKEY_CURRENT_USER));
    EXPECT_FALSE(hasProgId(HKEY_LOCAL_MACHINE));
    ASSERT_EQ(call("DllUnregisterServer"), S_OK);
    EXPECT_FALSE(hasProgId(HKEY_CURRENT_USER));
}

TEST_F(Server, IsRegisteredForTheUserAloneWithoutRights)
{
    ASSERT_EQ(call("DllUnregisterServer"), S_OK);
    {
        const ProtectedClasses classes;
        const WithoutRights limited;
        call("DllRegisterServer");
    }
    EXPECT_TRUE(hasProgId(HKEY_CURRENT_USER));
    EXPECT_FALSE(hasProgId(HKEY_LOCAL_MACHINE));
    ASSERT_EQ(call("DllUnregisterServer"), S_OK);
    EXPECT_FALSE(hasProgId(HKEY_CURRENT_USER));
}

TEST_F(Server, UnregisteringLeavesWhatAnotherInstallationHasRegistered)
{
    const std::wstring another = pathOf(nullptr); // any other file
    for (const HKEY others : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
        const HKEY own = others == HKEY_LOCAL_MACHINE ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
        registerTwice();
        put(others, serverKey, another);
        ASSERT_EQ(call("DllUnregisterServer"), S_OK);
        EXPECT_TRUE(hasProgId(others));
        EXPECT_EQ(registered(others, serverKey), another);
        EXPECT_FALSE(hasProgId(own));
        EXPECT_EQ(registered(own, serverKey), L"");
        EXPECT_EQ(registered(HKEY_LOCAL_MACHINE, libraryKey), L"") << "it names this server's file";
    }
    registerTwice();
    put(HKEY_LOCAL_MACHINE, libraryKey, another);
    ASSERT_EQ(call("DllUnregisterServer"), S_OK);
    EXPECT_FALSE(hasProgId(HKEY_LOCAL_MACHINE));
    EXPECT_EQ(registered(HKEY_LOCAL_MACHINE, libraryKey), another);
}

TEST_F(Server, UnregisteringRemovesWhatNamesAFileThatIsGoneOrTheServersInCapitals)
{
    std::wstring capitals = pathOf(module());
    CharUpperW(capitals.data());
    ASSERT_NE(capitals, pathOf(module()));
    for (const std::wstring &path : {pathOf(nullptr) + L".gone", capitals}) {
        registerTwice();
        for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE})
            put(root, serverKey, path);
        put(HKEY_LOCAL_MACHINE, libraryKey, path);
        ASSERT_EQ(call("DllUnregisterServer"), S_OK);
        for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE}) {
            EXPECT_FALSE(hasProgId(root));
            EXPECT_EQ(registered(root, serverKey), L"");
        }
        EXPECT_EQ(registered(HKEY_LOCAL_MACHINE, libraryKey), L"");
    }
}

TEST_F(Server, TheNameStaysWithTheServerFor32Bits)
{
    if (sizeof(void *) == 4)
        GTEST_SKIP() << "A 32-bit Windows has no other servers";
    registerTwice();
    put(HKEY_LOCAL_MACHINE, serverKey, pathOf(nullptr), KEY_WOW64_32KEY);
    EXPECT_EQ(call("DllUnregisterServer"), S_OK);
    EXPECT_TRUE(hasProgId(HKEY_LOCAL_MACHINE));
    EXPECT_EQ(registered(HKEY_LOCAL_MACHINE, serverKey), L"");

    put(HKEY_LOCAL_MACHINE, serverKey, pathOf(nullptr) + L".gone", KEY_WOW64_32KEY);
    EXPECT_EQ(call("DllUnregisterServer"), S_OK);
    EXPECT_FALSE(hasProgId(HKEY_LOCAL_MACHINE));
    // The server for 32 bits removes its class by itself.
    RegDeleteKeyExW(HKEY_LOCAL_MACHINE, (L"Software\\Classes\\" + serverKey).c_str(), KEY_WOW64_32KEY, 0);
}

} // namespace
