#pragma once

#include "ado/providers/sqlite/SqliteSession.h"
#include "ado/values/RawValue.h"

namespace ADODB {

// A statement of the provider's own with its parameters, which are bound from left to right. What is bound
// must live until the call has been run.
class SqliteCall
{
public:
    // Writes is for what changes the database, which only a transaction of a row writer may do.
    enum Purpose { Reads, Writes };

    SqliteCall(const SqliteSession &session, Purpose purpose, const QString &sql);

    void bind(const RawValue &value);
    // One of Null, qlonglong, double, QString, QByteArray.
    void bind(const QVariant &value);
    // Runs it up to its next row; false when there is none.
    bool step();
    sqlite3_stmt *handle() const { return m_statement.get(); }

private:
    void check(int code) const;

    const SqliteSession &m_session;
    Purpose m_purpose;
    SqliteHandle m_statement;
    int m_bound = 0;
};

} // namespace ADODB
