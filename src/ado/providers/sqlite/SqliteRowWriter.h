#pragma once

#include "ado/providers/Provider.h"
#include "ado/providers/sqlite/SqliteTarget.h"

namespace ADODB {

class SqliteCall;

class SqliteRowWriter : public RowWriter
{
public:
    SqliteRowWriter(std::shared_ptr<SqliteSession> session, SqliteTarget target);

    bool isWritable(int column) const override;
    void insert(const std::vector<Change> &changes, RowStore &stored) override;
    void update(const std::vector<RawValue> &row, const std::vector<Change> &changes,
                RowStore &stored) override;
    void remove(const std::vector<RawValue> &row) override;

private:
    const QString &nameOf(int column) const;
    QString keyCondition(const QString &prefix) const;
    void bindKey(SqliteCall &call, const std::vector<RawValue> &row,
                 const std::vector<Change> &changes) const;
    // The row as it was read, of which the given columns have not changed since.
    QString seenCondition(const std::vector<int> &unchanged) const;
    void bindSeen(SqliteCall &call, const std::vector<RawValue> &row,
                  const std::vector<int> &unchanged) const;
    void readBack(SqliteCall &call, RowStore &stored) const;

    std::shared_ptr<SqliteSession> m_session;
    SqliteTarget m_target;
};

} // namespace ADODB
