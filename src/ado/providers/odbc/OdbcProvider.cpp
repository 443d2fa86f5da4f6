#include "ado/providers/odbc/OdbcProvider.h"

#include "ado/ConnectionString.h"
#include "ado/connection/OdbcCatalogue.h"
#include "ado/connection/OleDbDrivers.h"
#include "ado/connection/OleDbWords.h"
#include "ado/connection/Waiting.h"
#include "ado/providers/odbc/OdbcLogin.h"
#include "ado/providers/odbc/OdbcPool.h"
#include "ado/providers/odbc/OdbcSession.h"
#include "ado/providers/odbc/waiting/OdbcOperation.h"

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

QString OdbcProvider::name() const
{
    return u"MSDASQL"_s;
}

bool OdbcProvider::claims(const ConnectionString &connection) const
{
    return leadsToOdbc(connection);
}

std::shared_ptr<Session> OdbcProvider::open(const ConnectionString &connection) const
{
    OdbcLogin login(inOdbcWords(connection, odbcDrivers));
    const int commandTimeout = login.commandTimeout();
    const auto pool = std::make_shared<std::shared_ptr<OdbcPool>>();
    Watched watched;
    OdbcOperation::run([login = std::move(login), pool] { *pool = OdbcPool::open(login); },
                       {[&](qint64) { return watched.shouldContinue(); }});
    return std::make_shared<OdbcSession>(std::move(*pool), commandTimeout);
}

} // namespace ADODB
