#pragma once

#include "ado/connection/OleDbDrivers.h"

namespace ADODB {

class ConnectionString;

// The ODBC keyword for an OLE DB provider's keyword; empty if ODBC has or needs none. An unknown keyword is
// returned unchanged, because it may be the driver's own. A keyword that needs more than another name is
// mapped to one that the finish… functions handle.
QString odbcWord(OleDbKind kind, const QString &keyword);

// The value of a Boolean keyword in any accepted spelling; empty if the keyword is missing or has no value.
// Throws 3001 for anything else.
std::optional<bool> booleanValue(const ConnectionString &words, const QString &keyword);

// Removes a keyword and returns its value.
QString extractValue(ConnectionString &words, const QString &keyword);

} // namespace ADODB
