#include "ado/providers/odbc/reading/OdbcStatement.h"

#include "ado/Error.h"
#include "ado/Texts.h"
#include "ado/providers/odbc/OdbcHandle.h"
#include "ado/providers/odbc/reading/OdbcQuery.h"
#include "ado/providers/odbc/reading/OdbcRefusal.h"
#include "ado/providers/odbc/waiting/OdbcWatch.h"
#include "ado/providers/odbc/writing/OdbcRowWriter.h"
#include "ado/providers/odbc/writing/OdbcTable.h"
#include "ado/rows/RowStore.h"
#include "sql/SqlScanner.h"
#include "sql/select/SimpleSelect.h"

#include <QtCore/QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace ADODB {

using KOVAVSFDataGridLib::SimpleSelect;

namespace {

// Waits for the statement's tables in a call that can be cancelled, if preparing the statement can't be. The
// transaction holds their locks from then on.
void waitForTables(const std::shared_ptr<OdbcConnection> &connection, const OdbcEngine &engine,
                   const SqlScanner &statement, int timeout)
{
    if (engine.explain.isEmpty() || !isExplainable(statement))
        return;
    const OdbcHandle handle(connection);
    handle.prepare(engine.explain + statement.withoutSemicolon());
    SQLSMALLINT parameters = 0;
    handle.check(SQLNumParams(handle.get(), &parameters));
    if (parameters > 0) // never given; reported later
        return;
    handle.check(OdbcWatch(handle, timeout).run([&handle] { return SQLExecute(handle.get()); }));
}

// Whether the server gave up waiting for somebody else's lock.
bool isLockTimeout(const Error &error)
{
    return error.SQLState() == "55P03"_L1;
}

} // namespace

OdbcStatement::OdbcStatement(std::shared_ptr<OdbcSession> session, const QString &sql, Access access)
    : m_session(std::move(session)), m_access(access)
{
    const OdbcEngine &engine = m_session->engine();
    const SqlScanner scanner(sql, engine.dialect, engine.quoting);
    refuseUnlessQuery(scanner);
    m_connection = m_session->begin(
        [&](const std::shared_ptr<OdbcConnection> &connection) {
            m_reading.emplace(connection, engine, OdbcReading::Locks::FailSoon);
        },
        OdbcSession::KeptReading::Use);
    const int timeout = m_session->commandTimeout();
    try {
        prepare(scanner, access, timeout);
    } catch (const Error &error) {
        if (!waitForLocks(error, sql, timeout))
            throw;
        prepare(scanner, access, timeout);
    }
}

OdbcStatement::~OdbcStatement()
{
    release();
}

// Not every wait for a lock can be cancelled, so the first attempt does not wait. If it fails, this waits in
// a call that can be cancelled.
bool OdbcStatement::waitForLocks(const Error &error, const QString &sql, int timeout)
{
    const OdbcEngine &engine = m_session->engine();
    if (m_hasWaited || !isLockTimeout(error) || !OdbcReading::renew(m_connection, engine))
        return false;
    m_hasWaited = true;
    waitForTables(m_connection, engine, SqlScanner(sql, engine.dialect, engine.quoting), timeout);
    return true;
}

void OdbcStatement::prepare(const SqlScanner &scanner, Access access, int timeout)
{
    const QString likely = access == Access::ReadWrite ? prepareLikely(scanner, timeout) : QString();
    if (likely.isEmpty()) {
        m_query = std::make_unique<OdbcQuery>(m_connection, m_session->engine(), scanner.sql(), timeout);
        m_fields = m_query->fields();
        rememberTable(scanner);
    }
    if (m_fields.empty())
        throw Error(dbErrPermissionDenied, Texts::notAQuery(), u"ODBC"_s, u"42000"_s);
    if (m_query->parameters() > 0)
        throw Error(dbErrInCommand, Texts::parameterInStatement().arg(u'?'), u"ODBC"_s, u"07002"_s);
    if (access == Access::ReadWrite)
        prepareWriter(scanner, likely, timeout);
    else
        m_whyReadOnly = Texts::openedReadOnly();
    m_columns = static_cast<int>(m_query->fields().size());
    m_text = scanner.sql();
}

void OdbcStatement::rememberTable(const SqlScanner &scanner)
{
    const SimpleSelect select = SimpleSelect::parse(scanner);
    const bool isWhole = select.fault == SimpleSelect::Fault::None && select.items.size() == 1 &&
                         select.items.front().all && !m_fields.empty();
    if (isWhole)
        m_connection->tableFields()[select.tableText] = OdbcTableFields::of(m_query->handle(), m_fields);
}

// If the table is already known, prepares the statement with the hidden key at once. Returns an empty text if
// it is not known or has changed.
QString OdbcStatement::prepareLikely(const SqlScanner &scanner, int timeout)
{
    std::size_t shown = 0;
    std::size_t all = 0;
    QString likely = OdbcTarget::likelyStatement(m_connection, m_session->engine(), scanner, shown, all);
    if (likely.isEmpty())
        return {};
    try {
        m_query = std::make_unique<OdbcQuery>(m_connection, m_session->engine(), likely, timeout);
        m_fields = m_query->fields();
        if (m_fields.size() == all) {
            m_fields.resize(shown);
            return likely;
        }
    } catch (const Error &error) {
        if (error.is(dbErrCancelled) || isLockTimeout(error) ||
            !OdbcReading::renew(m_connection, m_session->engine()))
            throw;
    }
    OdbcTarget::forget(m_connection, scanner);
    return {};
}

void OdbcStatement::prepareWriter(const SqlScanner &scanner, const QString &prepared, int timeout)
{
    OdbcTarget target = OdbcTarget::find(m_connection, m_session->engine(), scanner, m_fields);
    m_whyReadOnly = target.whyReadOnly;
    // The statement with the hidden key columns replaces the user's.
    const QString statement = m_whyReadOnly.isEmpty() ? target.statement : QString();
    if (statement != prepared)
        m_query = std::make_unique<OdbcQuery>(m_connection, m_session->engine(),
                                              statement.isEmpty() ? scanner.sql() : statement, timeout);
    if (!m_whyReadOnly.isEmpty())
        return;
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        if (!target.columns[i].isEmpty())
            m_fields[i].attributes |= adFldUpdatable;
    }
    for (const auto &key : target.key) {
        if (target.isRealKey && key.column < static_cast<int>(m_fields.size()))
            m_fields[static_cast<std::size_t>(key.column)].attributes |= adFldKeyColumn;
    }
    m_writer = std::make_unique<OdbcRowWriter>(m_session, std::move(target), m_query->types());
}

void OdbcStatement::fetch(RowStore &rows)
{
    const int timeout = m_session->commandTimeout();
    const auto released = qScopeGuard([this] { release(); });
    try {
        m_query->readResult(rows, timeout);
    } catch (const Error &error) {
        if (!waitForLocks(error, m_text, timeout))
            throw;
        rows.clear();
        m_query->readResult(rows, timeout);
    }
}

std::unique_ptr<OdbcRowWriter> OdbcStatement::releaseWriter()
{
    return std::move(m_writer);
}

// A transaction that may have been restarted waits for locks.
void OdbcStatement::release(bool isKept)
{
    m_query.reset();
    if (m_reading && isKept && m_access == Access::ReadOnly && !m_hasWaited)
        m_reading->keep();
    m_reading.reset();
    m_connection.reset();
}

} // namespace ADODB
