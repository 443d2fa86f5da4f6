#pragma once

#include "ado/providers/odbc/OdbcApi.h"

#include <QtCore/QStringList>

namespace ADODB {

class OdbcConnection;

enum class OdbcWork { Connecting, Other };

// Throws the Error for a call that did not succeed on a handle of `connection`, with the driver's own words
// in it; no secret of the connection is. A connection that broke is marked as lost.
[[noreturn]] void throwOdbcError(SQLSMALLINT handleType, SQLHANDLE handle, OdbcConnection &connection,
                                 OdbcWork work = OdbcWork::Other);

// `text` with every secret in it blotted out.
QString withoutSecrets(QString text, const QStringList &secrets);

} // namespace ADODB
