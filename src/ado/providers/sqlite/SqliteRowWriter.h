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
    bool read(const std::vector<RawValue> &row, RowStore &now) override;

private:
    const QString &nameOf(int column) const;
    QString keyCondition(const QString &prefix) const;
    void bindKey(SqliteCall &call, const std::vector<RawValue> &row,
                 const std::vector<Change> &changes) const;
    // Reads all rows with the key of `row` after these changes; there can be only one.
    void readRow(const std::vector<RawValue> &row, const std::vector<Change> &changes, RowStore &found) const;
    // Throws unless the row exists and is unchanged since it was shown.
    void needRowAsShown(const std::vector<RawValue> &row) const;

    std::shared_ptr<SqliteSession> m_session;
    SqliteTarget m_target;
};

} // namespace ADODB
