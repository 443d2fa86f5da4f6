#pragma once

#include "ado/providers/odbc/OdbcSession.h"
#include "ado/providers/odbc/reading/OdbcReading.h"

#include <optional>

namespace KOVAVSFDataGridLib {
class SqlScanner;
}

namespace ADODB {

using KOVAVSFDataGridLib::SqlScanner;

class OdbcQuery;
struct OdbcPatience;

class OdbcStatement : public Statement
{
public:
    OdbcStatement(std::shared_ptr<OdbcSession> session, const QString &sql, Access access,
                  const std::function<bool()> &shouldContinue);
    ~OdbcStatement() override;

    const std::vector<FieldInfo> &fields() const override { return m_fields; }
    int columns() const override;
    void fetch(RowStore &rows, const std::function<bool()> &shouldContinue) override;
    std::unique_ptr<RowWriter> takeWriter() override { return std::move(m_writer); }
    QString whyReadOnly() const override { return m_whyReadOnly; }

private:
    void prepareWriter(const SqlScanner &statement, const OdbcPatience &patience);

    std::shared_ptr<OdbcSession> m_session;
    std::shared_ptr<OdbcConnection> m_connection; // the session's, which can be closed meanwhile
    std::optional<OdbcReading> m_reading;         // until all has been read
    std::unique_ptr<OdbcQuery> m_query;
    std::vector<FieldInfo> m_fields;
    std::unique_ptr<RowWriter> m_writer;
    QString m_whyReadOnly;
};

} // namespace ADODB
