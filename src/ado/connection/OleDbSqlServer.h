#pragma once

#include "ado/connection/OleDbDrivers.h"

namespace ADODB {

class ConnectionString;

// Converts the values in a connection string to those of the driver. `provider` is the provider it was
// written for; each has its own defaults. A driver without a name is that of a data source.
void finishSqlServer(ConnectionString &words, const OdbcDriver &driver, const QString &provider);

} // namespace ADODB
