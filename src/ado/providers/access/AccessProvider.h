#pragma once

#include "ado/providers/Provider.h"

namespace ADODB {

// `Provider=Microsoft.Jet.OLEDB.4.0;Data Source=file.mdb`, the same with `Microsoft.ACE.OLEDB.12.0` (or a
// later one), or a bare `Data Source=` that ends in .mdb or .accdb, and `Jet OLEDB:Database Password=` for a
// file that asks for one. What else the string says is not needed to read a file and is passed over.
class AccessProvider : public Provider
{
public:
    QString name() const override;
    bool claims(const ConnectionString &connection) const override;
    std::shared_ptr<Session> open(const ConnectionString &connection) const override;
    std::optional<FileChoice> fileChoice() const override;
};

} // namespace ADODB
