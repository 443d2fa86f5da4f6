#pragma once

#include "ado/ConnectionString.h"

#include <QtCore/QStringList>
#include <QtCore/QSysInfo>

#include <functional>

namespace ADODB {

// Translates a connection string for an OLE DB provider to the keywords of the best of the `installed` ODBC
// drivers, and names that driver in it. `installed` is called once, and only if a driver must be chosen: the
// driver manager is slow. Time limits keep ADO's keywords. A string without such a provider is returned
// unchanged; with MSDASQL, which uses ODBC's keywords anyway, only OLE DB's own keywords are removed.
//
// If several keywords mean the same (`Server` and `Data Source`), the
// last value is used. `Extended Properties` adds keywords that the string
// itself does not have. Unknown keywords are passed to the driver.
//
// Throws 3706 if no driver is installed, naming the one to install for a program with this many `bits`; 3001
// if a value is invalid; 3251 for something that no driver supports. No message contains a value.
ConnectionString inOdbcWords(const ConnectionString &connection,
                             const std::function<QStringList()> &installed, int bits = QSysInfo::WordSize);

} // namespace ADODB
