#pragma once

#include "ado/connection/OleDbDrivers.h"

namespace ADODB {

class ConnectionString;

// Gives the words of a connection string the values that the driver takes. `provider` is the one it was
// written for; each has defaults of its own. A driver without a name is the one of a data source.
void finishSqlServer(ConnectionString &words, const OdbcDriver &driver, const QString &provider);

} // namespace ADODB
