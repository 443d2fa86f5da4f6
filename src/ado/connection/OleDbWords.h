#pragma once

#include "ado/ConnectionString.h"

#include <QtCore/QStringList>
#include <QtCore/QSysInfo>

#include <functional>

namespace ADODB {

// A connection string for an OLE DB provider in the words of the best of the `installed` ODBC drivers, which
// it then names itself. They are asked for once, and only where a driver must be chosen: the driver manager
// takes its time. The time limits keep ADO's words. A string that names no such provider comes back as
// it is; with MSDASQL, which takes ODBC's words anyway, it loses only what is OLE DB's own.
//
// Of several values for one thing the last one holds, whatever name it goes by (`Server` or `Data Source`).
// `Extended Properties` adds what the string itself does not say. Keywords that are not known go to the
// driver.
//
// Throws 3706 when no driver is installed, naming what to install for a program of so many `bits`; 3001 for a
// value that can't be understood; 3251 for what no driver does. No message contains a value.
ConnectionString inOdbcWords(const ConnectionString &connection,
                             const std::function<QStringList()> &installed, int bits = QSysInfo::WordSize);

} // namespace ADODB
