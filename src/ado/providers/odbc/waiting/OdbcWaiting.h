#pragma once

#include "ado/providers/Provider.h"

#include <QtCore/QMutex>

namespace ADODB {

class OdbcEstimate;
class OdbcRowFeed;
class OdbcRowWriter;
class OdbcSession;
class OdbcStatement;

// The statement and writer that a recordset holds. Each call runs as an operation, so that the caller's
// thread can continue to respond while it waits. See OdbcOperation.
class OdbcWaitingStatement : public Statement
{
public:
    // `text` is what the statement was made of.
    OdbcWaitingStatement(std::shared_ptr<OdbcSession> session, std::shared_ptr<OdbcStatement> statement,
                         QString text);
    ~OdbcWaitingStatement() override;
    Q_DISABLE_COPY_MOVE(OdbcWaitingStatement)

    const std::vector<FieldInfo> &fields() const override { return m_fields; }
    int columns() const override { return m_columns; }
    void fetch(RowStore &rows, const std::function<bool(qint64)> &shouldContinue) override;
    std::unique_ptr<RowWriter> releaseWriter() override { return std::move(m_writer); }
    std::shared_ptr<const RowStore> rowsSoFar() const override;
    std::optional<qint64> estimatedRows() const override;
    QString whyReadOnly() const override { return m_whyReadOnly; }

private:
    std::shared_ptr<OdbcSession> m_session;
    std::shared_ptr<OdbcStatement> m_statement; // until it has been fetched
    const QString m_text;
    const std::shared_ptr<OdbcRowFeed> m_feed;
    std::unique_ptr<OdbcEstimate> m_estimate; // while it is fetched
    std::vector<FieldInfo> m_fields;
    int m_columns;
    std::unique_ptr<RowWriter> m_writer;
    QString m_whyReadOnly;
};

class OdbcWaitingWriter : public RowWriter
{
public:
    explicit OdbcWaitingWriter(std::shared_ptr<OdbcRowWriter> writer);

    bool isWritable(int column) const override;
    bool keepsZones(int column) const override;
    bool keepsNulCharacters() const override;
    void insert(const std::vector<Change> &changes, RowStore &stored) override;
    void insertAgain(const std::vector<Change> &changes, const std::vector<RawValue> &before,
                     RowStore &stored) override;
    void update(const std::vector<RawValue> &row, const std::vector<Change> &changes,
                RowStore &stored) override;
    void remove(const std::vector<RawValue> &row) override;
    bool read(const std::vector<RawValue> &row, RowStore &now) override;

private:
    void run(std::function<void()> work) const;
    void write(const std::function<void(OdbcRowWriter &, RowStore &)> &action, RowStore &stored) const;
    void writeNew(const std::function<void(OdbcRowWriter &, RowStore &)> &action,
                  const std::vector<Change> &changes, RowStore &stored) const;

    std::shared_ptr<OdbcRowWriter> m_writer;
    // Locked while the writer works: a read must not return data older than what the writer was saving when
    // its caller was released.
    std::shared_ptr<QMutex> m_mutex = std::make_shared<QMutex>();
};

} // namespace ADODB
