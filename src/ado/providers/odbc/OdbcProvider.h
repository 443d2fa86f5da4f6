#pragma once

#include "ado/providers/Provider.h"

namespace ADODB {

// `Driver={…};Server=…` or `DSN=…`, also with `Provider=MSDASQL` in front; `Data Source=` then is the DSN, or
// the server where a driver is named. ADO's `User ID`, `Password` and `Initial Catalog` are understood,
// `Connect Timeout` and `Command Timeout` count seconds. All else goes to the driver as it is. A string for
// an OLE DB provider of SQL Server or Oracle goes to the best ODBC driver for it, see OleDbWords.h.
class OdbcProvider : public Provider
{
public:
    QString name() const override;
    bool claims(const ConnectionString &connection) const override;
    std::shared_ptr<Session> open(const ConnectionString &connection) const override;
};

} // namespace ADODB
