#include "ado/providers/AccessFiles.h"

#include "ado/ConnectionString.h"
#include "ado/connection/OleDbDrivers.h"
#include "ado/providers/DatabaseFile.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

bool isForAccess(const ConnectionString &connection)
{
    const QString provider = connection.value(u"Provider"_s);
    return provider.isEmpty() ? isAccessFileName(connection.value(u"Data Source"_s))
                              : oleDbKind(provider) == OleDbKind::Access;
}

QString accessProviderName()
{
    return u"Microsoft.ACE.OLEDB.12.0"_s;
}

QString accessPasswordKeyword()
{
    return u"Jet OLEDB:Database Password"_s;
}

FileChoice accessFileChoice()
{
    return {u"Access database file"_s, u"Access databases (*.mdb *.accdb)"_s, accessPasswordKeyword()};
}

} // namespace ADODB
