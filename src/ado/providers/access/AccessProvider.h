#pragma once

#include "ado/providers/Provider.h"

namespace ADODB {

// `Provider=Microsoft.Jet.OLEDB.4.0;Data Source=file.mdb`, the same with `Microsoft.ACE.OLEDB.12.0` (or
// later), or only a `Data Source=` that ends in .mdb or .accdb; `Jet OLEDB:Database Password=` for a file
// with a password. All other keywords are ignored, because reading a file does not need them.
class AccessProvider : public Provider
{
public:
    QString name() const override;
    bool claims(const ConnectionString &connection) const override;
    std::shared_ptr<Session> open(const ConnectionString &connection) const override;
    std::optional<FileChoice> fileChoice() const override;
};

} // namespace ADODB
