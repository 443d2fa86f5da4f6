#include "ado/connection/OdbcCatalogue.h"

#include "ado/providers/odbc/OdbcApi.h"

#include <algorithm>
#include <array>

namespace ADODB {

namespace {

class Environment
{
public:
    Environment()
    {
        if (succeeded(SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &m_handle)))
            SQLSetEnvAttr(m_handle, SQL_ATTR_ODBC_VERSION, asPointer(SQL_OV_ODBC3), 0);
    }
    ~Environment() { SQLFreeHandle(SQL_HANDLE_ENV, m_handle); }
    Q_DISABLE_COPY_MOVE(Environment)

    SQLHENV get() const { return m_handle; }

private:
    SQLHENV m_handle = SQL_NULL_HANDLE;
};

using List = SQLRETURN(SQL_API *)(SQLHENV, SQLUSMALLINT, SQLWCHAR *, SQLSMALLINT, SQLSMALLINT *, SQLWCHAR *,
                                  SQLSMALLINT, SQLSMALLINT *);

// The driver manager returns both lists in the same form: pairs of a name and its description.
std::vector<OdbcDataSource> entries(List next)
{
    const Environment environment;
    std::array<char16_t, 256> name{};
    std::array<char16_t, 4096>
        about{}; // a driver's attribute list can be long; what is truncated is not needed
    const auto ask = [&](SQLUSMALLINT direction) {
        return succeeded(next(environment.get(), direction, reinterpret_cast<SQLWCHAR *>(name.data()),
                              static_cast<SQLSMALLINT>(name.size()), nullptr,
                              reinterpret_cast<SQLWCHAR *>(about.data()),
                              static_cast<SQLSMALLINT>(about.size()), nullptr));
    };
    std::vector<OdbcDataSource> found;
    for (bool more = ask(SQL_FETCH_FIRST); more; more = ask(SQL_FETCH_NEXT))
        found.push_back({QString::fromUtf16(name.data()), QString::fromUtf16(about.data())});
    std::sort(found.begin(), found.end(), [](const OdbcDataSource &a, const OdbcDataSource &b) {
        return a.name.compare(b.name, Qt::CaseInsensitive) < 0;
    });
    return found;
}

} // namespace

QStringList odbcDrivers()
{
    QStringList names;
    for (const OdbcDataSource &driver : entries(SQLDriversW))
        names += driver.name;
    return names;
}

std::vector<OdbcDataSource> odbcDataSources()
{
    return entries(SQLDataSourcesW);
}

} // namespace ADODB
