#pragma once

#include "ado/providers/odbc/OdbcSession.h"
#include "ado/providers/odbc/reading/OdbcReading.h"

#include <optional>

namespace KOVAVSFDataGridLib {
class SqlScanner;
}

namespace ADODB {

using KOVAVSFDataGridLib::SqlScanner;

class Error;
class OdbcQuery;
class OdbcRowWriter;

// A statement while it lives on a server. All of it may wait for the server.
class OdbcStatement
{
public:
    OdbcStatement(std::shared_ptr<OdbcSession> session, const QString &sql, Access access);
    ~OdbcStatement();
    Q_DISABLE_COPY_MOVE(OdbcStatement)

    const std::vector<FieldInfo> &fields() const { return m_fields; }
    int columns() const { return m_columns; }
    void fetch(RowStore &rows);
    // Ends what the server holds. `isKept`: leaves the transaction to the next statement, if it can; see
    // OdbcReading::keep.
    void release(bool isKept = false);
    std::unique_ptr<OdbcRowWriter> releaseWriter();
    QString whyReadOnly() const { return m_whyReadOnly; }

private:
    void prepare(const SqlScanner &scanner, Access access, int timeout);
    // What the query that was just prepared says about all columns of a table.
    void rememberTable(const SqlScanner &scanner);
    QString prepareLikely(const SqlScanner &scanner, int timeout);
    // `prepared` is the statement that m_query is for, empty when that is the user's.
    void prepareWriter(const SqlScanner &scanner, const QString &prepared, int timeout);
    bool waitForLocks(const Error &error, const QString &sql, int timeout);

    std::shared_ptr<OdbcSession> m_session;
    // Until all has been read; the session can be closed meanwhile.
    std::shared_ptr<OdbcConnection> m_connection;
    std::optional<OdbcReading> m_reading;
    std::unique_ptr<OdbcQuery> m_query;
    QString m_text;
    Access m_access;
    bool m_hasWaited = false;
    int m_columns = 0;
    std::vector<FieldInfo> m_fields;
    std::unique_ptr<OdbcRowWriter> m_writer;
    QString m_whyReadOnly;
};

} // namespace ADODB
