#pragma once

#include "ado/providers/sqlite/SqliteSession.h"
#include "ado/values/RawValue.h"

namespace ADODB {

// An internal statement of the provider and its parameters, bound from left to right. Bound values must live
// until the call has run.
class SqliteCall
{
public:
    // Writes: changes the database. Only a row writer's transaction may do that.
    enum Purpose { Reads, Writes };

    SqliteCall(const SqliteSession &session, Purpose purpose, const QString &sql);

    void bind(const RawValue &value);
    // Accepts Null, qlonglong, double, QString and QByteArray.
    void bind(const QVariant &value);
    // Runs it up to the next row. Returns false if there is none.
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
