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

private:
    HMODULE m_module;
};

bool hasProgId(HKEY root)
{
    HKEY key = nullptr;
    const std::wstring name = std::wstring(L"Software\\Classes\\") + progId + L"\\CLSID";
    if (RegOpenKeyExW(root, name.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS)
        return false;
    RegCloseKey(key);
    return true;
}

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

} // namespace
