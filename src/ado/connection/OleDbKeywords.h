#pragma once

#include "ado/connection/OleDbDrivers.h"

namespace ADODB {

class ConnectionString;

// ODBC's word for an OLE DB provider's keyword; empty where ODBC has none or needs none. A keyword that is
// not known is returned as it is: it may be the driver's own. Keywords that need more than another name keep
// one that the functions which finish a connection string know.
QString odbcWord(OleDbKind kind, const QString &keyword);

// A value that is yes or no in any of the ways to write it; nothing when the keyword is not there or empty.
// Throws 3001 for anything else.
std::optional<bool> booleanValue(const ConnectionString &words, const QString &keyword);

// Removes a keyword and returns its value.
QString extractValue(ConnectionString &words, const QString &keyword);

} // namespace ADODB
