#include "ado/providers/access/AccessProvider.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/DatabaseFile.h"
#include "ado/providers/access/AccessSession.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

QString passwordKeyword()
{
    return u"Jet OLEDB:Database Password"_s;
}

} // namespace

QString AccessProvider::name() const
{
    return u"Microsoft.ACE.OLEDB.12.0"_s;
}

bool AccessProvider::claims(const ConnectionString &connection) const
{
    const QString provider = connection.value(u"Provider"_s);
    if (!provider.isEmpty())
        return provider.startsWith("Microsoft.Jet.OLEDB."_L1, Qt::CaseInsensitive) ||
               provider.startsWith("Microsoft.ACE.OLEDB."_L1, Qt::CaseInsensitive);
    return isAccessFileName(connection.value(u"Data Source"_s));
}

std::shared_ptr<Session> AccessProvider::open(const ConnectionString &connection) const
{
    const QString source = connection.value(u"Data Source"_s);
    if (source.isEmpty())
        throw Error(adErrInvalidArgument, Texts::noDataSource());
    return std::make_shared<AccessSession>(source, connection.value(passwordKeyword()));
}

std::optional<FileChoice> AccessProvider::fileChoice() const
{
    return FileChoice{u"Access database file"_s, u"Access databases (*.mdb *.accdb)"_s, passwordKeyword()};
}

} // namespace ADODB
