#pragma once

#include "ado/FieldInfo.h"
#include "ado/providers/odbc/reading/OdbcReader.h"

#include <memory>

namespace ADODB {

class OdbcConnection;
class OdbcHandle;
struct OdbcEngine;

// A prepared statement that returns rows. Every value is read completely and as the server means it.
class OdbcQuery
{
public:
    // `timeout` is the limit per call in seconds, 0 for no limit.
    OdbcQuery(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine, const QString &sql,
              int timeout);
    ~OdbcQuery();
    Q_DISABLE_COPY_MOVE(OdbcQuery)

    // The columns of the given statement, as the driver describes them. Empty if it returns no rows.
    const std::vector<FieldInfo> &fields() const { return m_fields; }
    const std::vector<OdbcTypes::Declared> &types() const { return m_types; }
    int parameters() const;
    // For binding parameters.
    const OdbcHandle &handle() const { return *m_statement; }

    // Runs the statement and appends all rows. For the errors, see OdbcWatch.
    void read(RowStore &rows, int timeout);
    // The same for large results. A server-side cursor ends with the OdbcReading around it.
    void readResult(RowStore &rows, int timeout);

private:
    void prepare(int timeout);
    void askForDatesAsText();
    bool readAll(OdbcReader &reader, RowStore &rows, const OdbcWatch &watch);
    bool readPortions(RowStore &rows, int timeout) const;

    std::shared_ptr<OdbcConnection> m_connection;
    const OdbcEngine &m_engine;
    QString m_text; // as it was prepared
    std::unique_ptr<OdbcHandle> m_statement;
    std::vector<FieldInfo> m_fields;
    std::vector<OdbcTypes::Declared> m_types;
    std::vector<OdbcColumn> m_columns;
};

} // namespace ADODB
