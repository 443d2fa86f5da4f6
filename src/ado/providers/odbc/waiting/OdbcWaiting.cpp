#include "ado/providers/odbc/waiting/OdbcWaiting.h"

#include "ado/Error.h"
#include "ado/connection/OneCommand.h"
#include "ado/connection/Waiting.h"
#include "ado/providers/odbc/OdbcPool.h"
#include "ado/providers/odbc/OdbcRowFeed.h"
#include "ado/providers/odbc/OdbcSession.h"
#include "ado/providers/odbc/reading/OdbcStatement.h"
#include "ado/providers/odbc/waiting/OdbcEstimate.h"
#include "ado/providers/odbc/waiting/OdbcOperation.h"
#include "ado/providers/odbc/writing/OdbcRowWriter.h"
#include "ado/rows/RowStore.h"

#include <QtCore/QScopeGuard>

namespace ADODB {

namespace {

bool always(qint64)
{
    return true;
}

// Runs work whose result nobody waits for.
void runQuietly(const char *fault, const std::function<void()> &work)
{
    try {
        work();
    } catch (const Error &) {
        // Nobody waits for a result, so nothing is lost.
    } catch (const std::exception &error) {
        qWarning("%s: %s", fault, error.what());
    }
}

// Waits for a short time only; longer work ends on its own.
void runForAMoment(std::function<void()> work)
{
    constexpr int limit = 1; // seconds
    OdbcOperation::run(std::move(work), {always, limit});
}

// A row that owns its bytes.
class OwnRow
{
public:
    explicit OwnRow(const std::vector<RawValue> &row) : m_values(row)
    {
        m_bytes.reserve(row.size());
        for (RawValue &value : m_values) {
            m_bytes.push_back(value.bytes.toByteArray());
            value.bytes = m_bytes.back();
        }
    }
    Q_DISABLE_COPY_MOVE(OwnRow)
    const std::vector<RawValue> &values() const { return m_values; }

private:
    std::vector<QByteArray> m_bytes;
    std::vector<RawValue> m_values;
};

} // namespace

OdbcWaitingStatement::OdbcWaitingStatement(std::shared_ptr<OdbcSession> session,
                                           std::shared_ptr<OdbcStatement> statement, QString text)
    : m_session(std::move(session)),
      m_statement(std::move(statement)),
      m_text(std::move(text)),
      m_feed(std::make_shared<OdbcRowFeed>()),
      m_fields(m_statement->fields()),
      m_columns(m_statement->columns()),
      m_whyReadOnly(m_statement->whyReadOnly())
{
    if (auto writer = m_statement->releaseWriter())
        m_writer = std::make_unique<OdbcWaitingWriter>(std::move(writer));
}

// A statement that was prepared but never fetched still holds a server session.
OdbcWaitingStatement::~OdbcWaitingStatement()
{
    if (!m_statement)
        return;
    runQuietly("A statement could not be released", [this] {
        OneCommand *const command = OneCommand::current();
        const auto pool = m_session->pool();
        const bool isKept = command && pool && m_session->engine().isServer();
        runForAMoment([statement = std::move(m_statement), isKept] { statement->release(isKept); });
        if (isKept) {
            command->atEnd([pool] {
                runQuietly("A transaction could not be ended",
                           [&pool] { runForAMoment([pool] { pool->endKeptReading(); }); });
            });
        }
    });
}

void OdbcWaitingStatement::fetch(RowStore &rows, const std::function<bool(qint64)> &shouldContinue)
{
    const auto own = std::make_shared<RowStore>(std::move(rows));
    m_estimate = std::make_unique<OdbcEstimate>(m_session->pool(), m_text);
    const auto estimated = qScopeGuard([this] { m_estimate.reset(); });
    OdbcOperation::run([statement = std::move(m_statement), own] { statement->fetch(*own); },
                       {shouldContinue, 0, m_feed});
    rows = std::move(*own);
    // So that the caller is asked at least once, however fast the statement was.
    if (!shouldContinue(rows.rows()))
        throw OdbcOperation::cancelled();
}

std::shared_ptr<const RowStore> OdbcWaitingStatement::rowsSoFar() const
{
    return m_feed->latest();
}

std::optional<qint64> OdbcWaitingStatement::estimatedRows() const
{
    return m_estimate ? m_estimate->rows() : std::nullopt;
}

OdbcWaitingWriter::OdbcWaitingWriter(std::shared_ptr<OdbcRowWriter> writer) : m_writer(std::move(writer)) {}

// The statements of a change have their own time limits; this one covers what is between them.
void OdbcWaitingWriter::run(std::function<void()> work) const
{
    Watched watched(Watched::For::Changing);
    OdbcOperation::run(
        [mutex = m_mutex, work = std::move(work)] {
            const QMutexLocker lock(mutex.get());
            if (const OdbcOperation *const operation = OdbcOperation::current())
                operation->check();
            work();
        },
        {[&](qint64) { return watched.shouldContinue(); }, 2 * m_writer->timeout()});
}

bool OdbcWaitingWriter::isWritable(int column) const
{
    return m_writer->isWritable(column);
}

bool OdbcWaitingWriter::keepsZones(int column) const
{
    return m_writer->keepsZones(column);
}

bool OdbcWaitingWriter::keepsNulCharacters() const
{
    return m_writer->keepsNulCharacters();
}

// If the outcome is in doubt, only COMMIT can still be running, and the row was complete before it.
void OdbcWaitingWriter::write(const std::function<void(OdbcRowWriter &, RowStore &)> &action,
                              RowStore &stored) const
{
    const auto own = std::make_shared<RowStore>(stored.columns());
    try {
        run([writer = m_writer, action, own] { action(*writer, *own); });
    } catch (const Error &error) {
        if (error.is(dbErrInDoubt) && m_writer->hasTransactions())
            stored = *own;
        throw;
    }
    stored = std::move(*own);
}

// Without transactions, the INSERT itself may still be running. All that is known of the row then is what the
// user has given.
void OdbcWaitingWriter::writeNew(const std::function<void(OdbcRowWriter &, RowStore &)> &action,
                                 const std::vector<Change> &changes, RowStore &stored) const
{
    try {
        write(action, stored);
    } catch (const Error &error) {
        if (error.is(dbErrInDoubt) && !m_writer->hasTransactions())
            m_writer->appendSent(changes, stored);
        throw;
    }
}

void OdbcWaitingWriter::insert(const std::vector<Change> &changes, RowStore &stored)
{
    writeNew([changes](OdbcRowWriter &writer, RowStore &row) { writer.insert(changes, row); }, changes,
             stored);
}

void OdbcWaitingWriter::insertAgain(const std::vector<Change> &changes, const std::vector<RawValue> &before,
                                    RowStore &stored)
{
    const auto sent = std::make_shared<OwnRow>(before);
    writeNew([sent, changes](OdbcRowWriter &writer,
                             RowStore &row) { writer.insertAgain(changes, sent->values(), row); },
             changes, stored);
}

void OdbcWaitingWriter::update(const std::vector<RawValue> &row, const std::vector<Change> &changes,
                               RowStore &stored)
{
    const auto shown = std::make_shared<OwnRow>(row);
    write([shown, changes](OdbcRowWriter &writer,
                           RowStore &changed) { writer.update(shown->values(), changes, changed); },
          stored);
}

void OdbcWaitingWriter::remove(const std::vector<RawValue> &row)
{
    const auto shown = std::make_shared<OwnRow>(row);
    run([writer = m_writer, shown] { writer->remove(shown->values()); });
}

bool OdbcWaitingWriter::read(const std::vector<RawValue> &row, RowStore &now)
{
    const auto own = std::make_shared<RowStore>(now.columns());
    const auto shown = std::make_shared<OwnRow>(row);
    const auto found = std::make_shared<bool>(false);
    run([writer = m_writer, shown, own, found] { *found = writer->read(shown->values(), *own); });
    now = std::move(*own);
    return *found;
}

} // namespace ADODB
