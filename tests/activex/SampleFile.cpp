#include "SampleFile.h"

#include <array>
#include <sqlite3.h>
#include <stdexcept>
#include <windows.h>

std::wstring sampleConnection()
{
    std::array<wchar_t, MAX_PATH> folder{};
    GetTempPathW(static_cast<DWORD>(folder.size()), folder.data());
    const std::wstring file = std::wstring(folder.data()) + L"人员.db";
    DeleteFileW(file.c_str());
    sqlite3 *database = nullptr;
    const char *const script =
        "create table people (id integer primary key, name varchar(20), born date, big bigint, "
        "photo blob, met timestamp);"
        "insert into people values (1, '张三', '1980-05-17', 5000000000, x'010203', null);"
        "insert into people values (2, 'O''Brien', '1899-12-31', 7, null, null);"
        "insert into people values (3, '李四', null, null, null, null);";
    if (sqlite3_open16(file.c_str(), &database) != SQLITE_OK ||
        sqlite3_exec(database, script, nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(database));
    sqlite3_close(database);
    return L"Provider=SQLite;Data Source=" + file;
}
