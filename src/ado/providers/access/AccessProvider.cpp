#include "ado/providers/access/AccessProvider.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/AccessFiles.h"
#include "ado/providers/access/AccessSession.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

QString AccessProvider::name() const
{
    return accessProviderName();
}

bool AccessProvider::claims(const ConnectionString &connection) const
{
    return isForAccess(connection);
}

std::shared_ptr<Session> AccessProvider::open(const ConnectionString &connection) const
{
    const QString source = connection.value(u"Data Source"_s);
    if (source.isEmpty())
        throw Error(adErrInvalidArgument, Texts::noDataSource());
    return std::make_shared<AccessSession>(source, connection.value(accessPasswordKeyword()));
}

std::optional<FileChoice> AccessProvider::fileChoice() const
{
    return accessFileChoice();
}

} // namespace ADODB
