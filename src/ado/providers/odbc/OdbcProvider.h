#pragma once

#include "ado/providers/Provider.h"

namespace ADODB {

// `Driver={…};Server=…` or `DSN=…`, optionally with `Provider=MSDASQL`. `Data Source=` is then the DSN, or
// the server if a driver is named. ADO's `User ID`, `Password` and `Initial Catalog` are accepted; `Connect
// Timeout` and `Command Timeout` are in seconds. All other keywords are passed to the driver unchanged. A
// string for an OLE DB provider of SQL Server or Oracle uses the best ODBC driver for it, see OleDbWords.h.
class OdbcProvider : public Provider
{
public:
    QString name() const override;
    bool claims(const ConnectionString &connection) const override;
    std::shared_ptr<Session> open(const ConnectionString &connection) const override;
};

} // namespace ADODB
