#pragma once

#include "../KovaExport.h"

#include <QtCore/QString>

namespace ADODB {

class ConnectionString;

// A server between this program and its database (a connection pool, a gateway) to which connections are made
// instead. Either a server or a complete connection string; if both are given, the string is used.
struct KOVA_EXPORT MiddleTier
{
    QString server;     // host name or address
    QString port;       // empty: the one in the connection string stays
    QString connection; // `Keyword=value;…`

    // The connection string that connects to `database` through this tier. `connection` replaces the whole
    // string, and takes the user and password from it unless it has its own. `server` and `port` replace
    // those in the string. A string without a server (for a file) stays unchanged, and so does any string if
    // this tier is empty. Throws 3001 if `connection` is malformed.
    ConnectionString rewritten(const ConnectionString &database) const;
};

} // namespace ADODB
