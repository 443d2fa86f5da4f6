#include "ado/providers/jet/JetProvider.h"

#include "ado/ConnectionString.h"
#include "ado/providers/AccessFiles.h"
#include "ado/providers/DatabaseFile.h"
#include "ado/providers/odbc/OdbcProvider.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

QString JetProvider::name() const
{
    return accessProviderName();
}

bool JetProvider::claims(const ConnectionString &connection) const
{
    return isForAccess(connection);
}

std::shared_ptr<Session> JetProvider::open(const ConnectionString &connection) const
{
    // The driver has no clear message for a missing file.
    if (const QString source = connection.value(u"Data Source"_s); !source.isEmpty())
        DatabaseFile(source, 0);
    return OdbcProvider().open(connection);
}

std::optional<FileChoice> JetProvider::fileChoice() const
{
    return accessFileChoice();
}

} // namespace ADODB
