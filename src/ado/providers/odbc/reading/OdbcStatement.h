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

// A statement on a server. All its functions can wait for the server.
class OdbcStatement
{
public:
    OdbcStatement(std::shared_ptr<OdbcSession> session, const QString &sql, Access access);
    ~OdbcStatement();
    Q_DISABLE_COPY_MOVE(OdbcStatement)

    const std::vector<FieldInfo> &fields() const { return m_fields; }
    int columns() const { return m_columns; }
    void fetch(RowStore &rows);
    // Frees the server's resources. If `isKept`, leaves the transaction open for the next statement, if
    // possible; see OdbcReading::keep.
    void release(bool isKept = false);
    std::unique_ptr<OdbcRowWriter> releaseWriter();
    QString whyReadOnly() const { return m_whyReadOnly; }

private:
    void prepare(const SqlScanner &scanner, Access access, int timeout);
    // Remembers the columns of a table that the query just prepared has all columns of.
    void rememberTable(const SqlScanner &scanner);
    QString prepareLikely(const SqlScanner &scanner, int timeout);
    // `prepared` is the statement of m_query, or empty if that is the user's.
    void prepareWriter(const SqlScanner &scanner, const QString &prepared, int timeout);
    bool waitForLocks(const Error &error, const QString &sql, int timeout);

    std::shared_ptr<OdbcSession> m_session;
    // Until everything is read; the session can be closed meanwhile.
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
