#pragma once

#include "ado/providers/sqlite/SqliteSession.h"

namespace ADODB {

class SqliteStatement : public Statement
{
public:
    SqliteStatement(std::shared_ptr<SqliteSession> session, const QString &sql, Access access);
    ~SqliteStatement() override;

    const std::vector<FieldInfo> &fields() const override { return m_fields; }
    int columns() const override;
    void fetch(RowStore &rows, const std::function<bool(qint64)> &shouldContinue) override;
    std::unique_ptr<RowWriter> releaseWriter() override { return std::move(m_writer); }
    std::shared_ptr<const RowStore> rowsSoFar() const override;
    std::optional<qint64> estimatedRows() const override { return m_estimate; }
    QString whyReadOnly() const override { return m_whyReadOnly; }

private:
    void describe();
    void prepareWriter(const QString &sql);
    void learnTypes();
    void estimate();

    std::shared_ptr<SqliteSession> m_session;
    const QString m_text; // as given
    SqliteHandle m_statement;
    const RowStore *m_fetched = nullptr; // while rows are being fetched
    std::vector<FieldInfo> m_fields;
    std::vector<int> m_untyped; // columns whose type depends on their first value
    std::unique_ptr<RowWriter> m_writer;
    QString m_whyReadOnly;
    std::optional<qint64> m_estimate;
};

// Appends the statement's current row.
void appendCurrentRow(sqlite3_stmt *statement, RowStore &rows);

} // namespace ADODB
