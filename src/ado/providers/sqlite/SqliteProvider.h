#pragma once

#include "ado/providers/Provider.h"

namespace ADODB {

// `Provider=SQLite;Data Source=file` (also `:memory:`), or a bare `Data Source=` that no other provider's
// file ending claims. `Connect Timeout=` is how many seconds to wait for a locked file, 2 unless given.
class SqliteProvider : public Provider
{
public:
    QString name() const override;
    bool claims(const ConnectionString &connection) const override;
    std::shared_ptr<Session> open(const ConnectionString &connection) const override;
    std::optional<FileChoice> fileChoice() const override;
};

} // namespace ADODB
