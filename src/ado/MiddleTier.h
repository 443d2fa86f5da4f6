#pragma once

#include "../KovaExport.h"

#include <QtCore/QString>

namespace ADODB {

class ConnectionString;

// The server between this program and its database (a connection pool, a gateway) that connections go to
// instead. Either a server, or a whole connection string; the latter counts when both are given.
struct KOVA_EXPORT MiddleTier
{
    QString server;     // host name or address
    QString port;       // empty: the one in the connection string stays
    QString connection; // `Keyword=value;…`

    // The database's connection string as it leads through this tier. A whole connection string replaces it
    // and only takes over user and password where it names none. A server replaces the server, and leaves a
    // string without one (a file's) as it is; so does a tier without any name. Throws 3001 when `connection`
    // is malformed.
    ConnectionString rewritten(const ConnectionString &database) const;
};

} // namespace ADODB
