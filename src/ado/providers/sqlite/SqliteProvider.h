#pragma once

#include "ado/providers/Provider.h"

namespace ADODB {

// `Provider=SQLite;Data Source=file` (or `:memory:`), or only a `Data Source=` whose ending belongs to no
// other provider. `Connect Timeout=` is the number of seconds to wait for a locked file, 2 by default.
class SqliteProvider : public Provider
{
public:
    QString name() const override;
    bool claims(const ConnectionString &connection) const override;
    std::shared_ptr<Session> open(const ConnectionString &connection) const override;
    std::optional<FileChoice> fileChoice() const override;
};

} // namespace ADODB
