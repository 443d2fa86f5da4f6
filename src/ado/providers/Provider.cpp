#include "ado/providers/Provider.h"

#include "ado/ConnectionString.h"
#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/odbc/OdbcProvider.h"
#include "ado/providers/sqlite/SqliteProvider.h"
#ifdef KOVA_WITH_LIBMDB
#include "ado/providers/access/AccessProvider.h"
#endif

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

RowWriter::~RowWriter() = default;
Statement::~Statement() = default;
Session::~Session() = default;
Provider::~Provider() = default;

std::shared_ptr<Session> openSession(const ConnectionString &connection)
{
    static const OdbcProvider odbc;
    static const SqliteProvider sqlite;
    // SQLite takes any data source that nobody before it does.
#ifdef KOVA_WITH_LIBMDB
    static const AccessProvider access;
    static const std::array<const Provider *, 3> providers{&access, &odbc, &sqlite};
#else
    static const std::array<const Provider *, 2> providers{&odbc, &sqlite};
#endif

    QStringList names;
    for (const Provider *provider : providers) {
        if (provider->claims(connection))
            return provider->open(connection);
        names += provider->name();
    }
    const QString wanted = connection.value(u"Provider"_s);
    const QString known = names.join(u"、"_s);
    throw Error(adErrProviderNotFound, wanted.isEmpty() ? Texts::noProvider().arg(known)
                                                        : Texts::unknownProvider().arg(wanted, known));
}

} // namespace ADODB
