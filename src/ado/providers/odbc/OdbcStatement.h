#pragma once

#include "ado/providers/odbc/OdbcReader.h"
#include "ado/providers/odbc/OdbcReading.h"
#include "ado/providers/odbc/OdbcSession.h"

#include <optional>

namespace ADODB {

class OdbcHandle;
class SqlScanner;

class OdbcStatement : public Statement
{
public:
    OdbcStatement(std::shared_ptr<OdbcSession> session, const QString &sql, Access access);
    ~OdbcStatement() override;

    const std::vector<FieldInfo> &fields() const override { return m_fields; }
    int columns() const override { return static_cast<int>(m_columns.size()); }
    void fetch(RowStore &rows, const std::function<bool()> &goOn) override;
    std::unique_ptr<RowWriter> takeWriter() override { return std::move(m_writer); }
    QString whyReadOnly() const override { return m_whyReadOnly; }

private:
    void prepareQuery(const QString &sql);
    void askForDatesAsText(const SqlScanner &statement);
    // False when the rows have to be read anew, value by value.
    bool readAll(OdbcReader &reader, RowStore &rows, const OdbcWatch &watch);

    std::shared_ptr<OdbcSession> m_session;
    std::optional<OdbcReading> m_reading; // ends when all has been read
    std::unique_ptr<OdbcHandle> m_statement;
    std::vector<FieldInfo> m_fields;
    std::vector<OdbcColumn> m_columns; // those of the fields, then the hidden ones
    std::unique_ptr<RowWriter> m_writer;
    QString m_whyReadOnly;
};

} // namespace ADODB
