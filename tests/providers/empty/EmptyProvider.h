#pragma once

#include "ado/providers/Provider.h"

namespace ADODB {

// `Provider=Empty`: one table `numbers` in memory. `Rows=` is how many rows it has, 0 unless given.
class EmptyProvider : public Provider
{
public:
    QString name() const override;
    bool claims(const ConnectionString &connection) const override;
    std::shared_ptr<Session> open(const ConnectionString &connection) const override;
};

} // namespace ADODB
