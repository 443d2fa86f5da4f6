#pragma once

#include "ado/providers/Provider.h"

namespace ADODB {

// Access files through Access's own ODBC driver, if installed. Accepts AccessProvider's connection strings;
// `Mode=Read`, `Mode=Share Exclusive`, `Jet OLEDB:System database`, user and password go to the driver too.
class JetProvider : public Provider
{
public:
    QString name() const override;
    bool claims(const ConnectionString &connection) const override;
    std::shared_ptr<Session> open(const ConnectionString &connection) const override;
    std::optional<FileChoice> fileChoice() const override;
};

} // namespace ADODB
