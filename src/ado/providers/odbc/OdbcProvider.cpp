#include "ado/providers/odbc/OdbcProvider.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/connection/OdbcCatalogue.h"
#include "ado/connection/OleDbDrivers.h"
#include "ado/connection/OleDbWords.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/OdbcLogin.h"
#include "ado/providers/odbc/OdbcSession.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

namespace {

std::shared_ptr<OdbcConnection> connect(const OdbcLogin &login)
{
    auto connection = std::make_shared<OdbcConnection>();
    try {
        connection->connect(login.text(), login.connectTimeout(), login.secrets());
    } catch (const Error &error) {
        if (error.SQLState() != "IM002"_L1)
            throw;
        // The driver manager's own words are of no help to anybody who reads no English.
        QStringList names;
        for (const OdbcDataSource &source : odbcDataSources())
            names += source.name;
        throw Error(dbErrFailed,
                    Texts::noOdbcSource().arg(login.dataSource(),
                                              names.isEmpty() ? Texts::noneInstalled() : names.join(u"、"_s)),
                    error.Source(), error.SQLState(), error.NativeError());
    }
    return connection;
}

} // namespace

QString OdbcProvider::name() const
{
    return u"MSDASQL"_s;
}

bool OdbcProvider::claims(const ConnectionString &connection) const
{
    const QString provider = connection.value(u"Provider"_s);
    if (!provider.isEmpty()) {
        const auto kind = oleDbKind(provider);
        return kind && *kind != OleDbKind::Access;
    }
    return connection.contains(u"Driver"_s) || connection.contains(u"DSN"_s) ||
           connection.contains(u"FILEDSN"_s);
}

std::shared_ptr<Session> OdbcProvider::open(const ConnectionString &connection) const
{
    OdbcLogin login(inOdbcWords(connection, odbcDrivers()));
    login.addDefaults(login.likelyEngine());
    auto opened = connect(login);
    const OdbcEngine engine = OdbcEngine::of(*opened);
    // A driver can go by any name, so this one may be known only now.
    if (login.addDefaults(engine.kind)) {
        opened.reset();
        opened = connect(login);
    }
    return std::make_shared<OdbcSession>(std::move(opened), engine, login.commandTimeout());
}

} // namespace ADODB
