#pragma once

#include "ado/providers/odbc/OdbcApi.h"

#include <QtCore/QStringList>

namespace ADODB {

class OdbcConnection;

enum class OdbcWork { Connecting, Other };

// Throws the Error for a failed call on a handle of `connection`. The description contains the driver's
// message, but none of the connection's secrets. Marks the connection as lost if it broke.
[[noreturn]] void throwOdbcError(SQLSMALLINT handleType, SQLHANDLE handle, OdbcConnection &connection,
                                 OdbcWork work = OdbcWork::Other);

// `text` with every secret in it masked.
QString withoutSecrets(QString text, const QStringList &secrets);

} // namespace ADODB
